// SPDX-License-Identifier: MIT
#include "mapkit/data/GeometryKinds.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using enum FeatureKind;

namespace {

constexpr auto KmlOf = R"(<?xml version="1.0" encoding="UTF-8"?>
<kml xmlns="http://www.opengis.net/kml/2.2"><Document><Placemark><name>a</name>%1</Placemark></Document></kml>)";

class GeometryKindsTest : public testing::Test
{
protected:
    SourceLayer Kml(const char* geometry)
    {
        const QString text = QString(KmlOf).arg(geometry);
        return DataSource(m_folder.Write("a.kml", text.toUtf8())).Layers().at(0);
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(GeometryKindsTest, AFormatThatDoesNotTellIsLookedInto)
{
    EXPECT_EQ(Kml("<Point><coordinates>1,2</coordinates></Point>").kind, Point);
    EXPECT_EQ(Kml("<LineString><coordinates>1,2 3,4</coordinates></LineString>").kind, Line);
    EXPECT_EQ(
        Kml("<Polygon><outerBoundaryIs><LinearRing><coordinates>0,0 1,0 1,1 0,0</coordinates></LinearRing>"
            "</outerBoundaryIs></Polygon>")
            .kind,
        Area);
}

TEST_F(GeometryKindsTest, AMixedLayerTellsAllItsKindsAndItsLowestOne)
{
    const QString path = m_folder.WriteGeometries(
        "mixed.geojson",
        {R"({"type":"LineString","coordinates":[[1,2],[3,4]]})",
         R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[9,9]},
            {"type":"Polygon","coordinates":[[[0,0],[1,0],[1,1],[0,0]]]}]})"});
    const SourceLayer layer = DataSource(path).Layers().at(0);
    EXPECT_THAT(layer.kinds, ElementsAre(Point, Line, Area));
    EXPECT_EQ(layer.kind, Area);
}

TEST_F(GeometryKindsTest, ALayerMayTakeOneKindOnly)
{
    const DataSource source(m_folder.WriteGeometries(
        "mixed.geojson",
        {R"({"type":"LineString","coordinates":[[1,2],[3,4]]})",
         R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[9,9]},
            {"type":"LineString","coordinates":[[5,5],[6,6]]}]})"}));
    GeometryChoice points;
    points.kinds = {Point};
    GeometryChoice others;
    others.kinds = {Line, Area};
    EXPECT_EQ(source.Read("mixed", {}, "EPSG:4326", m_progress, points).Bounds(), (Box{9, 9, 9, 9}));
    EXPECT_EQ(source.Read("mixed", {}, "EPSG:4326", m_progress, others).Bounds(), (Box{1, 2, 6, 6}));
}

TEST_F(GeometryKindsTest, AChoiceIsTheSameAfterItWasWritten)
{
    GeometryChoice choice;
    choice.kinds = {Line, Area};
    choice.columns = {"Länge \"E\"", "Breite", {}};
    EXPECT_EQ(GeometryChoice::FromText(choice.ToText()), choice);
    EXPECT_EQ(GeometryChoice().ToText(), "");
    for (const char* text : {"", "?", "{", "[1]", R"({"kinds":["blob"],"x":7})"})
        EXPECT_EQ(GeometryChoice::FromText(text), GeometryChoice()) << text;
}

} // namespace Orvane
