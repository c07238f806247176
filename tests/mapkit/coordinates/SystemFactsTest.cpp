// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/SystemFacts.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(SystemFacts, TellNameCodeUnitAndArea)
{
    const SystemFacts facts = FactsOf("EPSG:32632");
    EXPECT_TRUE(facts.isKnown);
    EXPECT_FALSE(facts.isGeographic);
    EXPECT_EQ(facts.name, "WGS 84 / UTM zone 32N");
    EXPECT_EQ(facts.code, "EPSG:32632");
    EXPECT_EQ(facts.unit, "metre");
    EXPECT_TRUE(facts.areaName.contains("Germany"));
    EXPECT_EQ(facts.area.minX, 6);
    EXPECT_EQ(facts.area.maxX, 12);
}

TEST(SystemFacts, ASystemWithoutACodeHasItsName)
{
    EXPECT_EQ(SystemTitle("EPSG:32632"), "WGS 84 / UTM zone 32N (EPSG:32632)");
    EXPECT_EQ(SystemTitle("+proj=aeqd +lat_0=10 +lon_0=20 +datum=WGS84"), "unknown");
    EXPECT_EQ(SystemTitle("no system"), "no system");
    EXPECT_EQ(SystemTitle(""), "");
}

TEST(SystemFacts, SystemsThatAreNotForMapsAreNotKnown)
{
    EXPECT_FALSE(FactsOf("EPSG:4978").isKnown); // geocentric
    EXPECT_FALSE(FactsOf("EPSG:5703").isKnown); // heights
    EXPECT_FALSE(FactsOf("").isKnown);
}

TEST(SystemFacts, NoFileAndNoAddressIsOpenedForASystem)
{
    EXPECT_FALSE(FactsOf("http://localhost:9/system.wkt").isKnown);
    EXPECT_FALSE(FactsOf("/etc/hostname").isKnown);
}

TEST(SystemFacts, ABoxIsTransformedWithItsEdges)
{
    const Box degrees = InDegrees({400000, 5400000, 600000, 5600000}, "EPSG:32632");
    EXPECT_NEAR(degrees.minX, 7.6, 0.1);
    EXPECT_NEAR(degrees.maxY, 50.55, 0.1);
    EXPECT_TRUE(InDegrees({0, 0, 1, 1}, "").IsEmpty());
    EXPECT_TRUE(InDegrees({}, "EPSG:32632").IsEmpty());
}

TEST(SystemFacts, ABoxAcrossTheDateLineGoesOnBeyondIt)
{
    const Box zealand = InDegrees({1000000, 4700000, 2800000, 6300000}, "EPSG:2193");
    EXPECT_NEAR(zealand.minX, 165, 0.1);
    EXPECT_NEAR(zealand.maxX, 188.7, 0.1);
    EXPECT_EQ(InDegrees({170, -10, 190, 10}, "EPSG:4326"), (Box{170, -10, 190, 10}));
    EXPECT_NEAR(InDegrees({170, -10, 190, 10}, "EPSG:4258").maxX, 190, 1e-6);
    EXPECT_TRUE(Transformed({1000000, 4700000, 2800000, 6300000}, "EPSG:2193", "EPSG:4326").IsEmpty());
}

} // namespace Orvane
