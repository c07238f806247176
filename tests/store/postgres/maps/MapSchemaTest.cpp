// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapSchema.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/maps/TableSql.h"

#include <OrvaneShellLib/LayerColumns.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MapSchemaTest : public MapTest
{
protected:
    // What the map consists of, but not its rows: tables, columns, indexes and constraints.
    std::vector<std::string> Parts()
    {
        return Owner().Rows(
            "SELECT c.relname, a.attname, format_type(a.atttypid, a.atttypmod), a.attnotnull,"
            " pg_get_expr(d.adbin, d.adrelid) FROM pg_class c JOIN pg_attribute a ON a.attrelid = c.oid"
            " LEFT JOIN pg_attrdef d ON d.adrelid = c.oid AND d.adnum = a.attnum"
            " WHERE c.relnamespace = (SELECT oid FROM pg_namespace WHERE nspname = current_schema()) AND "
            "a.attnum > 0 ORDER BY 1, a.attnum");
    }
};

} // namespace

TEST_F(MapSchemaTest, MarksTheSchemaAsAMapOfThisVersion)
{
    EXPECT_EQ(
        Owner().Text("SELECT version, title, made_by FROM orvane_map"),
        std::to_string(MapSchema::CurrentVersion) + "|Town|orvane");
}

TEST_F(MapSchemaTest, HasTheColumnsOfLayersWithTheirTypes)
{
    const std::vector<std::string> columns = Owner().Rows(
        "SELECT spelled, data_type FROM information_schema.columns"
        " JOIN orvane_names USING (table_name, column_name)"
        " WHERE table_name = 'layers' AND table_schema = current_schema() ORDER BY ordinal_position");
    ASSERT_EQ(columns.size(), LayerColumns.size());
    EXPECT_EQ(columns[0], "LayerID|integer");
    EXPECT_EQ(columns[1], "Name|text");
    EXPECT_EQ(columns[3], "Visible|boolean");
    EXPECT_EQ(columns[FindLayerColumn("MinVisScale")], "MinVisScale|double precision");
}

TEST_F(MapSchemaTest, ANewLayerHasTheDefaults)
{
    Owner().Run("INSERT INTO Layers (Name) VALUES ('Roads')");
    EXPECT_EQ(
        Owner().Text("SELECT LayerID, Visible, Locked, FillBackColor, MinVisScale FROM Layers"),
        "1|t|f|16777215|0");
}

TEST_F(MapSchemaTest, NamesAreSortedWithoutCaseAndComparedWithIt)
{
    Owner().Run("INSERT INTO Layers (Name) VALUES ('b'), ('A'), ('a'), ('B'), ('é'), ('z')");
    EXPECT_THAT(
        Owner().Rows("SELECT Name FROM Layers ORDER BY Name"), ElementsAre("A", "a", "B", "b", "é", "z"));
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE Name = 'a'"), "1");
}

TEST_F(MapSchemaTest, OtherTextsAreSortedByTheirBytes)
{
    Owner().Run("INSERT INTO LayerGroups (Name) VALUES ('b'), ('A'), ('a'), ('B')");
    EXPECT_THAT(Owner().Rows("SELECT Name FROM LayerGroups ORDER BY Name"), ElementsAre("A", "B", "a", "b"));
}

TEST_F(MapSchemaTest, MembersGoWithTheirLayerAndTheirGroup)
{
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (1), (2), (3)");
    Owner().Run("INSERT INTO LayerGroups (ID) VALUES (5), (6)");
    Owner().Run("INSERT INTO LayerGroupMembers VALUES (5, 1), (5, 2), (6, 2), (6, 3)");
    Owner().Run("DELETE FROM Layers WHERE LayerID = 2");
    Owner().Run("DELETE FROM LayerGroups WHERE ID = 6");
    EXPECT_THAT(Owner().Rows("SELECT GroupID, LayerID FROM LayerGroupMembers"), ElementsAre("5|1"));
}

TEST_F(MapSchemaTest, AMemberNeedsItsLayerAtTheEndOfTheTransaction)
{
    Owner().Run("INSERT INTO LayerGroups (ID) VALUES (5)");
    EXPECT_EQ(Owner().Failure("INSERT INTO LayerGroupMembers VALUES (5, 1)"), "23503");
    Owner().Run("BEGIN; SET CONSTRAINTS ALL DEFERRED; INSERT INTO LayerGroupMembers VALUES (5, 1);"
                "INSERT INTO Layers (LayerID) VALUES (1); COMMIT");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM LayerGroupMembers"), "1");
}

TEST_F(MapSchemaTest, IndexesFindEveryReference)
{
    EXPECT_THAT(
        Owner().Rows("SELECT indexname FROM pg_indexes WHERE schemaname = current_schema()"
                     " AND tablename LIKE 'layer%' ORDER BY 1"),
        ElementsAre(
            "grouporderingidx", "layergroupmembers_pkey", "layergroups_pkey", "layernameidx", "layers_pkey",
            "memberlayeridx", "memberorderingidx"));
}

TEST_F(MapSchemaTest, AMapOfTheCurrentVersionNeedsNoMigration)
{
    EXPECT_THAT(MapSchema::Migration(MapSchema::CurrentVersion), IsEmpty());
}

TEST_F(MapSchemaTest, AMapOfTheFirstVersionBecomesLikeANewOne)
{
    const std::vector<std::string> parts = Parts();
    Owner().Run("INSERT INTO Layers (Name) VALUES ('Roads')");
    for (const char* index : {"LayerNameIDX", "GroupOrderingIDX", "MemberOrderingIDX", "MemberLayerIDX"})
        Owner().Run(QByteArray("DROP INDEX ") + index);
    for (const LayerColumn& column : LayerColumns) {
        if (column.since > 1)
            Owner().Run(QByteArray("ALTER TABLE Layers DROP COLUMN ") + column.name);
    }
    Owner().Run("UPDATE orvane_map SET version = 1");
    Owner().RunTogether(MapSchema::Migration(1));
    EXPECT_EQ(Parts(), parts);
    EXPECT_EQ(Owner().Text("SELECT version FROM orvane_map"), std::to_string(MapSchema::CurrentVersion));
    EXPECT_EQ(Owner().Text("SELECT Name FROM Layers"), "Roads");
}

TEST_F(MapSchemaTest, MayBeRenamed)
{
    Owner().Run("ALTER SCHEMA " + QuotedName(m_schema) + " RENAME TO renamed");
    Owner().Run("SET search_path = renamed, pg_temp");
    Owner().Run("INSERT INTO Layers (Name) VALUES ('Roads')");
    EXPECT_EQ(Owner().Text("SELECT ids FROM orvane_news"), "1");
    Owner().Run("ALTER SCHEMA renamed RENAME TO " + QuotedName(m_schema));
}

} // namespace Orvane::Testing
