// SPDX-License-Identifier: MIT
#include "store/postgres/maps/NoteFunction.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/Traps.h"
#include "store/postgres/maps/TableSql.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;

class NoteFunctionTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run(
            "INSERT INTO Layers (LayerID, Name) SELECT i, 'Layer ' || i FROM generate_series(1, 5) AS i");
        Owner().Run("INSERT INTO LayerGroups (ID, Name) VALUES (7, 'Roads'), (8, 'Rivers')");
        Owner().Run("INSERT INTO LayerGroupMembers VALUES (7, 1, 1), (7, 2, 2), (8, 2, 1)");
        Owner().Run("DELETE FROM orvane_news");
    }

    std::vector<std::string> News() { return Owner().Rows("SELECT tab, ids FROM orvane_news ORDER BY id"); }

    QByteArray ChannelOfMap()
    {
        return NoteFunction::Channel(
            QByteArray::fromStdString(
                Owner().Text("SELECT oid FROM pg_namespace WHERE nspname = current_schema()"))
                .toUInt());
    }

    void Record()
    {
        for (const QByteArray& sql : NoteFunction::LogCreation())
            Owner().Run(sql);
        Owner().Run("SET orvane.records = 'on'");
    }
    // What a transaction changed, statement by statement.
    std::vector<std::string> Recorded(const char* statements)
    {
        Owner().Run("BEGIN");
        Owner().Run(statements);
        std::vector<std::string> rows = Owner().Rows(
            "SELECT statement, tab::regclass, substring(before, 'Layer .|Rivers|New|Ninth'),"
            " substring(after, 'Layer .|Rivers|New|Ninth') FROM orvane_log WHERE columns IS NULL"
            " ORDER BY statement, before::text, after::text");
        Owner().Run("COMMIT");
        return rows;
    }
};

} // namespace

TEST_F(NoteFunctionTest, TellsWhichLayersChanged)
{
    Owner().Run("UPDATE Layers SET Code = 4 WHERE LayerID IN (2, 3)");
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (9)");
    Owner().Run("DELETE FROM Layers WHERE LayerID = 4");
    EXPECT_THAT(News(), ElementsAre("layers|2,3", "layers|9", "layers|4"));
}

TEST_F(NoteFunctionTest, TellsWhichGroupsChanged)
{
    Owner().Run("UPDATE LayerGroups SET GroupOrdering = 3");
    EXPECT_THAT(News(), ElementsAre("layergroups|7,8"));
}

TEST_F(NoteFunctionTest, ExpandingGroupsIsNoNews)
{
    Owner().Run("UPDATE LayerGroups SET Expanded = TRUE");
    Owner().Run("UPDATE LayerGroups SET Expanded = FALSE WHERE ID = 7");
    EXPECT_THAT(News(), IsEmpty());
    Owner().Run("UPDATE LayerGroups SET Expanded = FALSE, Name = 'Streams' WHERE ID = 8");
    EXPECT_THAT(News(), ElementsAre("layergroups|8"));
}

TEST_F(NoteFunctionTest, TellsTheLayersOfMembersBeforeAndAfter)
{
    Owner().Run("UPDATE LayerGroupMembers SET LayerID = 3 WHERE GroupID = 8");
    EXPECT_THAT(News(), ElementsAre("layergroupmembers|2,3"));
}

TEST_F(NoteFunctionTest, TellsWhatGoesWithARemovedRow)
{
    Owner().Run("DELETE FROM Layers WHERE LayerID = 2");
    EXPECT_THAT(News(), testing::UnorderedElementsAre("layers|2", "layergroupmembers|2"));
}

TEST_F(NoteFunctionTest, IsSilentWhenNoRowChanged)
{
    Owner().Run("UPDATE Layers SET Code = 4 WHERE LayerID = 99");
    EXPECT_THAT(News(), IsEmpty());
}

TEST_F(NoteFunctionTest, NamesNoLayersWhenThereAreTooMany)
{
    Owner().Run("INSERT INTO Layers (LayerID) SELECT i FROM generate_series(100000, 102000) AS i");
    EXPECT_THAT(News(), ElementsAre("layers|*"));
}

TEST_F(NoteFunctionTest, NamesNoLayersWhenARowHasNone)
{
    StoreTable marks{QStringLiteral("Marks"), {{QStringLiteral("LayerID"), StoreType::Whole}}, {}};
    marks.columns.push_back({QStringLiteral("ID"), StoreType::Whole});
    marks.key = {QStringLiteral("ID")};
    Owner().RunTogether(TableSql::Making(marks));
    Owner().Run("INSERT INTO Marks (LayerID) VALUES (NULL)");
    EXPECT_THAT(News(), ElementsAre("marks|*"));
}

TEST_F(NoteFunctionTest, RecordsATableWhoseColumnsAreNamedAsItsOwn)
{
    StoreTable odd{QStringLiteral("Odd"), {{QStringLiteral("ID"), StoreType::Whole}}, {QStringLiteral("ID")}};
    for (const char* name : {"number", "ids", "old_rows", "new_rows", "statement", "note", "k", "r"})
        odd.columns.push_back({QString::fromUtf8(name), StoreType::Whole});
    Owner().RunTogether(TableSql::Making(odd));
    Record();
    Owner().Run("INSERT INTO Odd (ID) VALUES (1), (2); DELETE FROM Odd WHERE ID = 1");
    Owner().Run("BEGIN; UPDATE Odd SET old_rows = 7, new_rows = 8");
    EXPECT_EQ(
        Owner().Text("SELECT before, after FROM orvane_log WHERE columns IS NULL"),
        "(2,,,,,,,,)|(2,,,7,8,,,,)");
    Owner().Run("COMMIT");
}

TEST_F(NoteFunctionTest, TellsOnceThatAllMayHaveChangedAfterAHundredStatements)
{
    Owner().Run(
        "DO $$ BEGIN FOR i IN 1 .. 300 LOOP UPDATE Layers SET Code = i WHERE LayerID = 3; END LOOP; END $$");
    const std::vector<std::string> news = News();
    ASSERT_EQ(news.size(), 101U);
    EXPECT_EQ(news[99], "layers|3");
    EXPECT_EQ(news[100], "*|*");
    Owner().Run("UPDATE Layers SET Code = 0 WHERE LayerID = 3");
    EXPECT_EQ(News().back(), "layers|3") << "the next transaction counts from the start";
}

TEST_F(NoteFunctionTest, TellsWhoChangedRowsAndInWhichTransaction)
{
    Owner().Run("BEGIN; SET LOCAL orvane.token = '6b1bdfd4-5d7c-4a3d-9a0e-0c3f1d2e4b5a';"
                "UPDATE Layers SET Code = 1 WHERE LayerID = 1; COMMIT");
    EXPECT_EQ(
        Owner().Text("SELECT author, token, tx < pg_current_xact_id() FROM orvane_news"),
        "orvane|6b1bdfd4-5d7c-4a3d-9a0e-0c3f1d2e4b5a|t");
}

TEST_F(NoteFunctionTest, NotifiesOthersWhenItIsCommitted)
{
    const auto other = Other();
    other->Run("LISTEN " + ChannelOfMap());
    Owner().Run("BEGIN; UPDATE Layers SET Code = 1 WHERE LayerID = 4");
    other->Run("SELECT 1");
    EXPECT_THAT(other->Notices(), IsEmpty());
    Owner().Run("COMMIT");
    other->Run("SELECT 1");
    EXPECT_THAT(other->Notices(), ElementsAre(EndsWith(" layers 4")));
}

TEST_F(NoteFunctionTest, ForgetsWhatIsRolledBack)
{
    const auto other = Other();
    other->Run("LISTEN " + ChannelOfMap());
    Owner().Run("BEGIN; UPDATE Layers SET Code = 1 WHERE LayerID = 4; ROLLBACK");
    other->Run("SELECT 1");
    EXPECT_THAT(other->Notices(), IsEmpty());
    EXPECT_THAT(News(), IsEmpty());
}

TEST_F(NoteFunctionTest, RecordsRowsBeforeAndAfter)
{
    Record();
    EXPECT_THAT(
        Recorded("UPDATE Layers SET Name = 'New' WHERE LayerID = 1;"
                 "INSERT INTO Layers (LayerID, Name) VALUES (9, 'Ninth');"
                 "DELETE FROM Layers WHERE LayerID = 5"),
        ElementsAre("1|layers|Layer 1|New", "2|layers||Ninth", "3|layers|Layer 5|"));
}

TEST_F(NoteFunctionTest, RecordsARowWithAnotherKeyAsAnotherRow)
{
    Record();
    EXPECT_THAT(
        Recorded("UPDATE Layers SET LayerID = 50 WHERE LayerID = 5"),
        ElementsAre("1|layers|Layer 5|", "1|layers||Layer 5"));
}

TEST_F(NoteFunctionTest, RecordsWhatGoesWithARemovedRow)
{
    Record();
    EXPECT_THAT(
        Recorded("DELETE FROM LayerGroups WHERE ID = 8"),
        testing::UnorderedElementsAre(EndsWith("|layergroups|Rivers|"), EndsWith("|layergroupmembers||")));
}

TEST_F(NoteFunctionTest, RecordsNothingOfWhatWasRolledBack)
{
    Record();
    EXPECT_THAT(
        Recorded("SAVEPOINT s; DELETE FROM Layers WHERE LayerID = 1; ROLLBACK TO s;"
                 "DELETE FROM Layers WHERE LayerID = 4"),
        ElementsAre("1|layers|Layer 4|"));
}

TEST_F(NoteFunctionTest, RecordsNothingUnlessItIsAsked)
{
    Record();
    Owner().Run("SET orvane.records = 'off'");
    EXPECT_THAT(Recorded("DELETE FROM Layers WHERE LayerID = 4"), IsEmpty());
    const auto other = Other();
    other->Run("SET orvane.records = 'on'; DELETE FROM Layers WHERE LayerID = 3");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM orvane_log"), "0");
}

TEST_F(NoteFunctionTest, TellsOfNewTablesWithoutRunningWhatSomebodyPutIntoTheSchema)
{
    Traps traps(Owner());
    traps.Lay(m_schema);
    const QByteArray number = QByteArray::fromStdString(
        Owner().Text("SELECT oid FROM pg_namespace WHERE nspname = current_schema()"));
    Owner().Run("LISTEN " + NoteFunction::Channel(number.toUInt()));
    Owner().Run(NoteFunction::SchemaNotice());
    EXPECT_THAT(Owner().Notices(), ElementsAre(NoteFunction::SchemaChanged));
    EXPECT_THAT(traps.Marks(), IsEmpty());
}

TEST_F(NoteFunctionTest, RecordsForARoleThatOwnsNothing)
{
    Owner().Run("CREATE ROLE \"Anna\" LOGIN");
    Owner().Run(
        "GRANT USAGE ON SCHEMA " + QuotedName(m_schema)
        + " TO \"Anna\";"
          "GRANT SELECT, INSERT, UPDATE, DELETE ON Layers, LayerGroups, LayerGroupMembers TO \"Anna\";"
          "GRANT SELECT, INSERT ON orvane_news TO \"Anna\"");
    const auto anna = Other("Anna");
    for (const QByteArray& sql : NoteFunction::LogCreation())
        anna->Run(sql);
    anna->Run("SET orvane.records = 'on'; BEGIN; DELETE FROM LayerGroups WHERE ID = 7");
    EXPECT_EQ(anna->Text("SELECT count(*) FROM orvane_log WHERE columns IS NULL"), "3");
    anna->Run("COMMIT");
    EXPECT_EQ(Owner().Text("SELECT DISTINCT author FROM orvane_news"), "Anna");
    Owner().Run("DROP OWNED BY \"Anna\"; DROP ROLE \"Anna\"");
}

} // namespace Orvane::Testing
