// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/GroundScale.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(GroundScale, AMetreOfAProjectedMapIsAboutAMetreOnTheGround)
{
    EXPECT_NEAR(GroundMetresPerUnit("EPSG:32632", {500000, 5300000}), 1, 0.001);
}

TEST(GroundScale, WebMercatorStretchesTowardsThePoles)
{
    EXPECT_NEAR(GroundMetresPerUnit("EPSG:3857", {0, 0}), 1, 0.001);
    EXPECT_NEAR(GroundMetresPerUnit("EPSG:3857", {0, 8399737.9}), 0.5, 0.003) << "60 degrees north";
}

TEST(GroundScale, ADegreeOfLongitudeShrinksWithTheLatitude)
{
    EXPECT_NEAR(GroundMetresPerUnit("EPSG:4326", {10, 0}), 111320, 10);
    EXPECT_NEAR(GroundMetresPerUnit("EPSG:4326", {10, 60}), 55800, 10);
}

TEST(GroundScale, WhereThereIsNoEarthTheMapsOwnUnitCounts)
{
    EXPECT_EQ(GroundMetresPerUnit("", {5, 5}), 1);
    EXPECT_EQ(GroundMetresPerUnit("EPSG:8857", {1e9, 1e9}), 1);
    EXPECT_GT(GroundMetresPerUnit("EPSG:4326", {0, 4000}), 100000);
}

} // namespace Orvane
