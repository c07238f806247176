// SPDX-License-Identifier: MIT
#include "mapkit/drawing/ReprojectedView.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(ReprojectedView, KeepsPlaceAndScale)
{
    const MapView utm({500000, 5538630.7}, 10, {800, 600}); // 9° E, 50° N
    const auto mercator = ReprojectedView(utm, "EPSG:32632", "EPSG:3857");
    ASSERT_TRUE(mercator);
    EXPECT_NEAR(mercator->Centre().x(), 9 * 111319.49, 1);
    EXPECT_NEAR(mercator->Centre().y(), 6446275.8, 1);
    EXPECT_NEAR(mercator->UnitsPerPixel(), 10 / 0.6437, 0.05); // Mercator stretches by 1 / cos 50°
    EXPECT_EQ(mercator->Size(), utm.Size());
    const auto back = ReprojectedView(*mercator, "EPSG:3857", "EPSG:32632");
    ASSERT_TRUE(back);
    EXPECT_NEAR(back->UnitsPerPixel(), 10, 0.001);
    EXPECT_NEAR(back->Centre().y(), utm.Centre().y(), 0.01);
}

TEST(ReprojectedView, DegreesAndMetresCoverTheSameGround)
{
    const auto degrees = ReprojectedView(MapView({0, 0}, 111.3195, {100, 100}), "EPSG:3857", "EPSG:4326");
    ASSERT_TRUE(degrees);
    EXPECT_NEAR(degrees->UnitsPerPixel(), 0.001, 1e-5);
}

TEST(ReprojectedView, APlaceThatTheOtherSystemDoesNotHaveGivesNone)
{
    const MapView behind({-170, -50}, 0.1, {100, 100});
    EXPECT_FALSE(ReprojectedView(behind, "EPSG:4326", "+proj=ortho +lat_0=50 +lon_0=10"));
    EXPECT_FALSE(ReprojectedView(MapView({0, 0}, 1, {100, 100}), "", "EPSG:3857"));
    EXPECT_FALSE(ReprojectedView(MapView({0, 0}, 1, {100, 100}), "EPSG:3857", "no system"));
}

} // namespace Orvane
