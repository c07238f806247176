// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerConnection.h"

#include "store/IServerLogin.h"
#include "store/postgres/link/LinkTest.h"
#include "support/CuttingProxy.h"

#include <OrvaneShellLib/Cancellation.h>

#include <chrono>
#include <thread>
#include <vector>

namespace Orvane::Testing {

namespace {

using namespace std::chrono_literals;

const auto Lost = int(ErrorNumber::ConnectionLost);

class ServerConnectionTest : public LinkTest
{
protected:
    std::unique_ptr<ServerConnection> Through(const CuttingProxy& proxy, const StoreOptions& options = {})
    {
        return ServerConnection::Connect(PlaceIn(proxy.Folder()), options, m_watch);
    }
    /// Options under which nobody waits long for a silent server.
    static StoreOptions Hasty()
    {
        StoreOptions options;
        options.connectTimeout = 200ms;
        options.answerTimeout = 200ms;
        return options;
    }
    /// Options under which nobody waits long for a server that was there before.
    static StoreOptions Impatient()
    {
        StoreOptions options;
        options.answerTimeout = 500ms;
        return options;
    }
};

} // namespace

TEST_F(ServerConnectionTest, KnowsItsServer)
{
    const auto connection = Connected();
    EXPECT_GE(connection->Version(), 130000);
    EXPECT_EQ(connection->User(), QStringLiteral("orvane"));
    EXPECT_EQ(connection->Run("SELECT pg_backend_pid()").Number(0, 0), connection->Backend());
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::Idle);
}

TEST_F(ServerConnectionTest, FollowsTransactions)
{
    const auto connection = Connected();
    connection->Run("BEGIN");
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::InTransaction);
    EXPECT_NE(ErrorOf([&] { connection->Run("SELECT nonsense"); }), 0);
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::Failed);
    EXPECT_EQ(connection->Run("COMMIT").Done(), "ROLLBACK");
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::Idle);
}

TEST_F(ServerConnectionTest, AServerThatIsNotThereIsAClearError)
{
    const auto connect
        = [this] { ServerConnection::Connect(PlaceIn(QStringLiteral("/nowhere")), {}, m_watch); };
    EXPECT_EQ(ErrorOf(connect), Lost);
    EXPECT_TRUE(DescriptionOf(connect).contains(QStringLiteral("/nowhere")))
        << qPrintable(DescriptionOf(connect));
    EXPECT_FALSE(DescriptionOf(connect).contains(QLatin1Char('?'))) << "a hint takes the place of the reason";
}

TEST_F(ServerConnectionTest, AMissingDatabaseAndARefusedUserAreClearErrors)
{
    for (const auto& [keyword, text] :
         {std::pair("dbname", "database \"nobody\""), std::pair("user", "refused the user")}) {
        ServerPlace place = PlaceIn(SharedServer().Folder());
        for (auto& option : place.options) {
            if (option.first == keyword)
                option.second = "nobody";
        }
        const auto connect = [&] { ServerConnection::Connect(place, {}, m_watch); };
        EXPECT_EQ(ErrorOf(connect), int(ErrorNumber::DatabaseFailure)) << keyword;
        EXPECT_TRUE(DescriptionOf(connect).contains(QLatin1String(text)))
            << qPrintable(DescriptionOf(connect));
    }
}

TEST_F(ServerConnectionTest, ASilentHostDoesNotHideTheNextOne)
{
    CuttingProxy silent(SharedServer().Socket());
    silent.Silence();
    StoreOptions options;
    options.connectTimeout = 2s;
    const QString both = silent.Folder() + u',' + SharedServer().Folder();
    const auto connection = ServerConnection::Connect(PlaceIn(both), options, m_watch);
    EXPECT_EQ(connection->Run("SELECT 7").Number(0, 0), 7);
}

TEST_F(ServerConnectionTest, ASilentServerIsNotWaitedForLong)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy, Hasty());
    proxy.Silence();
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
    EXPECT_EQ(ErrorOf([&] { Through(proxy, Hasty()); }), Lost);
}

TEST_F(ServerConnectionTest, ABrokenConnectionStaysBroken)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy);
    proxy.CutNow();
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
        EXPECT_TRUE(connection->IsLost());
        EXPECT_EQ(ErrorOf([&] { connection->TakeNotices(); }), Lost);
    }
}

TEST_F(ServerConnectionTest, AServerThatShutsDownLosesTheConnection)
{
    const auto connection = Connected();
    const auto other = Connected();
    other->Run("SELECT pg_terminate_backend($1)", {QByteArray::number(connection->Backend())});
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
    EXPECT_TRUE(connection->IsLost());
}

TEST_F(ServerConnectionTest, TheWatcherEndsALongStatement)
{
    const auto connection = Connected();
    int looks = 3;
    m_watch.SetWatcher([&](double) { return looks-- > 0; });
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT pg_sleep(60)"); }), int(UserCancelled));
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), int(UserCancelled)) << "still cancelled";
    m_watch.SetWatcher({});
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, WhatMustRunAsAWholeIsNotEnded)
{
    const auto connection = Connected();
    m_watch.SetWatcher([](double) { return false; });
    const WorkWatch::Pause whole(m_watch);
    EXPECT_EQ(connection->Run("SELECT 17 FROM pg_sleep(0.1)").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, ACancelledStatementOfASilentServerLosesTheConnection)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy, Impatient());
    proxy.Silence();
    int looks = 3;
    m_watch.SetWatcher([&](double) { return looks-- > 0; });
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
}

TEST_F(ServerConnectionTest, AStatementThatOutlivesACancelIsCancelledAgain)
{
    const auto connection = Connected();
    int looks = 3;
    m_watch.SetWatcher([&](double) { return looks-- > 0; });
    EXPECT_EQ(
        ErrorOf([&] {
            connection->Run("DO $$ BEGIN PERFORM pg_sleep(60);"
                            " EXCEPTION WHEN query_canceled THEN PERFORM pg_sleep(60); END $$");
        }),
        int(UserCancelled));
    EXPECT_FALSE(connection->IsLost());
}

TEST_F(ServerConnectionTest, WhatASilentServerStillDoesIsCancelled)
{
    const auto connection = Connected(Impatient());
    const auto other = Connected();
    const QByteArray backend = QByteArray::number(connection->Backend());
    const auto isWorking = [&] {
        return other->Run("SELECT count(*) FROM pg_stat_activity WHERE pid = $1", {backend}).Number(0, 0) > 0;
    };
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT pg_sleep(60)"); }), Lost);
    const auto end = std::chrono::steady_clock::now() + 20s;
    bool works = true;
    while (works && std::chrono::steady_clock::now() < end)
        works = isWorking();
    EXPECT_FALSE(works);
}

TEST_F(ServerConnectionTest, ACancelThatIsStillUnderWayDoesNotDisturbANewConnection)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy, Impatient());
    proxy.SetDelay(5s);
    int looks = 3;
    m_watch.SetWatcher([&](double) { return looks-- > 0; });
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
    proxy.SetDelay(0s);
    m_watch.SetWatcher({});
    connection->ConnectAgain();
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, NoSchemaOfAUserTakesPartAtFirst)
{
    const auto owner = Connected();
    owner->Run("CREATE ROLE lured LOGIN");
    owner->Run("ALTER ROLE lured SET search_path = elsewhere");
    ServerPlace place = PlaceIn(SharedServer().Folder());
    for (auto& option : place.options) {
        if (option.first == "user")
            option.second = "lured";
    }
    const auto connection = ServerConnection::Connect(place, {}, m_watch);
    for (int attempt = 0; attempt < 2; ++attempt) {
        EXPECT_EQ(connection->Run("SHOW search_path").Text(0, 0), QStringLiteral("pg_catalog, pg_temp"));
        connection->ConnectAgain();
    }
    owner->Run("DROP ROLE lured");
}

TEST_F(ServerConnectionTest, NothingRunsWhileTheWatcherDoes)
{
    const auto connection = Connected();
    std::vector<int> errors;
    m_watch.SetWatcher([&](double) {
        errors.push_back(ErrorOf([&] { connection->Run("SELECT 1"); }));
        return true;
    });
    connection->Run("SELECT 1");
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ(errors.front(), int(ErrorNumber::DatabaseFailure));
}

TEST_F(ServerConnectionTest, HearsWhatOthersTell)
{
    const auto connection = Connected();
    const auto other = Connected();
    connection->Run("LISTEN news");
    EXPECT_TRUE(connection->TakeNotices().empty());
    other->Run("SELECT pg_notify('news', 'Wälder')");
    connection->Run("SELECT 1");
    const auto notices = connection->TakeNotices();
    ASSERT_EQ(notices.size(), 1U);
    EXPECT_EQ(notices[0].channel, "news");
    EXPECT_EQ(notices[0].payload, "Wälder");
    EXPECT_EQ(notices[0].backend, other->Backend());
    EXPECT_TRUE(connection->TakeNotices().empty());
}

TEST_F(ServerConnectionTest, TellsThatNoticesCameWithAnAnswer)
{
    const auto connection = Connected();
    connection->Run("LISTEN news");
    int told = 0;
    connection->SetListener([&] { ++told; });
    connection->Run("SELECT pg_notify('news', 'own')");
    EXPECT_EQ(told, 1);
    EXPECT_EQ(connection->TakeNotices().size(), 1U);
    connection->Run("SELECT 1");
    EXPECT_EQ(told, 1);
}

TEST_F(ServerConnectionTest, ConnectsAgainInTheBackground)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy);
    const quint64 number = connection->Number();
    int told = 0;
    connection->SetListener([&] { ++told; });
    proxy.CutNow();
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
    EXPECT_EQ(told, 1);
    connection->StartConnecting();
    while (!connection->FinishConnecting())
        std::this_thread::yield();
    EXPECT_EQ(told, 2);
    EXPECT_GT(connection->Number(), number);
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, TellsInTheBackgroundThatTheServerIsStillAway)
{
    CuttingProxy proxy(SharedServer().Socket());
    const auto connection = Through(proxy);
    proxy.Refuse();
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 1"); }), Lost);
    connection->StartConnecting();
    int error = 0;
    while (error == 0)
        error = ErrorOf([&] { connection->FinishConnecting(); });
    EXPECT_EQ(error, Lost);
    EXPECT_TRUE(connection->IsLost());
    EXPECT_FALSE(connection->FinishConnecting()) << "nothing was started";
}

TEST_F(ServerConnectionTest, ATransactionEndsWithoutBeingWaitedFor)
{
    const auto connection = Connected();
    connection->Run("BEGIN");
    const quint64 roundTrips = connection->RoundTrips();
    connection->EndTransactionLater("ROLLBACK");
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::Idle);
    connection->Run("BEGIN");
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::InTransaction);
    connection->EndTransactionLater("COMMIT");
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
    EXPECT_EQ(connection->TransactionState(), ServerConnection::State::Idle);
    EXPECT_EQ(connection->RoundTrips(), roundTrips + 2);
}

TEST_F(ServerConnectionTest, AnEndThatNobodyWaitedForHidesNoNotice)
{
    const auto connection = Connected();
    const auto other = Connected();
    connection->Run("LISTEN news");
    connection->Run("BEGIN");
    connection->EndTransactionLater("COMMIT");
    other->Run("NOTIFY news");
    std::vector<ServerNotice> notices;
    while (notices.empty())
        notices = connection->TakeNotices();
    EXPECT_EQ(notices[0].channel, "news");
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, AnEndThatFailsLosesTheConnection)
{
    const auto connection = Connected();
    connection->EndTransactionLater("nonsense");
    EXPECT_EQ(ErrorOf([&] { connection->Run("SELECT 17"); }), Lost);
    EXPECT_TRUE(connection->IsLost());
    connection->ConnectAgain();
    EXPECT_EQ(connection->Run("SELECT 17").Number(0, 0), 17);
}

TEST_F(ServerConnectionTest, ErrorsNameThePlace)
{
    StoreOptions options;
    options.shownPath = QStringLiteral("Town");
    const auto connection = Connected(options);
    const QString text = DescriptionOf([&] { connection->Run("SELECT nonsense"); });
    EXPECT_TRUE(text.contains(QStringLiteral("\"Town\""))) << qPrintable(text);
}

} // namespace Orvane::Testing
