// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/Antimeridian.h"

#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using Antimeridian::Points;
using testing::ElementsAre;

namespace {

// East of the island is west of the meridian.
const Points Island = {{178, -18}, {-178, -18}, {-178, -16}, {178, -16}, {178, -18}};
const Points Frame = {{-180, -60}, {180, -60}, {180, 60}, {-180, 60}, {-180, -60}};

Points Sorted(Points points)
{
    std::sort(points.begin(), points.end(), [](const QPointF& a, const QPointF& b) {
        return std::pair(a.x(), a.y()) < std::pair(b.x(), b.y());
    });
    return points;
}

Points Rectangle(double west, double east, double south, double north)
{
    return {{west, south}, {east, south}, {east, north}, {west, north}, {west, south}};
}

Points Square(double west, double east)
{
    return Rectangle(west, east, 0, 10);
}

double WidestPart(const FeatureSet& features)
{
    double widest = 0;
    for (const FeatureSet::Feature& feature : features.Features()) {
        for (quint32 part = feature.firstPart; part < feature.endPart; ++part) {
            Box box;
            for (const QPointF& point : features.Part(part))
                box.Add(point);
            widest = std::max(widest, box.Width());
        }
    }
    return widest;
}

} // namespace

TEST(Antimeridian, OrdinaryLinesAreLeftAlone)
{
    EXPECT_FALSE(Antimeridian::IsPassed(Points{{-170, 0}, {0, 10}, {170, 0}}));
    EXPECT_FALSE(Antimeridian::IsPassed(Square(0, 10)));
    EXPECT_FALSE(Antimeridian::IsPassed(Points()));
}

TEST(Antimeridian, AMapWithAnotherMiddleIsCutAtItsOwnEdge)
{
    const double middle = 150; // from -30 to 330
    EXPECT_FALSE(Antimeridian::IsPassed(Square(0, 10), middle));
    const std::vector<Points> rings = Antimeridian::CutRing(Square(-40, -20), middle);
    ASSERT_EQ(rings.size(), 2u);
    EXPECT_EQ(Sorted(rings[0]).back().x(), 330);
    EXPECT_EQ(Sorted(rings[1]).front().x(), -30);
    const std::vector<Points> lines = Antimeridian::CutLine(Points{{-40, 5}, {-20, 5}}, middle);
    EXPECT_THAT(lines, ElementsAre(Points{{320, 5}, {330, 5}}, Points{{-30, 5}, {-20, 5}}));
}

TEST(Antimeridian, TheBoundsOfTheEarthAreCutAtTheEdgeOfTheMapOnly)
{
    const Points bounds = {{-170, -80}, {170, -80}, {170, 80}, {-170, 80}, {-170, -80}};
    double width = 0;
    for (const Points& ring : Antimeridian::CutRing(bounds, 150))
        width += Sorted(ring).back().x() - Sorted(ring).front().x();
    EXPECT_NEAR(width, 340, 1e-9);
}

TEST(Antimeridian, WhatPassesTheDateLineIsWholeOnAMapOfThePacific)
{
    const std::vector<Points> rings = Antimeridian::CutRing(Island, 150);
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(Sorted(rings[0]).front().x(), 178);
    EXPECT_EQ(Sorted(rings[0]).back().x(), 182);
}

TEST(Antimeridian, ALineThatJumpsIsCutInTwo)
{
    const Points line = {{170, 10}, {-170, 20}};
    ASSERT_TRUE(Antimeridian::IsPassed(line));
    EXPECT_THAT(
        Antimeridian::CutLine(line),
        ElementsAre(Points{{170, 10}, {180, 15}}, Points{{-180, 15}, {-170, 20}}));
}

TEST(Antimeridian, ALineThatComesBackKeepsBothItsEnds)
{
    const Points line = {{170, 10}, {-170, 10}, {170, 20}};
    EXPECT_THAT(
        Antimeridian::CutLine(line),
        ElementsAre(
            Points{{170, 10}, {180, 10}}, Points{{180, 15}, {170, 20}},
            Points{{-180, 10}, {-170, 10}, {-180, 15}}));
}

TEST(Antimeridian, AnIslandOnItBecomesOneOnEachSide)
{
    ASSERT_TRUE(Antimeridian::IsPassed(Island));
    const std::vector<Points> rings = Antimeridian::CutRing(Island);
    ASSERT_EQ(rings.size(), 2u);
    for (const Points& ring : rings) {
        const bool isEast = ring.front().x() > 0;
        for (const QPointF& point : ring) {
            EXPECT_GE(std::abs(point.x()), 178);
            EXPECT_LE(std::abs(point.x()), 180);
            EXPECT_EQ(point.x() > 0, isEast);
        }
    }
}

TEST(Antimeridian, LongitudesBeyond180AreBroughtBack)
{
    ASSERT_TRUE(Antimeridian::IsPassed(Square(190, 200)));
    const std::vector<Points> rings = Antimeridian::CutRing(Square(190, 200));
    ASSERT_EQ(rings.size(), 1u);
    EXPECT_EQ(Sorted(rings[0]).front(), QPointF(-170, 0));
    EXPECT_EQ(Sorted(rings[0]).back(), QPointF(-160, 10));
    EXPECT_EQ(Antimeridian::CutRing(Square(170, 190)).size(), 2u);
    EXPECT_EQ(Antimeridian::Longitude(200), -160);
    EXPECT_EQ(Antimeridian::Longitude(180), 180);
}

TEST(Antimeridian, AStripAroundTheEarthFromZeroKeepsItsWidth)
{
    const Points strip = Square(0, 360);
    ASSERT_TRUE(Antimeridian::IsPassed(strip));
    double width = 0;
    for (const Points& piece : Antimeridian::CutRing(strip)) {
        const auto [west, east] = std::minmax_element(
            piece.begin(), piece.end(), [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); });
        width += east->x() - west->x();
    }
    EXPECT_DOUBLE_EQ(width, 360);
}

TEST(Antimeridian, TheFrameOfTheWorldStaysWhole)
{
    EXPECT_FALSE(Antimeridian::IsPassed(Frame));
    EXPECT_FALSE(Antimeridian::IsPassed(Points{{-180, 45}, {180, 45}})) << "a parallel";
}

TEST(Antimeridian, BoundsOfAlmostTheWholeEarthStayWhole)
{
    EXPECT_FALSE(Antimeridian::IsPassed(Rectangle(-170, 170, -60, 80)));
    EXPECT_FALSE(Antimeridian::IsPassed(Rectangle(-179.99, 179.99, -85, 85)));
    EXPECT_FALSE(Antimeridian::IsPassed(Rectangle(-179.99, 179.99, 0, 10))) << "a belt around the earth";
    EXPECT_FALSE(Antimeridian::IsPassed(Rectangle(-180, 170, -56, 84)));
    EXPECT_FALSE(Antimeridian::IsPassed(
        Points{{-170, -60}, {-170, 0}, {-170, 80}, {0, 80}, {170, 80}, {170, -60}, {-170, -60}}))
        << "with points within its edges";
}

TEST(Antimeridian, BoundsThatGoOnAlmostTo360KeepTheirWidth)
{
    const Points grid = Rectangle(0, 359.75, -90, 90);
    ASSERT_TRUE(Antimeridian::IsPassed(grid));
    double width = 0;
    for (const Points& piece : Antimeridian::CutRing(grid))
        width += Sorted(piece).back().x() - Sorted(piece).front().x();
    EXPECT_DOUBLE_EQ(width, 359.75);
}

TEST(Antimeridian, RectanglesAcrossItAreNotTakenForBounds)
{
    EXPECT_TRUE(Antimeridian::IsPassed(Rectangle(-179, 179, -20, -15)));
    EXPECT_TRUE(Antimeridian::IsPassed(Rectangle(-179.999, 179.999, -16.801, -16.8))) << "a house";
    EXPECT_TRUE(Antimeridian::IsPassed(Rectangle(-171, 160, -56, -25))) << "the sea around New Zealand";
    EXPECT_TRUE(Antimeridian::IsPassed(Rectangle(-100, 120, -60, 60))) << "the Pacific Ocean";
}

TEST(Antimeridian, ATallStripAlongItStaysNarrow)
{
    const Points strip = {{179, 0}, {-179, 0}, {-179, 30}, {179, 30}, {179, 0}};
    ASSERT_TRUE(Antimeridian::IsPassed(strip));
    double width = 0;
    for (const Points& piece : Antimeridian::CutRing(strip))
        width += Sorted(piece).back().x() - Sorted(piece).front().x();
    EXPECT_DOUBLE_EQ(width, 2);
}

TEST(Antimeridian, ATallAreaAcrossItThatIsNoRectangleIsCut)
{
    EXPECT_TRUE(Antimeridian::IsPassed(Points{{170, -60}, {-175, -60}, {-170, 60}, {175, 60}, {170, -60}}))
        << "what a satellite saw";
}

TEST(Antimeridian, AContinentThatWasCutAtItsFootStaysWhole)
{
    EXPECT_FALSE(Antimeridian::IsPassed(Points{
        {-180, -90}, {-180, -84}, {-90, -75}, {0, -70}, {90, -66}, {180, -84}, {180, -90}, {-180, -90}}));
}

TEST(Antimeridian, AStepFromOneEdgeToTheOtherWithinALineIsAPassage)
{
    const Points line = {{179, 5}, {180, 5}, {-180, 5}, {-179, 5}};
    ASSERT_TRUE(Antimeridian::IsPassed(line));
    EXPECT_EQ(Antimeridian::CutLine(line).size(), 2u);
}

TEST(Antimeridian, ARingAroundAPoleReachesThePole)
{
    const Points around = {{-120, -70}, {0, -70}, {120, -70}, {-120, -70}};
    ASSERT_TRUE(Antimeridian::IsPassed(around));
    const std::vector<Points> rings = Antimeridian::CutRing(around);
    Box box;
    for (const Points& ring : rings) {
        for (const QPointF& point : ring)
            box.Add(point);
    }
    EXPECT_EQ(box, (Box{-180, -90, 180, -70}));
}

TEST(Antimeridian, NumbersThatAreNoDegreesAreLeftAlone)
{
    EXPECT_FALSE(Antimeridian::IsPassed(Points{{400000, 5}, {-400000, 6}}));
    EXPECT_FALSE(Antimeridian::IsPassed(Points{{170, 500}, {-170, 500}}));
}

TEST(Antimeridian, DataThatPassItAreReadInPieces)
{
    const DataFolder folder;
    const DataSource source(folder.WriteGeometries(
        "fiji.geojson",
        {R"({"type":"Polygon","coordinates":[[[178,-18],[-178,-18],[-178,-16],[178,-16],[178,-18]]]})",
         R"({"type":"LineString","coordinates":[[170,0],[-170,0]]})",
         R"({"type":"Point","coordinates":[190,0]})"}));
    Progress progress;
    const FeatureSet features = source.Read("fiji", {}, "EPSG:4326", progress);
    EXPECT_EQ(features.Features().size(), 3u);
    EXPECT_EQ(WidestPart(features), 10);
    EXPECT_EQ(features.Bounds(), (Box{-180, -18, 180, 0}));
}

TEST(Antimeridian, ARoundingErrorLeavesAnEdgeOnItsSide)
{
    const DataFolder folder;
    const DataSource source(folder.WriteGeometries(
        "cape.geojson",
        {R"({"type":"Polygon","coordinates":[[[-180.00000000000003,65],[-170,66],[-180.00000000000003,69],)"
         R"([-180.00000000000003,65]]]})"}));
    Progress progress;
    const FeatureSet features = source.Read("cape", {}, "EPSG:8857", progress);
    EXPECT_LT(features.Bounds().maxX, 0);
}

TEST(Antimeridian, DataThatPassTheEdgeOfTheMapAreReadInPieces)
{
    const DataFolder folder;
    const DataSource source(folder.WriteGeometries(
        "ocean.geojson",
        {R"({"type":"Polygon","coordinates":[[[-40,0],[-20,0],[-20,10],[-40,10],[-40,0]]]})",
         R"({"type":"LineString","coordinates":[[-40,5],[-20,5]]})"}));
    Progress progress;
    const double degree = 111320; // metres at the equator
    EXPECT_NEAR(WidestPart(source.Read("ocean", {}, "EPSG:3832", progress)), 10 * degree, degree);
    EXPECT_NEAR(WidestPart(source.Read("ocean", {}, "EPSG:3857", progress)), 20 * degree, degree);
}

TEST(Antimeridian, ThePolesAreLeftOutOfAMercatorMap)
{
    const DataFolder folder;
    const DataSource source(folder.WriteGeometries(
        "ice.geojson",
        {R"({"type":"Polygon","coordinates":[[[-180,-90],[180,-90],[180,-70],[-180,-70],[-180,-90]]]})"}));
    Progress progress;
    const Box bounds = source.Read("ice", {}, "EPSG:3857", progress).Bounds();
    EXPECT_NEAR(bounds.minY, bounds.minX, 20000) << "a square";
    EXPECT_EQ(source.Read("ice", {}, "EPSG:4326", progress).Bounds().minY, -90);
}

TEST(Antimeridian, DataInMetresAreNotCut)
{
    const DataFolder folder;
    const DataSource source(folder.Write(
        "metres.geojson",
        R"({"type":"FeatureCollection","crs":{"type":"name","properties":{"name":"EPSG:32632"}},"features":[
        {"type":"Feature","properties":{},"geometry":{"type":"LineString","coordinates":[[-170,0],[170,0]]}}]})"));
    Progress progress;
    EXPECT_EQ(WidestPart(source.Read("metres", {}, "EPSG:32632", progress)), 340);
}

} // namespace Orvane
