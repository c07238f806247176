// SPDX-License-Identifier: MIT
#include "store/postgres/OwnServerTest.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Transaction.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::HasSubstr;

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto Lost = int(ErrorNumber::ConnectionLost);

/// A server that goes away, or has no room.
class ServerFailuresTest : public OwnServerTest
{
protected:
    // The server goes away in the middle of a transaction, and comes back.
    void LoseTransaction(const std::function<void()>& goAway)
    {
        const auto store = Opened("orvane");
        SetName(*store, "Roads");
        store->BeginTrans();
        SetName(*store, "Rivers");
        goAway();
        EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), Lost);
        store->Rollback();
        EXPECT_EQ(ErrorOf([&] { SetName(*store, "Woods"); }), Lost) << "the server is away";
        m_server->Start();
        EXPECT_EQ(StoredNames(), "Roads");
        int error = Lost;
        while (error == Lost)
            error = ErrorOf([&] { SetName(*store, "Rivers"); });
        EXPECT_EQ(error, 0);
        EXPECT_EQ(StoredNames(), "Rivers");
    }

    // A server counts a connection until it has noticed its end.
    std::unique_ptr<PostgresLayerDatabase> OpenedOnceThereIsRoom(const char* role) const
    {
        std::unique_ptr<PostgresLayerDatabase> store;
        int error = Lost;
        while (error == Lost)
            error = ErrorOf([&] { store = Opened(role); });
        EXPECT_EQ(error, 0);
        return store;
    }
};

} // namespace

TEST_F(ServerFailuresTest, ATransactionThatAStoppedServerLosesIsStoredAtTheNextAttempt)
{
    LoseTransaction([this] { m_server->Stop(); });
}

TEST_F(ServerFailuresTest, ATransactionThatACrashedServerLosesIsStoredAtTheNextAttempt)
{
    LoseTransaction([this] { m_server->Crash(); });
}

TEST_F(ServerFailuresTest, AServerWithoutAFreeConnectionSaysSo)
{
    Configure("max_connections = 4\nsuperuser_reserved_connections = 3\n");
    Owner().Run("CREATE ROLE kim LOGIN; GRANT USAGE ON SCHEMA \"Town\" TO kim;"
                " GRANT SELECT ON ALL TABLES IN SCHEMA \"Town\" TO kim");
    auto first = OpenedOnceThereIsRoom("kim");
    const auto open = [this] { Opened("kim"); };
    EXPECT_EQ(ErrorOf(open), Lost) << "trying again may help";
    EXPECT_THAT(DescriptionOf(open).toStdString(), HasSubstr("takes no more connections"));
    first.reset();
    EXPECT_TRUE(OpenedOnceThereIsRoom("kim"));
}

TEST_F(ServerFailuresTest, AServerWithoutSpaceStoresNothingAndGoesOnWhenThereIsSome)
{
    const auto store = Opened("orvane");
    SetName(*store, "Roads", 1);
    SetName(*store, "Rivers", 2);
    Owner().Run(
        "CREATE SCHEMA outside; CREATE FUNCTION outside.no_space() RETURNS trigger LANGUAGE plpgsql AS"
        " $$ BEGIN IF NEW.LayerID = 2 THEN RAISE 'could not extend file' USING ERRCODE = '53100';"
        " END IF; RETURN NEW; END $$");
    Owner().Run("CREATE TRIGGER no_space BEFORE UPDATE ON \"Town\".Layers FOR EACH ROW"
                " EXECUTE FUNCTION outside.no_space()");
    const auto work = [&] {
        Transaction transaction(*store);
        store->Send(QStringLiteral("UPDATE Layers SET Name = 'Woods' WHERE LayerID = 1"));
        store->Send(QStringLiteral("UPDATE Layers SET Name = 'Woods' WHERE LayerID = 2"));
        transaction.Commit();
    };
    const auto error = RaisedBy(work);
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->Number(), Failure);
    EXPECT_THAT(error->Description().toStdString(), HasSubstr("not enough disk space"));
    EXPECT_EQ(StoredNames(), "Roads Rivers");
    Owner().Run("DROP TRIGGER no_space ON \"Town\".Layers");
    EXPECT_EQ(ErrorOf(work), 0);
    EXPECT_EQ(StoredNames(), "Woods Woods");
}

} // namespace Orvane::Testing
