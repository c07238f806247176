// SPDX-License-Identifier: MIT
#include "store/postgres/maps/MapCatalogue.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/Traps.h"
#include "store/postgres/maps/MapPresence.h"
#include "support/Errors.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class MapCatalogueTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (!IsSkipped())
            m_connection = Connected();
    }
    void TearDown() override
    {
        if (m_connection)
            Owner().Run("DROP SCHEMA IF EXISTS other CASCADE");
        m_connection.reset();
        MapTest::TearDown();
    }

    std::vector<QString> Names(ServerConnection& connection) const
    {
        std::vector<QString> names;
        for (const ListedMap& map : MapCatalogue::Maps(connection))
            names.push_back(map.name);
        return names;
    }
    std::vector<QString> Names() { return Names(*m_connection); }
    void MakeOther()
    {
        const auto link = Other();
        link->RunTogether(MapSchema::Creation(QStringLiteral("other"), QStringLiteral("Another")));
    }

    std::unique_ptr<ServerConnection> m_connection;
};

} // namespace

TEST_F(MapCatalogueTest, ListsMapsWithWhatIsKnownAboutThem)
{
    Owner().Run("CREATE SCHEMA nomap");
    Owner().Run("INSERT INTO Layers (Name) VALUES ('Roads')");
    const std::vector<ListedMap> maps = MapCatalogue::Maps(*m_connection);
    Owner().Run("DROP SCHEMA nomap");
    ASSERT_EQ(maps.size(), 1U);
    const ListedMap& map = maps.front();
    EXPECT_EQ(map.name, m_schema);
    EXPECT_EQ(map.title, QStringLiteral("Town"));
    EXPECT_EQ(map.owner, QStringLiteral("orvane"));
    EXPECT_EQ(map.version, MapSchema::CurrentVersion);
    EXPECT_TRUE(map.isOwn && map.mayEdit);
    EXPECT_TRUE(map.changed.isValid());
    EXPECT_THAT(map.users, IsEmpty());
}

TEST_F(MapCatalogueTest, OperatorsOfOthersAreNotUsed)
{
    Owner().Run("CREATE FUNCTION public.spring(oid, regtype) RETURNS boolean LANGUAGE sql AS 'SELECT "
                "1 / 0 = 1'");
    Owner().Run("CREATE OPERATOR public.= (LEFTARG = oid, RIGHTARG = regtype, FUNCTION = public.spring)");
    m_connection->Run("SET search_path = public, pg_catalog");
    const std::vector<QString> names = Names();
    Owner().Run("DROP OPERATOR public.= (oid, regtype)");
    Owner().Run("DROP FUNCTION public.spring");
    EXPECT_THAT(names, ElementsAre(m_schema));
    EXPECT_TRUE(m_connection->Run("SHOW search_path").Text(0, 0).contains(QLatin1String("public")));
}

TEST_F(MapCatalogueTest, AMapThatNobodyChangedHasNoTime)
{
    EXPECT_FALSE(MapCatalogue::Maps(*m_connection).front().changed.isValid());
}

TEST_F(MapCatalogueTest, TellsWhoElseHasAMapOpen)
{
    m_connection->Run(MapPresence::Joining(Map()));
    EXPECT_THAT(MapCatalogue::Maps(*m_connection).front().users, IsEmpty());
    Owner().Run(MapPresence::Joining(Map()));
    EXPECT_THAT(MapCatalogue::Maps(*m_connection).front().users, ElementsAre(QStringLiteral("orvane")));
}

TEST_F(MapCatalogueTest, ListsOnlyWhatTheUserMayRead)
{
    MakeOther();
    Owner().Run("CREATE ROLE \"Eva\" LOGIN; GRANT USAGE ON SCHEMA other TO \"Eva\";"
                "GRANT SELECT ON ALL TABLES IN SCHEMA other TO \"Eva\"");
    const std::vector<ListedMap> maps = MapCatalogue::Maps(*Connected(QStringLiteral("Eva")));
    Owner().Run("DROP OWNED BY \"Eva\"; DROP ROLE \"Eva\"");
    ASSERT_EQ(maps.size(), 1U);
    EXPECT_EQ(maps.front().name, QStringLiteral("other"));
    EXPECT_FALSE(maps.front().isOwn || maps.front().mayEdit);
    EXPECT_THAT(Names(), ElementsAre(m_schema, QStringLiteral("other")));
}

TEST_F(MapCatalogueTest, LeavesOutWhatReadingWouldRun)
{
    Owner().Run("CREATE SCHEMA other; CREATE TABLE other.orvane_map (version integer, title text);"
                "CREATE FUNCTION other.trap() RETURNS bigint LANGUAGE plpgsql AS"
                " 'BEGIN RAISE EXCEPTION ''it ran''; END';"
                "CREATE VIEW other.orvane_news AS SELECT other.trap() AS id, now() AS at");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
}

TEST_F(MapCatalogueTest, RunsNothingOfASchemaThatHasTheNameOfTheUser)
{
    const QString vera = QStringLiteral("vera");
    Owner().Run("CREATE ROLE vera LOGIN; CREATE SCHEMA vera; GRANT USAGE ON SCHEMA vera TO vera");
    {
        Traps traps(Owner());
        traps.Lay(vera);
        Owner().Run(MapPresence::Joining(Map()));
        WorkWatch watch;
        const ServerPlace place = ServerPlace::FromText(SharedServer().Place({}, vera));
        const auto connection = ServerConnection::Connect(place, {}, watch);
        MapCatalogue::Maps(*connection);
        EXPECT_THAT(traps.Marks(), IsEmpty());
        EXPECT_EQ(connection->Run("SELECT current_setting('outside.mark', true)").Text(0, 0), QString());
        connection->Run("SET search_path = vera"); // as whoever uses the connection might
        MapCatalogue::Maps(*connection);
        EXPECT_THAT(traps.Marks(), IsEmpty());
        EXPECT_EQ(connection->Run("SELECT current_setting('outside.mark', true)").Text(0, 0), QString());
    }
    Owner().Run("DROP SCHEMA vera CASCADE; DROP OWNED BY vera; DROP ROLE vera");
}

TEST_F(MapCatalogueTest, LeavesOutWhatHasOnlyAPartOfAMap)
{
    Owner().Run("CREATE SCHEMA other; CREATE TABLE other.orvane_map (version integer, title text)");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
    Owner().Run("CREATE TABLE other.orvane_news (id text, at text)");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
}

TEST_F(MapCatalogueTest, ListsAMapWhoseLastChangeHasNoTime)
{
    Owner().Run("INSERT INTO Layers (Name) VALUES ('Roads'); UPDATE orvane_news SET at = 'infinity'");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
    EXPECT_FALSE(MapCatalogue::Maps(*m_connection).front().changed.isValid());
}

TEST_F(MapCatalogueTest, LeavesOutAMapWhoseNewsAreLocked)
{
    MakeOther();
    const auto other = Other();
    other->Run("BEGIN; LOCK TABLE other.orvane_news IN ACCESS EXCLUSIVE MODE");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
    other->Run("COMMIT");
    EXPECT_THAT(Names(), ElementsAre(m_schema, QStringLiteral("other")));
}

TEST_F(MapCatalogueTest, LeavesOutAMapThatIsMigratedAtThisMoment)
{
    MakeOther();
    const auto other = Other();
    other->Run("BEGIN; LOCK TABLE other.orvane_map IN ACCESS EXCLUSIVE MODE");
    EXPECT_THAT(Names(), ElementsAre(m_schema));
    other->Run("COMMIT");
    EXPECT_THAT(Names(), ElementsAre(m_schema, QStringLiteral("other")));
}

TEST_F(MapCatalogueTest, ShowsAPartOfAMapOnlyToItsOwner)
{
    MakeOther();
    Owner().Run("ALTER SCHEMA other RENAME TO \"orvane.part-1\"");
    Owner().Run("CREATE ROLE \"Hans\" LOGIN; GRANT USAGE ON SCHEMA \"orvane.part-1\" TO \"Hans\";"
                "GRANT SELECT ON ALL TABLES IN SCHEMA \"orvane.part-1\" TO \"Hans\"");
    const auto hans = Connected(QStringLiteral("Hans"));
    EXPECT_TRUE(MapCatalogue::Maps(*hans).empty());
    EXPECT_EQ(Names().size(), 2U);
    Owner().Run("DROP OWNED BY \"Hans\"; DROP ROLE \"Hans\"");
    Owner().Run("ALTER SCHEMA \"orvane.part-1\" RENAME TO other");
}

TEST_F(MapCatalogueTest, RemovesAMap)
{
    MakeOther();
    MapCatalogue::Remove(*m_connection, QStringLiteral("other"));
    EXPECT_THAT(Names(), ElementsAre(m_schema));
}

TEST_F(MapCatalogueTest, RemovesNothingThatIsNoMap)
{
    Owner().Run("CREATE SCHEMA other; CREATE TABLE other.precious (id integer)");
    EXPECT_EQ(
        ErrorOf([&] { MapCatalogue::Remove(*m_connection, QStringLiteral("other")); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM other.precious"), "0");
}

TEST_F(MapCatalogueTest, RemovesNoMapWithWhichMoreWouldBeLostAndNamesIt)
{
    struct Stranger {
        const char* make;
        const char* name;
        const char* drop;
    };
    MakeOther();
    for (const Stranger& stranger :
         {Stranger{"CREATE TABLE other.precious (id integer)", "other.precious", "TABLE other.precious"},
          Stranger{
              "CREATE VIEW public.longest AS SELECT name FROM other.layers", "public.longest",
              "VIEW public.longest"},
          Stranger{
              "CREATE TABLE public.mine (layer integer REFERENCES other.layers)", "public.mine",
              "TABLE public.mine"}}) {
        Owner().Run(stranger.make);
        try {
            MapCatalogue::RequireReplaceable(*m_connection, QStringLiteral("other"));
            ADD_FAILURE() << stranger.name;
        } catch (const RunTimeError& error) {
            EXPECT_THAT(error.Description().toStdString(), testing::HasSubstr(stranger.name));
        }
        EXPECT_EQ(
            ErrorOf([&] { MapCatalogue::Remove(*m_connection, QStringLiteral("other")); }),
            int(ErrorNumber::DatabaseFailure));
        Owner().Run(QByteArray("DROP ") + stranger.drop);
    }
    MapCatalogue::Remove(*m_connection, QStringLiteral("other"));
    EXPECT_THAT(Names(), ElementsAre(m_schema));
}

TEST_F(MapCatalogueTest, RemovesNoMapThatIsOpenAndSaysWhereItIs)
{
    Owner().Run(MapPresence::Joining(Map()));
    try {
        MapCatalogue::Remove(*m_connection, m_schema);
        ADD_FAILURE() << "it was removed";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::DatabaseLocked));
        EXPECT_THAT(error.Description().toStdString(), testing::HasSubstr("is open: orvane"));
    }
    EXPECT_THAT(Names(), ElementsAre(m_schema));
}

TEST_F(MapCatalogueTest, OnlyTheOwnerRemovesAMap)
{
    MakeOther();
    Owner().Run("CREATE ROLE \"Finn\" LOGIN; GRANT USAGE ON SCHEMA other TO \"Finn\"");
    const auto finn = Connected(QStringLiteral("Finn"));
    EXPECT_EQ(
        ErrorOf([&] { MapCatalogue::Remove(*finn, QStringLiteral("other")); }),
        int(ErrorNumber::DatabaseReadOnly));
    Owner().Run("DROP OWNED BY \"Finn\"; DROP ROLE \"Finn\"");
    EXPECT_EQ(Names().size(), 2U);
}

TEST_F(MapCatalogueTest, RenamesAMapWithItsTitle)
{
    MakeOther();
    MapCatalogue::Rename(*m_connection, QStringLiteral("other"), QStringLiteral("New \"name\""));
    EXPECT_THAT(Names(), ElementsAre(QStringLiteral("New \"name\""), m_schema));
    EXPECT_EQ(MapCatalogue::Maps(*m_connection).front().title, QStringLiteral("New \"name\""));
    EXPECT_NE(
        ErrorOf([&] { MapCatalogue::Rename(*m_connection, QStringLiteral("New \"name\""), m_schema); }), 0);
    MapCatalogue::Rename(*m_connection, QStringLiteral("New \"name\""), QStringLiteral("other"));
    EXPECT_THAT(Names(), ElementsAre(m_schema, QStringLiteral("other")));
}

TEST_F(MapCatalogueTest, TellsWhetherSomebodyHasAMapOpen)
{
    EXPECT_FALSE(MapCatalogue::IsOpen(*m_connection, m_schema));
    Owner().Run(MapPresence::Joining(Map()));
    EXPECT_TRUE(MapCatalogue::IsOpen(*m_connection, m_schema));
    EXPECT_FALSE(MapCatalogue::IsOpen(*m_connection, QStringLiteral("missing")));
}

TEST_F(MapCatalogueTest, MigratesNoMapThatSomebodyHasOpen)
{
    Owner().Run(MapPresence::Joining(Map()));
    MapCatalogue::Migrate(*m_connection, m_schema); // it is of the current version
    Owner().Run("UPDATE orvane_map SET version = 1");
    EXPECT_EQ(
        ErrorOf([&] { MapCatalogue::Migrate(*m_connection, m_schema); }), int(ErrorNumber::DatabaseLocked));
    EXPECT_EQ(Owner().Text("SELECT version FROM orvane_map"), "1");
}

TEST_F(MapCatalogueTest, RenamesNoMapThatWouldRunSomething)
{
    MakeOther();
    {
        Traps traps(Owner());
        traps.AddFunction(QStringLiteral("outside"), "sly", "", "trigger", "NEW");
        Owner().Run("CREATE TRIGGER sly BEFORE UPDATE ON other.orvane_map FOR EACH ROW"
                    " EXECUTE FUNCTION outside.sly()");
        EXPECT_EQ(
            ErrorOf([&] {
                MapCatalogue::Rename(*m_connection, QStringLiteral("other"), QStringLiteral("third"));
            }),
            int(ErrorNumber::NotALayerDatabase));
        EXPECT_THAT(traps.Marks(), IsEmpty());
        EXPECT_THAT(Names(), ElementsAre(m_schema, QStringLiteral("other")));
    }
}

} // namespace Orvane::Testing
