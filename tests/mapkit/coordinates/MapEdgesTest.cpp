// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/MapEdges.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(MapEdges, AreOppositeTheMiddleOfTheSystem)
{
    EXPECT_EQ(EdgesOf("EPSG:3832").middle, 150) << "a Mercator map of the Pacific";
    EXPECT_EQ(EdgesOf("EPSG:2154").middle, 3);
    EXPECT_EQ(EdgesOf("EPSG:8857").middle, 0);
}

TEST(MapEdges, AreThoseOfTheWholeEarthForSystemsWithoutEdges)
{
    EXPECT_EQ(EdgesOf("EPSG:3413").middle, 0) << "around the pole, with 45 degrees west below";
    EXPECT_EQ(EdgesOf("EPSG:32632").middle, 0);
    EXPECT_EQ(EdgesOf("EPSG:4326").middle, 0);
    EXPECT_EQ(EdgesOf("").middle, 0);
    EXPECT_EQ(EdgesOf("nonsense").mostLatitude, 90);
}

TEST(MapEdges, LeaveOutThePolesOnAMercatorMapOnly)
{
    EXPECT_LT(EdgesOf("EPSG:3857").mostLatitude, 86);
    EXPECT_LT(EdgesOf("EPSG:3395").mostLatitude, 86);
    EXPECT_EQ(EdgesOf("EPSG:32632").mostLatitude, 90);
    EXPECT_EQ(EdgesOf("EPSG:8857").mostLatitude, 90);
}

} // namespace Orvane
