// SPDX-License-Identifier: MIT
#include "shell/map/FoundLayers.h"

#include "mapkit/DataFolder.h"
#include "mapkit/ZipFile.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/DataImport.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QMap>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Tour
    = R"(<?xml version="1.0"?><gpx version="1.1" creator="t" xmlns="http://www.topografix.com/GPX/1/1">
<wpt lat="1" lon="2"><name>Inn</name></wpt>
<trk><trkseg><trkpt lat="1" lon="2"/><trkpt lat="3" lon="4"/></trkseg></trk></gpx>)";

constexpr auto Kml = R"(<?xml version="1.0"?><kml xmlns="http://www.opengis.net/kml/2.2"><Document>
<Folder><name>Lake</name><Placemark><Polygon><outerBoundaryIs><LinearRing><coordinates>
0,0 9,0 9,9 0,0</coordinates></LinearRing></outerBoundaryIs></Polygon></Placemark></Folder>
<Folder><name>Pier</name><Placemark><Point><coordinates>1,2</coordinates></Point></Placemark></Folder>
<Folder><name>Empty</name></Folder></Document></kml>)";

// The drawing of a plan: a point and a line in one layer.
constexpr auto Plan = "0\nSECTION\n2\nENTITIES\n0\nLINE\n8\n0\n10\n0\n20\n0\n11\n5\n21\n5\n"
                      "0\nPOINT\n8\n0\n10\n1\n20\n2\n0\nENDSEC\n0\nEOF\n";

class FoundLayersTest : public testing::Test
{
protected:
    // The names of the map's layers with their draw priorities.
    QMap<QString, int> Import(const QStringList& paths)
    {
        AddToMap(*m_document, LookInto(paths, m_progress));
        QMap<QString, int> layers;
        const auto rows = m_document->Database().OpenRecordset("SELECT Name, Priority FROM Layers");
        for (; !rows->AtEOF(); rows->MoveNext())
            layers[ToText(rows->Field("Name"))] = ToInt32(rows->Field("Priority"));
        return layers;
    }

    DataFolder m_folder;
    Progress m_progress;
    std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
};

} // namespace

TEST_F(FoundLayersTest, ATourShowsItsTracksAndWaypointsButNotEachPointOfATrack)
{
    EXPECT_EQ(Import({m_folder.Write("tour.gpx", Tour)}).keys(), QStringList({"tracks", "waypoints"}));
}

TEST_F(FoundLayersTest, ToursInAnArchiveShowTheSame)
{
    const QString path
        = WriteZip(m_folder.Path("tours.zip"), {{"lake.kml", Kml}, {"one.gpx", Tour}, {"two.gpx", Tour}});
    EXPECT_EQ(
        Import({path}).keys(),
        QStringList({"Lake", "Pier", "one/tracks", "one/waypoints", "two/tracks", "two/waypoints"}));
}

TEST_F(FoundLayersTest, ATourWithoutAnythingHasNothingToDraw)
{
    const QString path = m_folder.Write(
        "empty.gpx", R"(<gpx version="1.1" creator="t" xmlns="http://www.topografix.com/GPX/1/1"></gpx>)");
    const FoundData found = LookInto({path}, m_progress);
    EXPECT_TRUE(found.sources.empty());
    ASSERT_EQ(found.problems.size(), 1u);
    EXPECT_TRUE(found.problems[0].text.contains("empty.gpx"));
}

TEST_F(FoundLayersTest, AKmlThatNamesNoGeometryIsDrawnInOrder)
{
    const auto layers = Import({m_folder.Write("lake.kml", Kml)});
    EXPECT_EQ(layers.keys(), QStringList({"Lake", "Pier"}));
    EXPECT_LT(layers["Pier"], layers["Lake"]);
}

TEST_F(FoundLayersTest, LaterDataTakeTheirPlaceInTheOrderToo)
{
    Import({m_folder.Write("pier.geojson", R"({"type":"Point","coordinates":[1,2]})")});
    const auto layers = Import({m_folder.WriteSquare("field.geojson")});
    EXPECT_LT(layers["pier"], layers["field"]);
}

TEST_F(FoundLayersTest, ALayerOfSeveralKindsBecomesOneForEach)
{
    const auto layers = Import({m_folder.Write("plan.dxf", Plan)});
    EXPECT_EQ(layers.keys(), QStringList({"entities (lines)", "entities (points)"}));
    EXPECT_LT(layers["entities (points)"], layers["entities (lines)"]);
    const SourceContents contents = ReadSources(m_document->Sources(), {}, m_progress);
    ASSERT_EQ(contents.features.size(), 2u);
    for (const auto& [layerID, features] : contents.features)
        EXPECT_EQ(features->Features().size(), 1u);
}

TEST_F(FoundLayersTest, KindsThatWereNotFoundAtFirstBelongToTheLowestPart)
{
    SourceLayer mixed;
    mixed.kinds = {FeatureKind::Point, FeatureKind::Line};
    const std::vector<SourceLayer> parts = LayersToShow({mixed});
    ASSERT_EQ(parts.size(), 2u);
    EXPECT_FALSE(parts[0].choice.Takes(FeatureKind::Area));
    EXPECT_TRUE(parts[1].choice.Takes(FeatureKind::Area));
}

TEST_F(FoundLayersTest, ACompressedFileIsNamedWithoutItsSuffixes)
{
    EXPECT_EQ(SourceTitle("/data/towns.geojson.gz"), "towns");
    EXPECT_EQ(SourceTitle("/data/towns.v2.gpkg"), "towns.v2");
}

} // namespace Orvane
