// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/BoxOnMap.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

constexpr auto BoxDegrees = "EPSG:4326";
constexpr auto EqualEarth = "EPSG:8857";
constexpr auto WebMercator = "EPSG:3857";
constexpr auto ArcticStereographic = "EPSG:3413";
constexpr double MercatorEdge = 20037508.34;
constexpr double MercatorTop = 20048966; // at 85.06 degrees
constexpr double EqualEarthEdge = 17243959;

} // namespace

TEST(BoxOnMap, AWorldFromZeroTo360ReachesBothEdges)
{
    const Box equalEarth = BoxOnMap({0, -90, 360, 90}, BoxDegrees, EqualEarth);
    EXPECT_NEAR(equalEarth.minX, -EqualEarthEdge, 100);
    EXPECT_NEAR(equalEarth.maxX, EqualEarthEdge, 100);
    const Box mercator = BoxOnMap({0, -80, 360, 80}, BoxDegrees, WebMercator);
    EXPECT_NEAR(mercator.minX, -MercatorEdge, 1);
    EXPECT_NEAR(mercator.maxX, MercatorEdge, 1);
}

TEST(BoxOnMap, WhatPassesTheEdgeOfAMapWithAnotherMiddleReachesBothEdges)
{
    const Box pacific = BoxOnMap({-40, 0, -20, 10}, BoxDegrees, "EPSG:3832"); // cut at 30 degrees west
    EXPECT_NEAR(pacific.minX, -MercatorEdge, 1);
    EXPECT_NEAR(pacific.maxX, MercatorEdge, 1);
    EXPECT_NEAR(BoxOnMap({170, 0, 190, 10}, BoxDegrees, "EPSG:3832").Width(), 20 * 111319.49, 1);
}

TEST(BoxOnMap, APoleInsideIsTheWholeEdgeOfAMap)
{
    const Box mercator = BoxOnMap({-4e6, -4e6, 4e6, 4e6}, ArcticStereographic, WebMercator);
    EXPECT_NEAR(mercator.minX, -MercatorEdge, 1);
    EXPECT_NEAR(mercator.maxX, MercatorEdge, 1);
    EXPECT_NEAR(mercator.maxY, MercatorTop, 20000);
    const Box degrees = BoxOnMap({-4e6, -4e6, 4e6, 4e6}, ArcticStereographic, BoxDegrees);
    EXPECT_NEAR(degrees.maxY, 90, 1e-6);
    EXPECT_NEAR(degrees.Width(), 360, 1e-6);
}

TEST(BoxOnMap, APoleAtTheEndOfLongitudesIsNoReasonForAllOfThem)
{
    const Box box = BoxOnMap({-5, 60, 5, 90}, BoxDegrees, WebMercator);
    EXPECT_NEAR(box.Width(), 10 * 111319.49, 1);
    EXPECT_NEAR(BoxOnMap({-1e6, 0, 1e6, 10018754}, "EPSG:4087", WebMercator).Width(), 2e6, 1000);
}

TEST(BoxOnMap, TheHighestPlaceOfABentSideCounts)
{
    // The upper side of the box is highest where it crosses 10 degrees east, not at a point of the grid.
    const Box box = BoxOnMap({3e6, 2e6, 5.9e6, 5.5e6}, "EPSG:3035", WebMercator);
    Box around;
    around.Add(QPointF(4321000, 5.5e6));
    around.Add(QPointF(4321001, 5.5e6 - 1));
    EXPECT_NEAR(box.maxY, BoxOnMap(around, "EPSG:3035", WebMercator).maxY, 1);
}

TEST(BoxOnMap, AMapAroundAPoleGoesOnBeyondItsAreaOfUse)
{
    const Box greenland = BoxOnMap({-75, 59, -10, 84}, BoxDegrees, ArcticStereographic);
    Box cape;
    cape.Add(QPointF(-43.95, 59));
    cape.Add(QPointF(-43.85, 59.1));
    EXPECT_LE(greenland.minY, BoxOnMap(cape, BoxDegrees, ArcticStereographic).minY);
}

TEST(BoxOnMap, AMapAroundAPoleHasNoRoomForTheOtherOne)
{
    const Box world = BoxOnMap({-180, -90, 180, 90}, BoxDegrees, ArcticStereographic);
    EXPECT_LT(world.Width(), 1.2e8);
    EXPECT_GT(world.Width(), 4e7);
}

TEST(BoxOnMap, AMercatorMapEndsBeforeThePoles)
{
    const Box world = BoxOnMap({-180, -90, 180, 90}, BoxDegrees, WebMercator);
    EXPECT_NEAR(world.minY, -MercatorTop, 20000);
    EXPECT_NEAR(world.maxY, MercatorTop, 20000);
    EXPECT_TRUE(BoxOnMap({0, 88, 10, 90}, BoxDegrees, WebMercator).IsEmpty());
}

TEST(BoxOnMap, NothingIsKnownWithoutASystem)
{
    EXPECT_TRUE(BoxOnMap({0, 0, 1, 1}, "no system", WebMercator).IsEmpty());
    EXPECT_TRUE(BoxOnMap({0, 0, 1, 1}, BoxDegrees, "").IsEmpty());
    EXPECT_TRUE(BoxOnMap({}, BoxDegrees, WebMercator).IsEmpty());
    const Box box{0, 0, 360, 1};
    EXPECT_EQ(BoxOnMap(box, BoxDegrees, BoxDegrees), box);
}

} // namespace Orvane
