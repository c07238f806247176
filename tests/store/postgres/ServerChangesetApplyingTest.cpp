// SPDX-License-Identifier: MIT
#include "store/postgres/ServerChangesetApplying.h"

#include "store/any/RecordedRows.h"
#include "store/postgres/MapTest.h"
#include "store/postgres/RecordingConnection.h"
#include "store/postgres/maps/TableSql.h"
#include "support/Errors.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class ServerChangesetApplying : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run(
            "INSERT INTO Layers (LayerID, Name) SELECT i, 'Layer ' || i FROM generate_series(1, 5) AS i;"
            "INSERT INTO LayerGroups (ID, Name) VALUES (7, 'Group');"
            "INSERT INTO LayerGroupMembers SELECT 7, i, i FROM generate_series(1, 3) AS i");
        m_map = std::make_unique<RecordingConnection>(Connected());
    }
    void TearDown() override
    {
        m_map.reset();
        MapTest::TearDown();
    }

    Changeset Recorded(std::initializer_list<const char*> statements)
    {
        const int start = m_map->log.Begin();
        for (const char* sql : statements)
            m_map->Change(sql);
        Changeset changes = m_map->log.ChangesSince(start);
        m_map->log.End(start);
        return changes;
    }

    // In a transaction, which is rolled back if it returns false.
    bool Apply(const Changeset& changes)
    {
        m_map->Run("BEGIN");
        const bool isDone = ApplyChangeset(m_map->Connection(), m_map->tables, changes);
        isDone ? m_map->Commit() : m_map->Rollback();
        return isDone;
    }

    std::vector<std::string> Everything()
    {
        return Owner().Rows("SELECT l::text FROM Layers AS l UNION ALL SELECT g::text FROM LayerGroups AS g"
                            " UNION ALL SELECT m::text FROM LayerGroupMembers AS m ORDER BY 1");
    }

    void ExpectThereAndBack(std::initializer_list<const char*> statements)
    {
        const std::vector<std::string> before = Everything();
        const Changeset changes = Recorded(statements);
        const std::vector<std::string> after = Everything();
        ASSERT_NE(before, after);
        EXPECT_TRUE(Apply(changes.Inverted()));
        EXPECT_EQ(Everything(), before);
        EXPECT_TRUE(Apply(changes));
        EXPECT_EQ(Everything(), after);
    }

    void MakeNames(const char* rows)
    {
        StoreTable names{
            QStringLiteral("Names"),
            {{QStringLiteral("ID"), StoreType::Whole}, {QStringLiteral("Name")}},
            {QStringLiteral("ID")},
            {QStringLiteral("Name")}};
        Owner().RunTogether(TableSql::Making(names));
        Owner().Run(rows);
    }

    std::unique_ptr<RecordingConnection> m_map;
};

} // namespace

TEST_F(ServerChangesetApplying, BringsEveryKindOfChangeThereAndBack)
{
    ExpectThereAndBack(
        {"UPDATE Layers SET Name = 'It''s \"{\\,}\"', Visible = FALSE, MinVisScale = 0.1, Color = NULL"
         " WHERE LayerID < 3",
         "INSERT INTO Layers (LayerID) VALUES (9)", "INSERT INTO LayerGroupMembers VALUES (7, 9, 4)",
         "DELETE FROM Layers WHERE LayerID = 2", "UPDATE LayerGroups SET Expanded = TRUE"});
}

TEST_F(ServerChangesetApplying, BringsBackAGroupWithItsMembers)
{
    ExpectThereAndBack({"DELETE FROM LayerGroups"});
}

TEST_F(ServerChangesetApplying, ManyRowsTakeFewRoundTrips)
{
    Owner().Run("INSERT INTO Layers (LayerID) SELECT i FROM generate_series(10, 3000) AS i");
    const Changeset changes = Recorded(
        {"UPDATE Layers SET Color = LayerID",
         "INSERT INTO LayerGroupMembers SELECT 7, LayerID FROM Layers WHERE LayerID > 9",
         "UPDATE Layers SET Code = LayerID, Visible = FALSE WHERE LayerID > 2000"});
    m_map->Run("BEGIN");
    const quint64 before = m_map->Connection().RoundTrips();
    EXPECT_TRUE(ApplyChangeset(m_map->Connection(), m_map->tables, changes.Inverted()));
    EXPECT_EQ(m_map->Connection().RoundTrips(), before + 1);
    m_map->Commit();
    EXPECT_EQ(Owner().Text("SELECT sum(Color), sum(Code) FROM Layers"), "0|0");
}

TEST_F(ServerChangesetApplying, SplitsWhatIsLarge)
{
    const std::vector<std::string> before = Everything();
    const Changeset changes = Recorded(
        {"UPDATE LayerGroups SET Name = repeat(Name, 500000)",
         "INSERT INTO LayerGroups (ID, Name) VALUES (9, repeat('x', 2000000))"});
    EXPECT_TRUE(Apply(changes.Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(ServerChangesetApplying, KeepsTheOrderInWhichRowsNeedEachOther)
{
    StoreTable marks{
        QStringLiteral("Marks"),
        {{QStringLiteral("ID"), StoreType::Whole},
         {QStringLiteral("LayerID"),
          StoreType::Whole,
          StoreColumn::Nulls::Allowed,
          {},
          QStringLiteral("Layers"),
          QStringLiteral("LayerID")}},
        {QStringLiteral("ID")}};
    Owner().RunTogether(TableSql::Making(marks));
    Owner().Run("INSERT INTO Marks VALUES (1, 2)");
    const Changeset changes
        = Recorded({"UPDATE Marks SET LayerID = 3", "DELETE FROM Layers WHERE LayerID = 2"});
    ASSERT_TRUE(Apply(changes.Inverted()));
    EXPECT_EQ(Owner().Text("SELECT LayerID FROM Marks"), "2");
    ASSERT_TRUE(Apply(changes));
    EXPECT_EQ(Owner().Text("SELECT LayerID FROM Marks"), "3");
}

TEST_F(ServerChangesetApplying, RefusesARowThatSomebodyElseChanged)
{
    const Changeset changes = Recorded({"UPDATE Layers SET Color = LayerID"});
    Owner().Run("UPDATE Layers SET Color = 1000 WHERE LayerID = 2");
    const std::vector<std::string> before = Everything();
    EXPECT_FALSE(Apply(changes.Inverted()));
    EXPECT_EQ(Everything(), before);
}

TEST_F(ServerChangesetApplying, RefusesToDeleteARowThatSomebodyElseChanged)
{
    const Changeset changes = Recorded({"INSERT INTO Layers (LayerID) VALUES (9)"});
    Owner().Run("UPDATE Layers SET Color = 1000 WHERE LayerID = 9");
    EXPECT_FALSE(Apply(changes.Inverted()));
}

TEST_F(ServerChangesetApplying, MayFindARowGoneThatIsToGo)
{
    const Changeset changes = Recorded({"INSERT INTO Layers (LayerID) VALUES (9), (10)"});
    Owner().Run("DELETE FROM Layers WHERE LayerID = 9");
    EXPECT_TRUE(Apply(changes.Inverted()));
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers"), "5");
}

TEST_F(ServerChangesetApplying, RefusesARowInWhosePlaceAnotherStands)
{
    const Changeset changes = Recorded({"DELETE FROM Layers WHERE LayerID = 5"});
    Owner().Run("INSERT INTO Layers (LayerID, Name) VALUES (5, 'theirs')");
    EXPECT_FALSE(Apply(changes.Inverted()));
    EXPECT_EQ(Owner().Text("SELECT Name FROM Layers WHERE LayerID = 5"), "theirs");
}

TEST_F(ServerChangesetApplying, RefusesARowThatWouldReferToNone)
{
    const Changeset changes = Recorded({"DELETE FROM LayerGroupMembers WHERE LayerID = 2"});
    Owner().Run("DELETE FROM Layers WHERE LayerID = 2");
    EXPECT_FALSE(Apply(changes.Inverted()));
}

TEST_F(ServerChangesetApplying, BringsBackUniqueValuesThatChangedPlaces)
{
    MakeNames("INSERT INTO Names VALUES (1, 'a'), (2, 'b')");
    const Changeset changes = Recorded(
        {"UPDATE Names SET Name = 'c' WHERE ID = 1", "UPDATE Names SET Name = 'a' WHERE ID = 2",
         "INSERT INTO Names VALUES (3, 'b')", "UPDATE Layers SET Color = 4"});
    ASSERT_TRUE(Apply(changes.Inverted()));
    EXPECT_THAT(Owner().Rows("SELECT * FROM Names ORDER BY ID"), ElementsAre("1|a", "2|b"));
    EXPECT_EQ(Owner().Text("SELECT sum(Color) FROM Layers"), "0");
    ASSERT_TRUE(Apply(changes));
    EXPECT_THAT(Owner().Rows("SELECT * FROM Names ORDER BY ID"), ElementsAre("1|c", "2|a", "3|b"));
}

TEST_F(ServerChangesetApplying, RefusesAUniqueValueThatAnotherRowHasNow)
{
    MakeNames("INSERT INTO Names VALUES (1, 'a')");
    const Changeset changes = Recorded({"UPDATE Names SET Name = 'b'", "UPDATE Layers SET Color = 4"});
    Owner().Run("INSERT INTO Names VALUES (2, 'a')");
    EXPECT_FALSE(Apply(changes.Inverted()));
    EXPECT_EQ(Owner().Text("SELECT sum(Color) FROM Layers"), "20");
}

TEST_F(ServerChangesetApplying, RaisesForATableThatIsGone)
{
    MakeNames("INSERT INTO Names VALUES (1, 'a')");
    const Changeset changes = Recorded({"DELETE FROM Names"});
    Owner().Run("DROP TABLE Names");
    EXPECT_EQ(
        ErrorOf([&] { ApplyChangeset(m_map->Connection(), m_map->tables, changes.Inverted()); }),
        int(ErrorNumber::DatabaseFailure));
}

TEST_F(ServerChangesetApplying, RecordsWhatItChanges)
{
    const Changeset changes = Recorded({"INSERT INTO Layers (LayerID) VALUES (9)"});
    Owner().Run("INSERT INTO LayerGroupMembers VALUES (7, 9)");
    const int start = m_map->log.Begin();
    ASSERT_TRUE(Apply(changes.Inverted()));
    EXPECT_THAT(
        RowsOf(m_map->log.ChangesSince(start)),
        testing::UnorderedElementsAre("Layers deleted 9", "LayerGroupMembers deleted 7"));
}

} // namespace Orvane::Testing
