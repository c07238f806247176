// SPDX-License-Identifier: MIT
#include "store/postgres/maps/KnownTables.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/Traps.h"
#include "store/postgres/maps/NoteFunction.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

StoreTable Marks()
{
    using Nulls = StoreColumn::Nulls;
    const QString layers = QStringLiteral("Layers");
    const QString layerID = QStringLiteral("LayerID");
    const QString markID = QStringLiteral("MarkID");
    return {
        QStringLiteral("PlaceMarks"),
        {{markID, StoreType::Whole},
         {layerID, StoreType::Whole, Nulls::Refused, {}, layers, layerID},
         {QStringLiteral("Title"), StoreType::Text, Nulls::Refused, QStringLiteral("'it''s'")},
         {QStringLiteral("IsShown"), StoreType::Flag, Nulls::Refused, QStringLiteral("1")},
         {QStringLiteral("Height"), StoreType::Real}},
        {markID},
        {QStringLiteral("Title")}};
}

class KnownTablesTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        m_connection = Connected();
        m_tables = std::make_unique<KnownTables>(*m_connection);
    }
    void TearDown() override
    {
        m_tables.reset();
        m_connection.reset();
        MapTest::TearDown();
    }

    const KnownTable* Table(const char* name) { return m_tables->Find(QString::fromUtf8(name)); }
    void Prepare(const StoreTable& table)
    {
        Owner().RunTogether(StatementsToPrepare(*m_tables, table));
        m_tables->Forget();
    }

    std::unique_ptr<ServerConnection> m_connection;
    std::unique_ptr<KnownTables> m_tables;
};

} // namespace

TEST_F(KnownTablesTest, FindsATableInAnyCase)
{
    const KnownTable* layers = Table("LAYERS");
    ASSERT_TRUE(layers);
    EXPECT_EQ(layers->spelled, QStringLiteral("Layers"));
    EXPECT_EQ(Table("layers"), layers);
    EXPECT_EQ(m_tables->FindNumber(layers->number), layers);
    EXPECT_FALSE(Table("Rivers"));
    EXPECT_FALSE(m_tables->FindNumber(1));
}

TEST_F(KnownTablesTest, AreReadWithoutRunningWhatSomebodyPutIntoTheSchema)
{
    Owner().Run("CREATE ROLE \"Vera\" LOGIN; GRANT USAGE ON SCHEMA " + QuotedName(m_schema) + " TO \"Vera\"");
    Owner().Run("GRANT SELECT ON ALL TABLES IN SCHEMA " + QuotedName(m_schema) + " TO \"Vera\"");
    {
        Traps traps(Owner());
        traps.Lay(m_schema);
        const auto vera = Connected(QStringLiteral("Vera"));
        EXPECT_EQ(KnownTables(*vera).All().size(), 3U);
        EXPECT_THAT(traps.Marks(), IsEmpty());
        EXPECT_EQ(vera->Run("SELECT count(*) FROM Layers").Number(0, 0), 0) << "found as before";
    }
    Owner().Run("DROP OWNED BY \"Vera\"; DROP ROLE \"Vera\"");
}

TEST_F(KnownTablesTest, HasNoTablesOfTheStoreItself)
{
    EXPECT_FALSE(Table("orvane_map"));
    EXPECT_EQ(m_tables->All().size(), 3U);
}

TEST_F(KnownTablesTest, KnowsColumnsAndKeysAsTheyAreSpelled)
{
    const KnownTable* members = Table("LayerGroupMembers");
    ASSERT_TRUE(members);
    EXPECT_THAT(members->keys, ElementsAre(0, 1));
    EXPECT_EQ(members->columns[0].spelled, QStringLiteral("GroupID"));
    EXPECT_EQ(members->Find(QStringLiteral("ORDERING")), 2);
    EXPECT_EQ(members->Find(QStringLiteral("Order")), -1);
}

TEST_F(KnownTablesTest, KnowsWhatColumnsHold)
{
    const KnownTable* layers = Table("Layers");
    ASSERT_TRUE(layers);
    const auto type = [&](const char* name) {
        return layers->columns[size_t(layers->Find(QString::fromUtf8(name)))].type;
    };
    EXPECT_EQ(type("LayerID"), StoreType::Whole);
    EXPECT_EQ(type("Name"), StoreType::Text);
    EXPECT_EQ(type("Visible"), StoreType::Flag);
    EXPECT_EQ(type("MinVisScale"), StoreType::Real);
}

TEST_F(KnownTablesTest, ReadsTheTablesOnceUntilItForgetsThem)
{
    ASSERT_FALSE(Table("Later"));
    Owner().Run("CREATE TABLE Later (ID integer)");
    EXPECT_FALSE(Table("Later"));
    m_tables->Forget();
    ASSERT_TRUE(Table("Later"));
    EXPECT_THAT(Table("Later")->keys, IsEmpty());
    EXPECT_FALSE(Table("Later")->isNoted);
}

TEST_F(KnownTablesTest, MakesATableOfTheHost)
{
    Prepare(Marks());
    const KnownTable* marks = Table("placemarks");
    ASSERT_TRUE(marks);
    EXPECT_EQ(marks->spelled, QStringLiteral("PlaceMarks"));
    EXPECT_TRUE(marks->isNoted);
    EXPECT_THAT(marks->keys, ElementsAre(0));
    EXPECT_THAT(StatementsToPrepare(*m_tables, Marks()), IsEmpty()) << "it is complete";
}

TEST_F(KnownTablesTest, OthersHearThatTheTablesHaveChanged)
{
    const auto other = Other();
    const std::string schema = other->Text("SELECT oid FROM pg_namespace WHERE nspname = current_schema()");
    other->Run("LISTEN " + NoteFunction::Channel(QByteArray::fromStdString(schema).toUInt()));
    Prepare(Marks());
    other->Run("SELECT 1");
    EXPECT_THAT(other->Notices(), ElementsAre(NoteFunction::SchemaChanged));
}

TEST_F(KnownTablesTest, NumbersRowsAndFillsInDefaults)
{
    Prepare(Marks());
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (4)");
    Owner().Run("INSERT INTO PlaceMarks (LayerID) VALUES (4)");
    EXPECT_EQ(Owner().Text("SELECT * FROM PlaceMarks"), "1|4|it's|t|");
}

TEST_F(KnownTablesTest, TellsWhichLayersRowsOfTheHostBelongTo)
{
    Prepare(Marks());
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (4); DELETE FROM orvane_news;"
                "INSERT INTO PlaceMarks (LayerID) VALUES (4)");
    EXPECT_EQ(Owner().Text("SELECT tab, ids FROM orvane_news"), "placemarks|4");
}

TEST_F(KnownTablesTest, RowsGoWithTheRowTheyReferToAndAreFoundByAnIndex)
{
    Prepare(Marks());
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (4); INSERT INTO PlaceMarks (LayerID) VALUES (4);"
                "DELETE FROM Layers");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM PlaceMarks"), "0");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM pg_indexes WHERE indexname = 'placemarkslayerididx'"), "1");
}

TEST_F(KnownTablesTest, RefusesValuesThatMustDiffer)
{
    Prepare(Marks());
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (4); INSERT INTO PlaceMarks (LayerID) VALUES (4)");
    EXPECT_EQ(Owner().Failure("INSERT INTO PlaceMarks (LayerID) VALUES (4)"), "23505");
}

TEST_F(KnownTablesTest, AddsTheColumnsThatAnOlderTableLacks)
{
    StoreTable older = Marks();
    older.columns.pop_back();
    Prepare(older);
    Owner().Run("INSERT INTO Layers (LayerID) VALUES (4); INSERT INTO PlaceMarks (LayerID) VALUES (4)");
    Prepare(Marks());
    ASSERT_GE(Table("PlaceMarks")->Find(QStringLiteral("height")), 0);
    EXPECT_EQ(Table("PlaceMarks")->columns.back().spelled, QStringLiteral("Height"));
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM PlaceMarks WHERE Height IS NULL"), "1");
}

TEST_F(KnownTablesTest, GivesATableOfAnotherProgramWhatItLacks)
{
    Owner().Run("CREATE TABLE PlaceMarks (MarkID integer PRIMARY KEY, LayerID integer)");
    Prepare(Marks());
    EXPECT_TRUE(Table("PlaceMarks")->isNoted);
    EXPECT_EQ(Table("PlaceMarks")->spelled, QStringLiteral("PlaceMarks"));
    Owner().Run("DELETE FROM orvane_news; INSERT INTO PlaceMarks (MarkID, LayerID) VALUES (1, 3)");
    EXPECT_EQ(Owner().Text("SELECT tab, ids FROM orvane_news"), "placemarks|3");
}

TEST_F(KnownTablesTest, NamesCannotEndTheirQuotes)
{
    StoreTable table{QStringLiteral("Say \"No\""), {{QStringLiteral("It's; --"), StoreType::Whole}}, {}};
    table.key = {table.columns.front().name};
    table.indexed = table.key;
    Prepare(table);
    const KnownTable* known = Table("say \"no\"");
    ASSERT_TRUE(known);
    EXPECT_EQ(known->spelled, table.name);
    EXPECT_EQ(known->columns.front().spelled, table.columns.front().name);
}

} // namespace Orvane::Testing
