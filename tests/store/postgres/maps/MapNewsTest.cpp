// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapNews.h"

#include "store/postgres/MapTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MapNewsTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        m_connection = Connected();
        Owner().Run("INSERT INTO Layers (LayerID) VALUES (1), (2), (3)");
    }

    MapNews::Snapshot Now()
    {
        const ServerRows rows = m_connection->Run(MapNews::SnapshotQuery());
        return rows.Text(0, 0).toLatin1();
    }
    std::vector<std::string> Missed(const MapNews::Snapshot& seen, const QByteArray& own = {})
    {
        const ServerRows rows = m_connection->Run(MapNews::MissedQuery(), MapNews::MissedValues(seen, own));
        std::vector<std::string> missed;
        for (int row = 0; row < rows.Count(); ++row)
            missed.push_back((rows.Text(row, 1) + u' ' + rows.Text(row, 2)).toStdString());
        return missed;
    }
    void Touch(RawLink& link, int layer)
    {
        link.Run("UPDATE Layers SET Code = Code + 1 WHERE LayerID = " + QByteArray::number(layer));
    }

    std::unique_ptr<ServerConnection> m_connection;
};

} // namespace

TEST_F(MapNewsTest, TellsWhatWasStoredSinceASnapshot)
{
    Touch(Owner(), 1);
    const MapNews::Snapshot seen = Now();
    EXPECT_THAT(Missed(seen), IsEmpty());
    Touch(Owner(), 2);
    Touch(Owner(), 3);
    EXPECT_THAT(Missed(seen), ElementsAre("layers 2", "layers 3"));
}

TEST_F(MapNewsTest, TellsATransactionThatBeganBeforeTheSnapshotAndWasStoredLater)
{
    const auto other = Other();
    other->Run("BEGIN");
    Touch(*other, 1);
    Touch(Owner(), 2);
    const MapNews::Snapshot seen = Now();
    EXPECT_THAT(Missed(seen), IsEmpty());
    other->Run("COMMIT");
    EXPECT_THAT(Missed(seen), ElementsAre("layers 1"));
}

TEST_F(MapNewsTest, LeavesOutTheTransactionsOfAToken)
{
    const MapNews::Snapshot seen = Now();
    Owner().Run("SET orvane.token = '11111111-2222-3333-4444-555555555555'");
    Touch(Owner(), 1);
    Owner().Run("SET orvane.token = ''");
    Touch(Owner(), 2);
    EXPECT_THAT(Missed(seen, "11111111-2222-3333-4444-"), ElementsAre("layers 2"));
    EXPECT_THAT(Missed(seen, "11111111-2222-3333-5555-"), ElementsAre("layers 1", "layers 2"));
}

TEST_F(MapNewsTest, RemovesOldNewsBeyondTheNewestTenThousand)
{
    Owner().Run("INSERT INTO orvane_news (tab, ids, at) SELECT 'layers', '1', now() - interval '2 days'"
                " FROM generate_series(1, 4000)");
    Owner().Run("INSERT INTO orvane_news (tab, ids) SELECT 'layers', '1' FROM generate_series(1, 7000)");
    const auto count = [this] { return Owner().Text("SELECT count(*) FROM orvane_news"); };
    const std::string before = count();
    EXPECT_EQ(before, "11001"); // with the one of the first three layers
    m_connection->Run(MapNews::Pruning());
    EXPECT_EQ(count(), "10002"); // that one is young
}

TEST_F(MapNewsTest, DoesNotWaitForSomebodyElseWhoRemovesOldNews)
{
    Owner().Run("INSERT INTO orvane_news (tab, ids, at) SELECT 'layers', '1', now() - interval '2 days'"
                " FROM generate_series(1, 11000)");
    const auto other = Other();
    other->Run("BEGIN");
    other->Run(MapNews::Pruning());
    EXPECT_EQ(m_connection->Run(MapNews::Pruning()).Changed(), 0);
    other->Run("COMMIT");
    EXPECT_EQ(m_connection->Run(MapNews::Pruning()).Changed(), 0);
}

TEST_F(MapNewsTest, ARoleThatOnlyReadsMayNotRemoveNews)
{
    Owner().Run(
        "CREATE ROLE \"Gil\" LOGIN; GRANT USAGE ON SCHEMA " + QuotedName(m_schema)
        + " TO \"Gil\"; GRANT SELECT ON ALL TABLES IN SCHEMA " + QuotedName(m_schema) + " TO \"Gil\"");
    EXPECT_TRUE(m_connection->Run(MapNews::MayPruneQuery()).Flag(0, 0));
    EXPECT_FALSE(Connected(QStringLiteral("Gil"))->Run(MapNews::MayPruneQuery()).Flag(0, 0));
    Owner().Run("DROP OWNED BY \"Gil\"; DROP ROLE \"Gil\"");
}

} // namespace Orvane::Testing
