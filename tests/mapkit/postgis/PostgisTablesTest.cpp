// SPDX-License-Identifier: MIT
#include "mapkit/postgis/PostgisTables.h"

#include "mapkit/common/Progress.h"
#include "mapkit/data/SourceReader.h"
#include "store/IServerLogin.h"
#include "store/postgres/RawLink.h"
#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

/// A server with PostGIS and a few tables; skipped without it.
class PostgisTablesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_link = std::make_unique<RawLink>(SharedServer().Connection());
        if (m_link->Text("SELECT count(*) FROM pg_available_extensions WHERE name = 'postgis'") == "0")
            GTEST_SKIP() << "PostGIS is not installed.";
        m_link->Run("CREATE EXTENSION IF NOT EXISTS postgis");
        m_link->Run("CREATE SCHEMA town");
        m_link->Run("CREATE TABLE town.roads (id integer PRIMARY KEY, name text, width real,"
                    " axis public.geometry(LineString, 25832))");
        m_link->Run("INSERT INTO town.roads VALUES"
                    " (7, 'Mill Road', 4.5, 'SRID=25832;LINESTRING(0 0, 100 0)'),"
                    " (9, NULL, NULL, 'SRID=25832;LINESTRING(0 50, 100 50)'), (11, 'No place', 1, NULL)");
        m_tables = std::make_unique<PostgisTables>(ServerMaps::ServerOf(SharedServer().Place("x")), nullptr);
    }
    void TearDown() override
    {
        if (m_tables)
            m_link->Run("DROP SCHEMA town CASCADE");
    }

    LayerSource Roads() const
    {
        LayerSource source;
        source.path = ServerTablePath;
        source.ogrLayer = "town.roads";
        return source;
    }
    QStringList Names() { return m_tables->Names(m_progress).filter("town."); }

    std::unique_ptr<RawLink> m_link;
    std::unique_ptr<PostgisTables> m_tables;
    Progress m_progress;
};

} // namespace

TEST_F(PostgisTablesTest, TablesWithGeometriesAreListed)
{
    m_link->Run("CREATE TABLE town.plain (id integer)");
    EXPECT_EQ(Names(), QStringList{"town.roads"});
}

TEST_F(PostgisTablesTest, ATableWithSeveralGeometriesIsSeveralLayers)
{
    m_link->Run("ALTER TABLE town.roads ADD COLUMN middle public.geometry(Point, 25832)");
    EXPECT_EQ(Names(), QStringList({"town.roads (axis)", "town.roads (middle)"}));
}

TEST_F(PostgisTablesTest, NamesWithDotsAndQuotesAreFoundAgain)
{
    m_link->Run("CREATE TABLE town.\"a.b \"\"c\"\" (d)\" (g public.geometry)");
    m_link->Run("INSERT INTO town.\"a.b \"\"c\"\" (d)\" VALUES ('POINT(1 2)')");
    LayerSource source = Roads();
    source.ogrLayer = "town.a.b \"c\" (d)";
    EXPECT_TRUE(Names().contains(source.ogrLayer));
    EXPECT_EQ(m_tables->Read(source, {}, m_progress).Features().size(), 1U);
}

TEST_F(PostgisTablesTest, ALayerIsDescribedByItsKindSystemAndExtent)
{
    const SourceLayer layer = m_tables->Describe("town.roads", m_progress);
    EXPECT_EQ(layer.kind, FeatureKind::Line);
    EXPECT_EQ(layer.system, "EPSG:25832");
    EXPECT_EQ(layer.extent.maxX, 100);
    EXPECT_EQ(layer.extent.maxY, 50);
}

TEST_F(PostgisTablesTest, FeaturesHaveTheirKeysAsIDs)
{
    const FeatureSet features = m_tables->Read(Roads(), "EPSG:25832", m_progress);
    ASSERT_EQ(features.Features().size(), 2U);
    EXPECT_EQ(features.FeatureId(0), 7);
    EXPECT_EQ(features.FeatureId(1), 9);
    EXPECT_EQ(features.SourceSystem(), "EPSG:25832");
    EXPECT_EQ(features.Part(0)[1], QPointF(100, 0));
}

TEST_F(PostgisTablesTest, FeaturesAreTransformedToTheSystemOfTheMap)
{
    m_link->Run("CREATE TABLE town.places (id bigint PRIMARY KEY, g public.geography(Point))");
    m_link->Run("INSERT INTO town.places VALUES (1, 'POINT(0 0)')");
    LayerSource source = Roads();
    source.ogrLayer = "town.places";
    const FeatureSet features = m_tables->Read(source, "EPSG:3857", m_progress);
    ASSERT_EQ(features.Features().size(), 1U);
    EXPECT_NEAR(features.Part(0)[0].x(), 0, 1e-6);
}

TEST_F(PostgisTablesTest, AttributesAreFoundByTheKey)
{
    const std::vector<SourceField> fields = m_tables->Fields("town.roads");
    ASSERT_EQ(fields.size(), 3U);
    EXPECT_TRUE(fields[0].isNumber);
    EXPECT_TRUE(fields[1].isText);
    EXPECT_EQ(fields[2].name, "width");
    const std::vector<FeatureAttribute> attributes = m_tables->Attributes("town.roads", 7);
    ASSERT_EQ(attributes.size(), 3U);
    EXPECT_EQ(attributes[1].value, "Mill Road");
    EXPECT_TRUE(m_tables->Attributes("town.roads", 9)[1].isNull);
    EXPECT_TRUE(m_tables->Attributes("town.roads", 8).empty());
}

TEST_F(PostgisTablesTest, ValuesOfAnAttributeHaveTheIDsOfTheFeatures)
{
    const auto widths = m_tables->ReadField(Roads(), "width", m_progress);
    EXPECT_EQ(widths.at(7).number, 4.5);
    EXPECT_FALSE(widths.contains(9));
    const QString error = DescriptionOf([&] { m_tables->ReadField(Roads(), "height", m_progress); });
    EXPECT_TRUE(error.contains("height")) << error.toStdString();
}

TEST_F(PostgisTablesTest, AViewIsNotRead)
{
    m_link->Run("CREATE VIEW town.trap AS SELECT * FROM town.roads");
    EXPECT_EQ(Names(), QStringList{"town.roads"});
    LayerSource source = Roads();
    source.ogrLayer = "town.trap";
    EXPECT_EQ(ErrorOf([&] { m_tables->Read(source, {}, m_progress); }), SourceUnreadable);
}

TEST_F(PostgisTablesTest, ATableOfWhichAPartIsOnAnotherServerIsNotRead)
{
    m_link->Run("CREATE FOREIGN DATA WRAPPER town_far");
    m_link->Run("CREATE SERVER town_far FOREIGN DATA WRAPPER town_far");
    m_link->Run("CREATE TABLE town.part () INHERITS (town.roads)");
    EXPECT_TRUE(Names().contains("town.roads"));
    m_link->Run("CREATE FOREIGN TABLE town.far () INHERITS (town.part) SERVER town_far");
    EXPECT_EQ(Names(), QStringList());
    EXPECT_EQ(ErrorOf([&] { m_tables->Details("town.roads"); }), int(SourceUnreadable));
    m_link->Run("DROP FOREIGN DATA WRAPPER town_far CASCADE");
}

TEST_F(PostgisTablesTest, ATableWithPoliciesIsNotRead)
{
    m_link->Run("ALTER TABLE town.roads ENABLE ROW LEVEL SECURITY");
    EXPECT_TRUE(Names().isEmpty());
}

TEST_F(PostgisTablesTest, AConditionInTheMapIsRefused)
{
    LayerSource source = Roads();
    source.filter = "TRUE; DROP TABLE town.roads";
    EXPECT_EQ(ErrorOf([&] { m_tables->Read(source, {}, m_progress); }), SourceUnreadable);
    EXPECT_EQ(Names(), QStringList{"town.roads"});
}

TEST_F(PostgisTablesTest, ReadingThatIsCancelledEnds)
{
    m_progress.Cancel();
    EXPECT_THROW(m_tables->Read(Roads(), {}, m_progress), Cancelled);
}

TEST_F(PostgisTablesTest, ALayerOfAMapInAFileHasNoServer)
{
    const SourceContents contents = ReadSources({Roads()}, {}, m_progress);
    ASSERT_EQ(contents.failures.size(), 1U);
    EXPECT_TRUE(contents.failures.begin()->second.contains("on a server"));
}

} // namespace Orvane
