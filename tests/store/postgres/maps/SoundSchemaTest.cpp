// SPDX-License-Identifier: MIT
#include "store/postgres/maps/SoundSchema.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/maps/NoteFunction.h"
#include "store/postgres/maps/TableSql.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::HasSubstr;

// The sentence about what is wrong; empty if nothing is.
std::string FaultOf(ServerConnection& connection)
{
    connection.Run(QByteArray("SET search_path = ") + ServerConnection::SafePath);
    try {
        SoundSchema::Require(
            connection.Run(SoundSchema::Query(), SoundSchema::Values(connection.Schema())),
            connection.Errors());
        return {};
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::NotALayerDatabase));
        return error.Description().toStdString();
    }
}

class SoundSchemaTest : public MapTest
{
protected:
    void TearDown() override
    {
        if (!IsSkipped())
            Owner().Run("DROP SCHEMA IF EXISTS outside CASCADE");
        MapTest::TearDown();
    }

    std::string Fault() { return FaultOf(*Connected()); }
    // The fault after that was run.
    std::string FaultAfter(const char* sql)
    {
        EXPECT_EQ(Fault(), "");
        Owner().Run(sql);
        return Fault();
    }
};

} // namespace

TEST_F(SoundSchemaTest, HoldsForANewMapWithTablesOfAHost)
{
    StoreTable marks{
        QStringLiteral("Marks"),
        {{QStringLiteral("ID"), StoreType::Whole},
         {QStringLiteral("A"), StoreType::Whole, StoreColumn::Nulls::Allowed, QStringLiteral("-5")},
         {QStringLiteral("B"), StoreType::Real, StoreColumn::Nulls::Allowed, QStringLiteral("-0.25")},
         {QStringLiteral("C"), StoreType::Text, StoreColumn::Nulls::Refused,
          QStringLiteral("'it''s; (now())'")},
         {QStringLiteral("D"), StoreType::Flag, StoreColumn::Nulls::Refused, QStringLiteral("FALSE")},
         {QStringLiteral("E"), StoreType::Real, StoreColumn::Nulls::Allowed, QStringLiteral("1e100")},
         {QStringLiteral("F"), StoreType::Text, StoreColumn::Nulls::Allowed, QStringLiteral("NULL")}},
        {QStringLiteral("ID")},
        {QStringLiteral("C")},
        {QStringLiteral("A")}};
    Owner().RunTogether(TableSql::Making(marks));
    EXPECT_EQ(Fault(), "");
}

TEST_F(SoundSchemaTest, HoldsForATableThatAnotherProgramMade)
{
    Owner().Run("CREATE TABLE Theirs (ID serial4 UNIQUE, At timestamptz, Bytes bytea, Words text[])");
    Owner().Run("ALTER TABLE Theirs ALTER COLUMN ID DROP DEFAULT");
    EXPECT_EQ(Fault(), "");
}

TEST_F(SoundSchemaTest, FindsAView)
{
    EXPECT_THAT(FaultAfter("CREATE VIEW seen AS SELECT 1"), HasSubstr("\"seen\" is a view"));
}

TEST_F(SoundSchemaTest, FindsAViewInPlaceOfATable)
{
    Owner().Run("ALTER TABLE Layers RENAME TO hidden");
    Owner().Run("CREATE VIEW Layers AS SELECT * FROM hidden");
    EXPECT_THAT(Fault(), HasSubstr("\"layers\" is a view"));
}

TEST_F(SoundSchemaTest, FindsWhatIsNoOrdinaryTable)
{
    EXPECT_THAT(
        FaultAfter("CREATE TABLE parts (id integer) PARTITION BY RANGE (id)"),
        HasSubstr("\"parts\" is not an"));
}

TEST_F(SoundSchemaTest, FindsATableThatInherits)
{
    EXPECT_THAT(
        FaultAfter("CREATE TABLE child () INHERITS (LayerGroups)"),
        HasSubstr("\"child\" is not an ordinary"));
}

TEST_F(SoundSchemaTest, FindsATableThatHidesRows)
{
    EXPECT_THAT(
        FaultAfter("ALTER TABLE Layers ENABLE ROW LEVEL SECURITY"),
        HasSubstr("\"layers\" is not an ordinary"));
}

TEST_F(SoundSchemaTest, FindsAPolicyThatIsNotInForceYet)
{
    EXPECT_THAT(
        FaultAfter("CREATE POLICY p ON Layers USING (TRUE)"),
        HasSubstr("the table \"layers\" has a condition"));
}

TEST_F(SoundSchemaTest, FindsARule)
{
    EXPECT_THAT(
        FaultAfter("CREATE RULE r AS ON UPDATE TO Layers DO INSTEAD NOTHING"),
        HasSubstr("\"layers\" is not an ordinary"));
}

TEST_F(SoundSchemaTest, FindsATrigger)
{
    EXPECT_THAT(
        FaultAfter("CREATE TRIGGER t BEFORE UPDATE ON Layers FOR EACH ROW"
                   " EXECUTE FUNCTION suppress_redundant_updates_trigger()"),
        HasSubstr("the trigger \"t\""));
}

TEST_F(SoundSchemaTest, FindsATriggerOfItsOwnThatIsDisabled)
{
    EXPECT_THAT(
        FaultAfter("ALTER TABLE Layers DISABLE TRIGGER orvane_update"), HasSubstr("the trigger \"orvane_up"));
    Owner().Run("ALTER TABLE Layers ENABLE REPLICA TRIGGER orvane_update");
    EXPECT_THAT(Fault(), HasSubstr("the trigger \"orvane_update\""));
    Owner().Run("ALTER TABLE Layers ENABLE TRIGGER orvane_update");
    EXPECT_EQ(Fault(), "");
}

TEST_F(SoundSchemaTest, FindsATriggerOfItsOwnThatIsNotAsItWasMade)
{
    const QByteArray rows = " REFERENCING OLD TABLE AS old_rows NEW TABLE AS new_rows";
    const QByteArray calls = " FOR EACH STATEMENT EXECUTE FUNCTION orvane_note";
    const QByteArray rest = rows + calls;
    const QByteArrayList changes{
        "AFTER UPDATE ON Layers" + rest + "('layerid', 'name')",
        "AFTER UPDATE ON Layers" + rest + "('name', 'layerid')",
        "AFTER UPDATE ON Layers" + rest + "('layerid')",
        "AFTER UPDATE ON Layers" + rest + "()",
        "AFTER UPDATE ON Layers" + calls + "('layerid', 'layerid')",
        "AFTER UPDATE OF Name ON Layers" + calls + "('layerid', 'layerid')",
        "BEFORE UPDATE ON Layers" + calls + "('layerid', 'layerid')",
        "AFTER INSERT ON Layers REFERENCING NEW TABLE AS new_rows" + calls + "('layerid', 'layerid')"};
    for (const QByteArray& changed : changes) {
        Owner().Run("DROP TRIGGER orvane_update ON Layers");
        Owner().Run("CREATE TRIGGER orvane_update " + changed);
        EXPECT_THAT(Fault(), HasSubstr("the trigger \"orvane_update\"")) << changed.constData();
    }
    Owner().Run("DROP TRIGGER orvane_update ON Layers");
    Owner().Run("CREATE TRIGGER orvane_update AFTER UPDATE ON Layers" + rest + "('layerid', 'layerid')");
    EXPECT_EQ(Fault(), "");
}

TEST_F(SoundSchemaTest, FindsATriggerThatTakesAnothersName)
{
    EXPECT_THAT(FaultAfter("ALTER TRIGGER orvane_update ON Layers RENAME TO quiet"), HasSubstr("\"quiet\""));
}

TEST_F(SoundSchemaTest, FindsThatATriggerOfItsOwnIsMissing)
{
    for (const char* table : {"layers", "layergroups", "layergroupmembers"}) {
        Owner().Run(QByteArray("DROP TRIGGER orvane_delete ON ") + table);
        EXPECT_THAT(Fault(), HasSubstr(std::string("the table \"") + table + "\" lacks a trigger"));
        Owner().Run(QByteArray("DROP TABLE ") + table + " CASCADE");
    }
}

TEST_F(SoundSchemaTest, FindsAFunction)
{
    EXPECT_THAT(
        FaultAfter("CREATE FUNCTION extra() RETURNS integer LANGUAGE sql AS 'SELECT 1'"),
        HasSubstr("\"extra\""));
}

TEST_F(SoundSchemaTest, FindsAnotherTextOfTheFunction)
{
    EXPECT_THAT(
        FaultAfter("CREATE OR REPLACE FUNCTION orvane_note() RETURNS trigger LANGUAGE plpgsql"
                   " SET search_path = pg_catalog, pg_temp AS 'BEGIN RETURN NULL; END'"),
        HasSubstr("\"orvane_note\""));
}

TEST_F(SoundSchemaTest, FindsAFunctionThatRunsWithItsOwnersRights)
{
    EXPECT_THAT(FaultAfter("ALTER FUNCTION orvane_note() SECURITY DEFINER"), HasSubstr("\"orvane_note\""));
}

TEST_F(SoundSchemaTest, FindsAFunctionWithAnotherSearchPath)
{
    EXPECT_THAT(FaultAfter("ALTER FUNCTION orvane_note() RESET search_path"), HasSubstr("\"orvane_note\""));
}

TEST_F(SoundSchemaTest, FindsTypesOperatorsAndCollations)
{
    EXPECT_THAT(FaultAfter("CREATE DOMAIN word AS text"), HasSubstr("\"word\""));
    Owner().Run("DROP DOMAIN word");
    EXPECT_THAT(FaultAfter("CREATE TYPE pair AS (a integer, b integer)"), HasSubstr("\"pair\""));
    Owner().Run("DROP TYPE pair");
    EXPECT_THAT(
        FaultAfter("CREATE OPERATOR === (FUNCTION = int4eq, LEFTARG = integer, RIGHTARG = integer)"),
        HasSubstr("\"===\""));
    Owner().Run("DROP OPERATOR === (integer, integer)");
    EXPECT_THAT(FaultAfter("CREATE COLLATION other FROM \"C\""), HasSubstr("\"other\""));
}

TEST_F(SoundSchemaTest, FindsAComputedColumn)
{
    EXPECT_THAT(
        FaultAfter("ALTER TABLE Layers ADD COLUMN twice integer GENERATED ALWAYS AS (Code * 2) STORED"),
        HasSubstr("\"layers.twice\" is computed"));
}

TEST_F(SoundSchemaTest, FindsADefaultThatCallsAFunction)
{
    EXPECT_THAT(
        FaultAfter("ALTER TABLE Layers ALTER COLUMN Code SET DEFAULT random()::integer"),
        HasSubstr("\"layers.code\""));
}

TEST_F(SoundSchemaTest, FindsADefaultOfItsOwnTablesThatCallsAnotherFunction)
{
    Owner().Run("CREATE SCHEMA outside; CREATE FUNCTION outside.now() RETURNS timestamptz LANGUAGE sql AS"
                " 'SELECT pg_catalog.now()'");
    EXPECT_THAT(
        FaultAfter("ALTER TABLE orvane_map ALTER COLUMN made_at SET DEFAULT outside.now()"),
        HasSubstr("\"orvane_map.made_at\""));
}

TEST_F(SoundSchemaTest, FindsAColumnOfATypeFromElsewhere)
{
    Owner().Run("CREATE SCHEMA outside; CREATE DOMAIN outside.word AS text");
    EXPECT_THAT(FaultAfter("ALTER TABLE Layers ADD COLUMN w outside.word"), HasSubstr("\"layers.w\""));
}

TEST_F(SoundSchemaTest, FindsAnIndexThatIsComputedOrPartial)
{
    EXPECT_THAT(FaultAfter("CREATE INDEX computed ON Layers (lower(Name))"), HasSubstr("\"computed\""));
    Owner().Run("DROP INDEX computed");
    EXPECT_THAT(FaultAfter("CREATE INDEX part ON Layers (Code) WHERE Code > 3"), HasSubstr("\"part\""));
}

TEST_F(SoundSchemaTest, FindsACondition)
{
    EXPECT_THAT(
        FaultAfter("ALTER TABLE Layers ADD CHECK (Code < 1000)"),
        HasSubstr("the table \"layers\" has a condition"));
}

TEST_F(SoundSchemaTest, FindsATableElsewhereWhoseRowsGoWithLayers)
{
    EXPECT_THAT(
        FaultAfter("CREATE SCHEMA outside; CREATE TABLE outside.trap (id integer REFERENCES Layers ON DELETE "
                   "CASCADE)"),
        HasSubstr("\"layers\" is joined"));
}

TEST_F(SoundSchemaTest, FindsThatEverybodyMayCreateObjects)
{
    Owner().Run("GRANT CREATE ON SCHEMA " + QuotedName(m_schema) + " TO PUBLIC");
    EXPECT_THAT(Fault(), HasSubstr("everybody"));
}

} // namespace Orvane::Testing
