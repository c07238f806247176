// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/EarthMeasure.h"

#include <QLocale>

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace Orvane {

namespace {

constexpr double QuarterMeridian = 10001965.729; // metres, of WGS 84

std::vector<QPointF> Square(double west, double south, double size)
{
    return {{west, south}, {west + size, south}, {west + size, south + size}, {west, south + size}};
}

// The metres of web Mercator.
QPointF Mercator(double longitude, double latitude)
{
    constexpr double radius = 6378137;
    const double angle = std::numbers::pi / 180;
    return {
        radius * longitude * angle, radius * std::log(std::tan(std::numbers::pi / 4 + latitude * angle / 2))};
}

} // namespace

TEST(EarthMeasure, KnowsTheLengthOfAMeridian)
{
    const EarthMeasure measure("EPSG:4326");
    EXPECT_NEAR(measure.Length(std::vector<QPointF>{{11, 0}, {11, 90}}).value(), QuarterMeridian, 0.01);
    EXPECT_NEAR(
        measure.Length(std::vector<QPointF>{{11, 0}, {11, 45}, {11, 90}}).value(), QuarterMeridian, 0.01);
}

TEST(EarthMeasure, GivesTheSameInEveryProjection)
{
    const std::vector<QPointF> degrees = {{11, 48}, {13, 52}};
    const std::vector<QPointF> mercator = {Mercator(11, 48), Mercator(13, 52)};
    const double length = EarthMeasure("EPSG:4326").Length(degrees).value();
    EXPECT_NEAR(EarthMeasure("EPSG:3857").Length(mercator).value(), length, 0.01);
}

TEST(EarthMeasure, CrossesTheDateLineTheShortWay)
{
    const EarthMeasure measure("EPSG:4326");
    EXPECT_NEAR(measure.Length(std::vector<QPointF>{{179, 0}, {181, 0}}).value(), 222639, 1);
    EXPECT_NEAR(measure.Length(std::vector<QPointF>{{179, 0}, {-179, 0}}).value(), 222639, 1);
}

TEST(EarthMeasure, AnAreaCountsAlikeInBothDirections)
{
    const EarthMeasure measure("EPSG:4326");
    std::vector<QPointF> ring = Square(10, 50, 1);
    const double area = measure.Area(ring).value();
    EXPECT_NEAR(area, 7.92e9, 0.05e9);
    std::reverse(ring.begin(), ring.end());
    EXPECT_NEAR(measure.Area(ring).value(), area, 1);
}

TEST(EarthMeasure, MeasuresMapUnitsWhereTheSystemIsNotKnown)
{
    const EarthMeasure measure("");
    EXPECT_FALSE(measure.KnowsEarth());
    EXPECT_EQ(measure.Length(Square(0, 0, 3)), 9);
    EXPECT_EQ(measure.Area(Square(1e9, 1e9, 3)), 9);
}

TEST(EarthMeasure, WhatIsOffTheEarthHasNoMeasure)
{
    const EarthMeasure measure("EPSG:4326");
    EXPECT_EQ(measure.Length(std::vector<QPointF>{{0, 0}, {0, 91}}), std::nullopt);
    EXPECT_EQ(measure.Area(std::vector<QPointF>{{0, 0}, {0, 91}, {1, 0}}), std::nullopt);
    const EarthMeasure projected("EPSG:8857");
    EXPECT_EQ(projected.Length(std::vector<QPointF>{{0, 0}, {9e7, 9e7}}), std::nullopt);
}

TEST(EarthMeasure, NothingAndOnePointHaveNoLength)
{
    for (const char* system : {"", "EPSG:4326"}) {
        const EarthMeasure measure(system);
        EXPECT_EQ(measure.Length({}), 0);
        EXPECT_EQ(measure.Area({}), 0);
        EXPECT_EQ(measure.Length(std::vector<QPointF>{{5, 5}}), 0);
        EXPECT_EQ(measure.Area(std::vector<QPointF>{{5, 5}, {6, 6}}), 0);
    }
}

TEST(EarthMeasure, TextsHaveTheUnitThatFits)
{
    QLocale::setDefault(QLocale::c());
    EXPECT_EQ(LengthText(0, true), "0 m");
    EXPECT_EQ(LengthText(1.234, true), "1.23 m");
    EXPECT_EQ(LengthText(12.34, true), "12.3 m");
    EXPECT_EQ(LengthText(999, true), "999 m");
    EXPECT_EQ(LengthText(1234, true), "1.23 km");
    EXPECT_EQ(AreaText(250, true), "250 m²");
    EXPECT_EQ(AreaText(25000, true), "2.50 ha");
    EXPECT_EQ(AreaText(2.5e6, true), "2.50 km²");
    EXPECT_EQ(LengthText(1234.4, false), "1234");
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(LengthText(1234, true), "1,23 km");
    QLocale::setDefault(QLocale::system());
}

} // namespace Orvane
