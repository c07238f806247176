// SPDX-License-Identifier: MIT
#include "mapkit/data/DataSource.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Degrees = "EPSG:4326";

class DataSourceTest : public testing::Test
{
protected:
    FeatureSet Read(const QString& path, const QString& filter = {}, const QString& system = Degrees)
    {
        const DataSource source(path);
        return source.Read(source.Layers().at(0).name, filter, system, m_progress);
    }

    // The text of the error that reading the file raises.
    QString ErrorOf(const QString& path, const QString& filter = {})
    {
        try {
            Read(path, filter);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), SourceUnreadable);
            return error.Description();
        }
        ADD_FAILURE() << "no error";
        return {};
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(DataSourceTest, TellsItsLayersAndTheirSystem)
{
    const DataSource source(m_folder.WriteSquare("fields.geojson", 20, 30));
    ASSERT_EQ(source.Layers().size(), 1u);
    EXPECT_EQ(source.Layers()[0].name, "fields");
    EXPECT_EQ(source.Layers()[0].kind, FeatureKind::Area);
    EXPECT_EQ(source.Layers()[0].system, "EPSG:4326");
}

TEST_F(DataSourceTest, EachFeatureKnowsItsIDInTheSource)
{
    const QString path = m_folder.WriteGeometries(
        "points.geojson",
        {R"({"type":"Point","coordinates":[1,1]})", R"({"type":"Point","coordinates":[2,2]})",
         R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[3,3]},
            {"type":"Point","coordinates":[4,4]}]})"});
    const FeatureSet all = Read(path);
    ASSERT_EQ(all.Features().size(), 4u);
    EXPECT_NE(all.FeatureId(0), all.FeatureId(1));
    EXPECT_EQ(all.FeatureId(2), all.FeatureId(3));
    EXPECT_EQ(Read(path, "type = 'b'").FeatureId(0), all.FeatureId(1));
}

TEST_F(DataSourceTest, ReadsEveryKindOfGeometry)
{
    const FeatureSet set = Read(m_folder.WriteGeometries(
        "all.geojson",
        {R"({"type":"Point","coordinates":[1,2]})", R"({"type":"MultiPoint","coordinates":[[1,2],[3,4]]})",
         R"({"type":"LineString","coordinates":[[1,2],[3,4]]})",
         R"({"type":"MultiPolygon","coordinates":[[[[0,0],[1,0],[1,1],[0,0]]],[[[5,5],[6,5],[6,6],[5,5]]]]})",
         R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[9,9]},)"
         R"({"type":"LineString","coordinates":[[1,2],[3,4]]}]})"}));
    std::vector<FeatureKind> kinds;
    for (const FeatureSet::Feature& feature : set.Features())
        kinds.push_back(feature.kind);
    using enum FeatureKind;
    EXPECT_THAT(kinds, testing::ElementsAre(Point, Point, Point, Line, Area, Point, Line));
    EXPECT_EQ(set.Bounds(), (Box{0, 0, 9, 9}));
}

TEST_F(DataSourceTest, ReadsCurvesAsLines)
{
    const FeatureSet set
        = Read(m_folder.Write("arcs.csv", "WKT,name\n\"CIRCULARSTRING (0 0,1 1,2 0)\",arc\n"));
    ASSERT_EQ(set.Features().size(), 1u);
    EXPECT_GT(set.VertexCount(), 10u);
}

TEST_F(DataSourceTest, LeavesOutFeaturesWithoutGeometry)
{
    EXPECT_EQ(
        Read(m_folder.WriteGeometries("some.geojson", {"null", R"({"type":"Point","coordinates":[1,2]})"}))
            .Features()
            .size(),
        1u);
}

TEST_F(DataSourceTest, ReadsOnlyWhatTheFilterAsksFor)
{
    const QString path = m_folder.WriteGeometries(
        "two.geojson",
        {R"({"type":"Point","coordinates":[1,2]})", R"({"type":"Point","coordinates":[3,4]})"});
    EXPECT_EQ(Read(path, "type = 'b'").Bounds(), (Box{3, 4, 3, 4}));
}

TEST_F(DataSourceTest, BringsCoordinatesIntoTheMapsSystem)
{
    const FeatureSet set = Read(m_folder.WriteSquare("square.geojson"), {}, "EPSG:3857");
    EXPECT_NEAR(set.Bounds().maxX, 1113194.9, 0.1);
}

TEST_F(DataSourceTest, WhatTheMapsSystemCannotShowIsLeftOut)
{
    const QString path = m_folder.WriteGeometries(
        "beyond.geojson", {R"({"type":"LineString","coordinates":[[0,0],[0,95],[10,0]]})"});
    const FeatureSet set = Read(path, {}, "EPSG:3857");
    EXPECT_EQ(set.Part(0).size(), 2u);
    for (const QPointF& point : set.Part(0))
        EXPECT_TRUE(std::isfinite(point.y()));
}

TEST_F(DataSourceTest, ABrokenFileIsOneSentenceThatNamesIt)
{
    for (const QByteArray& content :
         {QByteArray(), QByteArray("no data"), QByteArray(5000, '\xff'),
          QByteArray(R"({"type":"FeatureCollection","features":[{"type")")}) {
        const QString message = ErrorOf(m_folder.Write("broken.geojson", content));
        EXPECT_TRUE(message.contains("broken.geojson")) << qPrintable(message);
    }
}

TEST_F(DataSourceTest, AMissingFileIsNamed)
{
    EXPECT_TRUE(ErrorOf(m_folder.Path("missing.gpkg")).contains("missing.gpkg"));
}

TEST_F(DataSourceTest, ACutShapefileIsAnErrorAndNoCrash)
{
    const QString path
        = m_folder.Write("cut.shp", QByteArray::fromHex("0000270a00000000000000000000000000000000"));
    EXPECT_TRUE(ErrorOf(path).contains("cut.shp"));
}

TEST_F(DataSourceTest, AFilterThatIsNotUnderstoodIsAnError)
{
    EXPECT_TRUE(ErrorOf(m_folder.WriteSquare("square.geojson"), "nonsense ===").contains("square.geojson"));
}

TEST_F(DataSourceTest, AnUnknownLayerIsAnError)
{
    const DataSource source(m_folder.WriteSquare("square.geojson"));
    EXPECT_THROW(source.Read("another", {}, Degrees, m_progress), RunTimeError);
}

TEST_F(DataSourceTest, ReadingEndsWhenItIsCancelled)
{
    QByteArray rows("WKT,name\n");
    for (int i = 0; i < 200; ++i)
        rows += "\"POINT (1 2)\",A\n";
    const QString path = m_folder.Write("many.csv", rows);
    m_progress.Cancel();
    EXPECT_THROW(Read(path), Cancelled);
}

TEST_F(DataSourceTest, AChosenSystemHoldsInsteadOfTheOneThatTheSourceNames)
{
    const DataSource source(m_folder.WriteSquare("square.geojson", 10, 50));
    Progress progress;
    const FeatureSet chosen = source.Read("square", {}, "EPSG:4326", progress, {}, "EPSG:3857");
    EXPECT_NEAR(chosen.Bounds().minX, 10 / 111319.49, 1e-6);
    const FeatureSet named = source.Read("square", {}, "EPSG:4326", progress, {}, "no system");
    EXPECT_EQ(named.Bounds().minX, 10);
}

TEST_F(DataSourceTest, AnExtentThatTheSourceDoesNotKnowIsMeasured)
{
    const DataSource source(m_folder.WriteSquare("square.geojson", 10, 50));
    Progress progress;
    EXPECT_EQ(source.Measure("square", progress).extent, (Box{10, 50, 20, 60}));
}

TEST_F(DataSourceTest, TellsFormatGeometryAndCountOfALayer)
{
    const DataSource source(m_folder.WriteSquare("square.geojson", 10, 50));
    const SourceDetails details = source.Details("square");
    EXPECT_EQ(details.driver, "GeoJSON");
    EXPECT_EQ(details.geometry, "Polygon");
    EXPECT_EQ(details.featureCount, 1);
    EXPECT_EQ(details.system, "EPSG:4326");
    EXPECT_TRUE(details.extent.IsEmpty()); // this format knows it only after reading
}

TEST_F(DataSourceTest, OnlyTheChosenKindsAreMeasured)
{
    const QString path = m_folder.WriteGeometries(
        "plan.geojson",
        {R"({"type":"Point","coordinates":[1,2]})",
         R"({"type":"LineString","coordinates":[[50,60],[55,65]]})",
         R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[3,4]},
             {"type":"LineString","coordinates":[[70,0],[71,1]]}]})"});
    GeometryChoice points;
    points.kinds = {FeatureKind::Point};
    const LayerMeasure measure = DataSource(path).Measure("plan", m_progress, points);
    EXPECT_EQ(measure.extent, (Box{1, 2, 3, 4}));
    EXPECT_EQ(measure.featureCount, 2);
    EXPECT_EQ(DataSource(path).Measure("plan", m_progress).featureCount, 3);
}

} // namespace Orvane
