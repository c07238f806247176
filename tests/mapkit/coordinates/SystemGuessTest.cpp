// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/SystemGuess.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const MapPlace NewMap;
const MapPlace Utm{"EPSG:32632", {500000, 5500000, 510000, 5510000}};
const Box InGermany{1000000, 6600000, 1100000, 6700000}; // web Mercator

} // namespace

TEST(SystemGuess, DegreesAreAssumedWhereTheyFit)
{
    EXPECT_EQ(GuessSystem({-180, -90, 180, 90}, NewMap), AssumedDegrees);
    EXPECT_EQ(GuessSystem({-180.0000001, -90, 180.0000001, 83.6}, NewMap), AssumedDegrees);
    EXPECT_EQ(GuessSystem({8, 50, 9, 51}, Utm), AssumedDegrees);
}

TEST(SystemGuess, MoreThanTheEarthIsNoDegrees)
{
    EXPECT_EQ(GuessSystem({-180, -90, 181, 90}, NewMap), "");
    EXPECT_EQ(GuessSystem({0, 0, 10, 91}, NewMap), "");
}

TEST(SystemGuess, DegreesGoOnAcrossTheDateLine)
{
    EXPECT_EQ(GuessSystem({170, -20, 190, -10}, NewMap), AssumedDegrees);
    EXPECT_EQ(GuessSystem({-190, -20, -170, -10}, NewMap), AssumedDegrees);
    EXPECT_EQ(GuessSystem({0, 0, 300, 80}, NewMap), "") << "a plan in metres";
    EXPECT_EQ(GuessSystem({190, 0, 200, 10}, NewMap), "");
}

TEST(SystemGuess, AnAreaAcrossTheDateLineIsMetFromBothSides)
{
    const QString newZealand = "EPSG:2193";
    EXPECT_EQ(GuessSystem({1000000, 4700000, 2300000, 6300000}, {newZealand, {}}), newZealand);
    const QString east = "EPSG:32601"; // from -180 to -174
    EXPECT_EQ(GuessSystem({150000, 7000000, 400000, 7200000}, {east, {}}), east);
}

TEST(SystemGuess, NothingIsAssumedWithoutAnExtent)
{
    EXPECT_EQ(GuessSystem({}, Utm), "");
}

TEST(SystemGuess, TheMapsSystemIsAssumedInItsArea)
{
    EXPECT_EQ(GuessSystem({400000, 5300000, 600000, 5400000}, Utm), "EPSG:32632");
    EXPECT_EQ(GuessSystem({4400000, 5300000, 4600000, 5400000}, Utm), "");
    EXPECT_EQ(GuessSystem({1e9, 1e9, 2e9, 2e9}, Utm), "");
}

TEST(SystemGuess, AWorldWideSystemFitsOnlyWhereTheMapHasDataOfARegion)
{
    EXPECT_EQ(GuessSystem({1050000, 6650000, 1060000, 6660000}, {"EPSG:3857", InGermany}), "EPSG:3857");
    EXPECT_EQ(GuessSystem({500000, 5500000, 600000, 5600000}, {"EPSG:3857", InGermany}), "");
    EXPECT_EQ(GuessSystem({1050000, 6650000, 1060000, 6660000}, {"EPSG:3857", {-2e7, -2e7, 2e7, 2e7}}), "");
    EXPECT_EQ(GuessSystem({1050000, 6650000, 1060000, 6660000}, {"EPSG:3857", {}}), "");
}

TEST(SystemGuess, SmallNumbersBelongToAMapWhoseDataHaveThemAtTheSamePlace)
{
    const MapPlace plan{"+proj=tmerc +lon_0=9 +datum=WGS84", {0, 0, 120, 80}};
    EXPECT_EQ(GuessSystem({10, 10, 20, 20}, plan), plan.system);
    EXPECT_EQ(GuessSystem({-60, -60, -50, -50}, plan), AssumedDegrees);
}

} // namespace Orvane
