// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <memory>

namespace Orvane::Testing {

/// A network between a program and a server that a test can make slow, silent or cut. Programs connect to the
/// proxy's socket instead of the server's; what they send is passed on, and so are the answers. It works on a
/// thread of its own.
///
///     CuttingProxy proxy(server.Socket());
///     proxy.CutAt("COMMIT", CuttingProxy::Cut::BeforeIt);
///     ... work with the server whose socket is in proxy.Folder() ...
///
/// Cuts and round trips are counted over all connections.
class CuttingProxy
{
public:
    enum class Direction { ToServer, ToClient };
    /// Where a connection is cut at a text.
    enum class Cut {
        BeforeIt, ///< the text does not arrive
        AfterIt, ///< the text and what came with it arrives, an answer to it does not
    };

    /// Passes on to the server with that socket, whose name the proxy's socket has, too.
    explicit CuttingProxy(const QString& serverSocket);
    /// Ends all connections.
    ~CuttingProxy();
    CuttingProxy(const CuttingProxy&) = delete;
    CuttingProxy& operator=(const CuttingProxy&) = delete;

    /// The folder with the proxy's socket.
    QString Folder() const;
    /// The proxy's socket.
    QString Socket() const;

    /// From now on everything arrives that much later than it was sent, in each direction. What is sent
    /// meanwhile does not wait for what was sent before.
    void SetDelay(std::chrono::milliseconds delay);
    /// Once that many more bytes were sent in that direction, they arrive, and the connection is cut.
    void CutAfter(qint64 bytes, Direction direction);
    /// The next connection that sends the text is cut.
    void CutAt(const QByteArray& text, Cut cut, Direction direction = Direction::ToServer);
    /// Cuts all connections. What was not yet passed on is lost.
    void CutNow();
    /// From now on nothing arrives, and connections stay open. New ones are taken.
    void Silence();
    /// Cuts all connections, and each new one.
    void Refuse();
    /// Ends Silence and Refuse, and forgets a cut that did not come about. What silence held back arrives.
    void Restore();

    /// How many connections were cut.
    int Cuts() const;
    /// How many connections are open.
    int Connections() const;
    /// How often a client began to send after the server had answered, since ForgetRoundTrips. What the
    /// server tells without being asked counts as an answer.
    int RoundTrips() const;
    void ForgetRoundTrips();
    /// How many bytes were sent in that direction.
    qint64 Bytes(Direction direction) const;

private:
    class Network;
    std::unique_ptr<Network> m_network;
};

} // namespace Orvane::Testing
