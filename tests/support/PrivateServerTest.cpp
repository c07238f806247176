// SPDX-License-Identifier: MIT
#include "support/PrivateServer.h"

#include <QDir>
#include <QFileInfo>

#include <array>
#include <csignal>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <libpq-fe.h>
#include <memory>
#include <poll.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvane::Testing {

namespace {

using ServerLink = std::unique_ptr<PGconn, decltype(&PQfinish)>;

ServerLink LinkTo(const PrivateServer& server)
{
    return {PQconnectdb(server.Connection().constData()), &PQfinish};
}

bool CanBeReached(const PrivateServer& server)
{
    return PQstatus(LinkTo(server).get()) == CONNECTION_OK;
}

// A process that may end before it is asked about.
class WatchedProcess
{
public:
    explicit WatchedProcess(pid_t process) : m_handle(int(syscall(SYS_pidfd_open, process, 0))) { }
    ~WatchedProcess() { close(m_handle); }
    WatchedProcess(const WatchedProcess&) = delete;
    WatchedProcess& operator=(const WatchedProcess&) = delete;

    bool IsKnown() const { return m_handle >= 0; }
    bool HasEnded(int longest = 20000) const
    {
        pollfd handle{m_handle, POLLIN, 0};
        return poll(&handle, 1, longest) == 1;
    }

private:
    int m_handle;
};

// What a program tells about its server before it is killed.
struct ServerFacts {
    pid_t keeper = 0;
    pid_t server = 0;
    std::array<char, 128> folder{};
};

// Starts a server, tells about it, and waits.
[[noreturn]] void HoldServer(int out)
{
    const PrivateServer server;
    ServerFacts facts{server.Keeper(), server.Process(), {}};
    qstrncpy(facts.folder.data(), server.Folder().toUtf8().constData(), facts.folder.size());
    const ssize_t written = write(out, &facts, sizeof facts);
    while (written > 0)
        pause();
    _exit(1);
}

class PrivateServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
    }
};

} // namespace

TEST_F(PrivateServerTest, TakesConnectionsThroughItsOwnSocketOnly)
{
    const ServerLink link = LinkTo(SharedServer());
    ASSERT_EQ(PQstatus(link.get()), CONNECTION_OK) << PQerrorMessage(link.get());
    const std::unique_ptr<PGresult, decltype(&PQclear)> addresses(
        PQexec(link.get(), "SHOW listen_addresses"), &PQclear);
    EXPECT_STREQ(PQgetvalue(addresses.get(), 0, 0), "");
    EXPECT_EQ(QString::fromUtf8(PQhost(link.get())), SharedServer().Folder());
}

TEST_F(PrivateServerTest, DoesNotReadTheSettingsOfItsUser)
{
    qputenv("PGUSER", "somebody");
    const PrivateServer server;
    EXPECT_FALSE(qEnvironmentVariableIsSet("PGUSER"));
    EXPECT_TRUE(CanBeReached(server));
}

TEST_F(PrivateServerTest, KeepsItsContentWhenItIsRestarted)
{
    PrivateServer server;
    PQclear(PQexec(LinkTo(server).get(), "CREATE TABLE kept (n integer)"));
    server.Restart();
    const std::unique_ptr<PGresult, decltype(&PQclear)> rows(
        PQexec(LinkTo(server).get(), "SELECT n FROM kept"), &PQclear);
    EXPECT_EQ(PQresultStatus(rows.get()), PGRES_TUPLES_OK);
}

TEST_F(PrivateServerTest, CannotBeReachedWhileItIsStopped)
{
    PrivateServer server;
    server.Stop();
    EXPECT_FALSE(server.IsRunning());
    EXPECT_FALSE(CanBeReached(server));
    server.Start();
    EXPECT_TRUE(CanBeReached(server));
}

TEST_F(PrivateServerTest, StartsAfterACrash)
{
    PrivateServer server;
    server.Crash();
    EXPECT_FALSE(CanBeReached(server));
    server.Start();
    EXPECT_TRUE(CanBeReached(server));
}

TEST_F(PrivateServerTest, WritesWhatItRefuses)
{
    PQclear(PQexec(LinkTo(SharedServer()).get(), "SELECT no_such_column"));
    EXPECT_THAT(SharedServer().Log().toStdString(), testing::HasSubstr("no_such_column"));
}

TEST_F(PrivateServerTest, EndsWithItsObject)
{
    auto server = std::make_unique<PrivateServer>();
    const QString folder = server->Folder();
    const WatchedProcess process(server->Process());
    ASSERT_TRUE(process.IsKnown());
    server.reset();
    EXPECT_TRUE(process.HasEnded());
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(PrivateServerTest, EndsWithItsProgramWhenThatIsKilled)
{
    std::array<int, 2> ends{-1, -1};
    ASSERT_EQ(pipe(ends.data()), 0);
    const pid_t program = fork();
    if (program == 0)
        HoldServer(ends[1]);
    ServerFacts facts;
    ASSERT_EQ(read(ends[0], &facts, sizeof facts), ssize_t(sizeof facts));
    const WatchedProcess server(facts.server);
    const WatchedProcess keeper(facts.keeper);
    ASSERT_TRUE(
        server.IsKnown() && keeper.IsKnown() && QFileInfo::exists(QString::fromUtf8(facts.folder.data())));
    kill(program, SIGKILL);
    waitpid(program, nullptr, 0);
    EXPECT_TRUE(keeper.HasEnded());
    EXPECT_TRUE(server.HasEnded(0));
    EXPECT_FALSE(QFileInfo::exists(QString::fromUtf8(facts.folder.data())));
    close(ends[0]);
    close(ends[1]);
}

TEST_F(PrivateServerTest, EndsWithItsKeeperWhenThatIsKilled)
{
    const PrivateServer server;
    const WatchedProcess process(server.Process());
    const QString folder = server.Folder();
    ASSERT_TRUE(process.IsKnown());
    kill(server.Keeper(), SIGKILL);
    EXPECT_TRUE(process.HasEnded());
    EXPECT_TRUE(QDir(folder).removeRecursively());
}

} // namespace Orvane::Testing
