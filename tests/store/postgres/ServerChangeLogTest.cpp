// SPDX-License-Identifier: MIT
#include "store/postgres/ServerChangeLog.h"

#include "store/any/RecordedRows.h"
#include "store/postgres/MapTest.h"
#include "store/postgres/RecordingConnection.h"
#include "store/postgres/Traps.h"
#include "store/postgres/maps/TableSql.h"
#include "support/Errors.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class ServerChangeLogTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run(
            "INSERT INTO Layers (LayerID, Name) SELECT i, 'Layer ' || i FROM generate_series(1, 5) AS i");
        m_map = std::make_unique<RecordingConnection>(Connected());
        m_start = m_map->log.Begin();
    }
    void TearDown() override
    {
        m_map.reset();
        MapTest::TearDown();
    }

    Changeset Changes() { return m_map->log.ChangesSince(m_start); }
    std::vector<std::string> Rows() { return RowsOf(Changes()); }

    std::unique_ptr<RecordingConnection> m_map;
    int m_start = 0;
};

} // namespace

TEST_F(ServerChangeLogTest, IsEmptyBeforeAnythingChanges)
{
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 99");
    EXPECT_TRUE(Changes().IsEmpty());
}

TEST_F(ServerChangeLogTest, HasEachChangedRowOnceWithTheNamesAsTheyAreSpelled)
{
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 1");
    m_map->Change("UPDATE Layers SET Code = 4, Visible = FALSE WHERE LayerID = 1");
    m_map->Change("DELETE FROM Layers WHERE LayerID = 2");
    m_map->Change("INSERT INTO LayerGroups (ID) VALUES (7)");
    EXPECT_THAT(
        Rows(), UnorderedElementsAre("Layers updated 1", "Layers deleted 2", "LayerGroups inserted 7"));
}

TEST_F(ServerChangeLogTest, NamesOnlyTheColumnsThatGotAnotherValue)
{
    m_map->Change("UPDATE Layers SET Name = 'a', Visible = TRUE, Selectable = FALSE WHERE LayerID = 1");
    EXPECT_THAT(ColumnsOf(Changes()), ElementsAre("Name", "Selectable"));
}

TEST_F(ServerChangeLogTest, HasNothingThatWasRolledBack)
{
    m_map->Run("BEGIN");
    m_map->Run("DELETE FROM Layers");
    EXPECT_EQ(Rows().size(), 5U) << "so far";
    m_map->Rollback();
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ServerChangeLogTest, HasWhatATransactionChangedSoFar)
{
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 1");
    m_map->Run("BEGIN");
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 2");
    EXPECT_THAT(Rows(), ElementsAre("Layers updated 1", "Layers updated 2"));
    m_map->Commit();
    EXPECT_THAT(Rows(), ElementsAre("Layers updated 1", "Layers updated 2"));
}

TEST_F(ServerChangeLogTest, StartedInATransactionHasItsRest)
{
    m_map->Run("BEGIN");
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 1");
    const int later = m_map->log.Begin();
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 2");
    EXPECT_THAT(RowsOf(m_map->log.ChangesSince(later)), ElementsAre("Layers updated 2"));
    m_map->Commit();
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 3");
    EXPECT_THAT(RowsOf(m_map->log.ChangesSince(later)), ElementsAre("Layers updated 2", "Layers updated 3"));
    EXPECT_EQ(Rows().size(), 3U);
}

TEST_F(ServerChangeLogTest, StartedInATransactionThatIsRolledBackHasTheNextOne)
{
    m_map->Run("BEGIN");
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 1");
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 2");
    const int later = m_map->log.Begin();
    m_map->Rollback();
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 4");
    EXPECT_THAT(RowsOf(m_map->log.ChangesSince(later)), ElementsAre("Layers updated 4"));
}

TEST_F(ServerChangeLogTest, HasNothingOfOtherPrograms)
{
    Owner().Run("UPDATE Layers SET Code = 9");
    EXPECT_THAT(Rows(), IsEmpty());
}

TEST_F(ServerChangeLogTest, HasATableThatIsMadeAndWidenedMeanwhile)
{
    StoreTable notes{
        QStringLiteral("Notes"),
        {{QStringLiteral("Layer"), StoreType::Whole}, {QStringLiteral("Page"), StoreType::Whole}},
        {QStringLiteral("Page"), QStringLiteral("Layer")}};
    m_map->Run("BEGIN");
    for (const QByteArray& statement : TableSql::Making(notes))
        m_map->Run(statement.constData());
    m_map->Run("INSERT INTO Notes VALUES (1, 2)");
    m_map->Run("ALTER TABLE Notes ADD COLUMN Text text");
    m_map->Run("INSERT INTO Notes VALUES (3, 4, 'x')");
    m_map->Commit();
    EXPECT_THAT(Rows(), ElementsAre("Notes inserted 2", "Notes inserted 4"));
}

TEST_F(ServerChangeLogTest, SaysThatItMissedChangesOfAColumnThatIsGone)
{
    Owner().Run("ALTER TABLE LayerGroups ADD COLUMN Later integer, ADD COLUMN Last integer");
    m_map->Run("BEGIN");
    m_map->Run("INSERT INTO LayerGroups (ID) VALUES (7)");
    m_map->Run("ALTER TABLE LayerGroups DROP COLUMN Later");
    m_map->Commit();
    EXPECT_EQ(ErrorOf([&] { Changes(); }), int(ErrorNumber::DatabaseFailure));
}

TEST_F(ServerChangeLogTest, SaysThatItMissedChanges)
{
    m_map->log.NoteGap();
    EXPECT_EQ(ErrorOf([&] { Changes(); }), int(ErrorNumber::DatabaseFailure));
    const int next = m_map->log.Begin();
    EXPECT_TRUE(m_map->log.ChangesSince(next).IsEmpty());
}

TEST_F(ServerChangeLogTest, IsPreparedWithoutRunningWhatSomebodyPutIntoTheSchema)
{
    Traps traps(Owner());
    traps.Lay(m_schema);
    RecordingConnection map(Connected());
    map.log.Begin();
    EXPECT_THAT(traps.Marks(), IsEmpty());
}

TEST_F(ServerChangeLogTest, IsAsBeforeWhenAChangeCannotBeRead)
{
    m_map->Change("UPDATE Layers SET Code = 3 WHERE LayerID = 1");
    m_map->Run("BEGIN");
    m_map->Run("UPDATE Layers SET Code = 3 WHERE LayerID = 2");
    m_map->Run("INSERT INTO pg_temp.orvane_log (statement, tab, columns) VALUES (99, 1, '1')");
    m_map->Run("ALTER TABLE orvane_names RENAME TO hidden"); // which describes unknown tables
    m_map->tables.Forget();
    EXPECT_NE(ErrorOf([&] { Changes(); }), 0);
    m_map->Rollback();
    EXPECT_THAT(Rows(), ElementsAre("Layers updated 1"));
}

TEST_F(ServerChangeLogTest, SaysThatARoleMayNotRecord)
{
    Owner().Run("CREATE ROLE \"Bea\" LOGIN; REVOKE TEMP ON DATABASE postgres FROM PUBLIC");
    Owner().Run("GRANT USAGE ON SCHEMA " + QuotedName(m_schema) + " TO \"Bea\"");
    {
        RecordingConnection bea(Connected(QStringLiteral("Bea")));
        const int start = bea.log.Begin();
        EXPECT_EQ(ErrorOf([&] { bea.log.ChangesSince(start); }), int(ErrorNumber::DatabaseFailure));
    }
    Owner().Run("GRANT TEMP ON DATABASE postgres TO PUBLIC; DROP OWNED BY \"Bea\"; DROP ROLE \"Bea\"");
}

} // namespace Orvane::Testing
