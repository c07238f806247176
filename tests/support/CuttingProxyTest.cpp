// SPDX-License-Identifier: MIT
#include "support/CuttingProxy.h"

#include "support/UnixSocket.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

namespace Orvane::Testing {

namespace {

using Cut = CuttingProxy::Cut;
using Direction = CuttingProxy::Direction;

/// Sends back what it gets.
class EchoServer
{
public:
    EchoServer() : m_listener(m_folder.filePath(QStringLiteral("echo"))) { }
    ~EchoServer()
    {
        m_listener.Shut();
        m_thread.join();
    }
    EchoServer(const EchoServer&) = delete;
    EchoServer& operator=(const EchoServer&) = delete;

    QString Socket() const { return m_folder.filePath(QStringLiteral("echo")); }
    /// All that it got up to the end of the last connection.
    QByteArray Got()
    {
        const std::lock_guard lock(m_mutex);
        return m_got;
    }

private:
    void Serve()
    {
        while (auto connection = m_listener.Accept()) {
            for (QByteArray bytes = connection->Read(); !bytes.isEmpty(); bytes = connection->Read()) {
                {
                    const std::lock_guard lock(m_mutex);
                    m_got += bytes;
                }
                connection->Send(bytes);
            }
        }
    }

    QTemporaryDir m_folder;
    UnixListener m_listener;
    std::mutex m_mutex;
    QByteArray m_got;
    std::thread m_thread{[this] { Serve(); }};
};

class CuttingProxyTest : public testing::Test
{
protected:
    UnixSocket Connected() const { return UnixSocket(m_proxy.Socket()); }

    /// Sends the bytes, and waits until the proxy has them.
    void SendSlowly(UnixSocket& client, const QByteArray& bytes) const
    {
        const qint64 before = m_proxy.Bytes(Direction::ToServer);
        client.Send(bytes);
        while (m_proxy.Bytes(Direction::ToServer) < before + bytes.size())
            std::this_thread::yield();
    }

    EchoServer m_server;
    CuttingProxy m_proxy{m_server.Socket()};
};

} // namespace

TEST_F(CuttingProxyTest, PassesOnWhatIsSentAndAnswered)
{
    UnixSocket client = Connected();
    client.Send("one");
    EXPECT_EQ(client.Read(3), "one");
    const QByteArray much(3'000'000, 'x');
    std::thread sender([&] { client.Send(much); });
    EXPECT_EQ(client.Read(much.size()), much);
    sender.join();
    EXPECT_EQ(m_proxy.Bytes(Direction::ToServer), 3 + much.size());
    EXPECT_EQ(m_proxy.Bytes(Direction::ToClient), 3 + much.size());
}

TEST_F(CuttingProxyTest, PassesOnTheEndOfAConnection)
{
    {
        UnixSocket client = Connected();
        client.Send("one");
        EXPECT_EQ(client.Read(3), "one");
        EXPECT_EQ(m_proxy.Connections(), 1);
    }
    UnixSocket next = Connected(); // the server serves one after the other
    next.Send("two");
    EXPECT_EQ(next.Read(3), "two");
    EXPECT_EQ(m_proxy.Cuts(), 0);
}

TEST_F(CuttingProxyTest, DelaysEachDirection)
{
    constexpr std::chrono::milliseconds delay(20);
    m_proxy.SetDelay(delay);
    UnixSocket client = Connected();
    const auto start = std::chrono::steady_clock::now();
    client.Send("one");
    EXPECT_EQ(client.Read(3), "one");
    EXPECT_GE(std::chrono::steady_clock::now() - start, 2 * delay);
}

TEST_F(CuttingProxyTest, LetsTheLastBytesBeforeACutArrive)
{
    UnixSocket client = Connected();
    m_proxy.CutAfter(10, Direction::ToServer);
    SendSlowly(client, "123456");
    client.Send("789012345");
    client.ReadToEnd();
    EXPECT_EQ(m_proxy.Cuts(), 1);
    UnixSocket next = Connected();
    next.Send("!");
    EXPECT_EQ(next.Read(1), "!");
    EXPECT_EQ(m_server.Got(), "1234567890!");
}

TEST_F(CuttingProxyTest, CutsTheAnswersToo)
{
    UnixSocket client = Connected();
    m_proxy.CutAfter(4, Direction::ToClient);
    client.Send("123456");
    EXPECT_EQ(client.ReadToEnd(), "1234");
    EXPECT_EQ(m_server.Got(), "123456");
}

TEST_F(CuttingProxyTest, CutsBeforeAText)
{
    UnixSocket client = Connected();
    m_proxy.CutAt("COMMIT", Cut::BeforeIt);
    client.Send("BEGIN");
    EXPECT_EQ(client.Read(5), "BEGIN");
    client.Send("work; COMMIT; more");
    client.ReadToEnd();
    UnixSocket next = Connected();
    next.Send("!");
    EXPECT_EQ(next.Read(1), "!");
    EXPECT_EQ(m_server.Got(), "BEGINwork; !");
}

TEST_F(CuttingProxyTest, FindsATextThatComesInParts)
{
    UnixSocket client = Connected();
    m_proxy.CutAt("COMMIT", Cut::BeforeIt);
    SendSlowly(client, "COM");
    client.Send("MIT");
    client.ReadToEnd();
    EXPECT_EQ(m_proxy.Cuts(), 1);
}

TEST_F(CuttingProxyTest, LetsATextArriveButNoAnswerToIt)
{
    UnixSocket client = Connected();
    m_proxy.CutAt("COMMIT", Cut::AfterIt);
    client.Send("COMMIT");
    EXPECT_EQ(client.ReadToEnd(), "");
    UnixSocket next = Connected();
    next.Send("!");
    EXPECT_EQ(next.Read(1), "!");
    EXPECT_EQ(m_server.Got(), "COMMIT!");
}

TEST_F(CuttingProxyTest, CutsAllConnectionsAtOnce)
{
    UnixSocket first = Connected();
    first.Send("one");
    EXPECT_EQ(first.Read(3), "one");
    m_proxy.CutNow();
    EXPECT_EQ(first.ReadToEnd(), "");
    EXPECT_EQ(m_proxy.Connections(), 0);
}

TEST_F(CuttingProxyTest, HoldsBackEverythingInSilence)
{
    UnixSocket client = Connected();
    client.Send("one");
    EXPECT_EQ(client.Read(3), "one");
    m_proxy.Silence();
    client.Send("two");
    const UnixSocket other = Connected();
    while (m_proxy.Connections() < 2) // it has looked at the first one too then
        std::this_thread::yield();
    EXPECT_FALSE(client.HasAnswer());
    EXPECT_EQ(m_server.Got(), "one");
    m_proxy.Restore();
    EXPECT_EQ(client.Read(3), "two");
}

TEST_F(CuttingProxyTest, RefusesUntilItIsRestored)
{
    UnixSocket client = Connected();
    client.Send("one");
    EXPECT_EQ(client.Read(3), "one");
    m_proxy.Refuse();
    EXPECT_EQ(client.ReadToEnd(), "");
    UnixSocket refused = Connected();
    EXPECT_EQ(refused.ReadToEnd(), "");
    m_proxy.Restore();
    UnixSocket next = Connected();
    next.Send("two");
    EXPECT_EQ(next.Read(3), "two");
}

TEST_F(CuttingProxyTest, CountsRoundTrips)
{
    UnixSocket client = Connected();
    for (const char* text : {"one", "two"}) {
        client.Send(text);
        EXPECT_EQ(client.Read(3), text);
    }
    EXPECT_EQ(m_proxy.RoundTrips(), 2);
    m_proxy.ForgetRoundTrips();
    m_proxy.SetDelay(std::chrono::milliseconds(20)); // the answer to the first part comes after the second
    SendSlowly(client, "th");
    SendSlowly(client, "ree");
    EXPECT_EQ(client.Read(5), "three");
    EXPECT_EQ(m_proxy.RoundTrips(), 1);
}

TEST_F(CuttingProxyTest, EndsConnectionsToAServerThatIsNotThere)
{
    const CuttingProxy proxy(QStringLiteral("/nowhere/echo"));
    UnixSocket client(proxy.Socket());
    EXPECT_EQ(client.ReadToEnd(), "");
}

} // namespace Orvane::Testing
