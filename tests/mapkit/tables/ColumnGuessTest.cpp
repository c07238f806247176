// SPDX-License-Identifier: MIT
#include "mapkit/tables/ColumnGuess.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

CoordinateColumns Guess(const QStringList& columns, const std::vector<QStringList>& rows)
{
    return GuessColumns({"table", columns, rows});
}

struct PairOfNames {
    const char* x;
    const char* y;
};

void PrintTo(const PairOfNames& names, std::ostream* stream)
{
    *stream << names.x << " and " << names.y;
}

class UsualNames : public testing::TestWithParam<PairOfNames>
{
};

} // namespace

TEST_P(UsualNames, AreFoundAmongOtherColumns)
{
    const auto [x, y] = GetParam();
    const QString east = QString::fromUtf8(x);
    const QString north = QString::fromUtf8(y);
    const CoordinateColumns found
        = Guess({"id", north, "name", east, "height"}, {{"1", "52.5", "Berlin", "13.4", "34"}});
    EXPECT_EQ(found.x, east);
    EXPECT_EQ(found.y, north);
    EXPECT_EQ(found.wkt, "");
}

INSTANTIATE_TEST_SUITE_P(
    Tables, UsualNames,
    testing::Values(
        PairOfNames{"lon", "lat"}, PairOfNames{"Longitude", "Latitude"}, PairOfNames{"LNG", "LAT"},
        PairOfNames{"long", "lat"}, PairOfNames{"x", "y"}, PairOfNames{"X_COORD", "Y_COORD"},
        PairOfNames{"Easting", "Northing"}, PairOfNames{"Rechtswert", "Hochwert"},
        PairOfNames{"Länge", "Breite"}, PairOfNames{"geo_laenge", "geo_breite"}, PairOfNames{"Est", "Nord"},
        PairOfNames{"decimalLongitude", "decimalLatitude"}, PairOfNames{"start_lon", "start_lat"},
        PairOfNames{"Longitude (deg)", "Latitude (deg)"}, PairOfNames{"E", "N"}));

TEST(ColumnGuess, TheSurestNamesWin)
{
    const CoordinateColumns found = Guess({"x", "y", "lon", "lat"}, {{"1", "2", "13.4", "52.5"}});
    EXPECT_EQ(found.x, "lon");
    EXPECT_EQ(found.y, "lat");
}

TEST(ColumnGuess, ColumnsWithOtherTextsAreNoCoordinates)
{
    EXPECT_TRUE(Guess({"x", "y"}, {{"yes", "no"}}).IsEmpty());
    EXPECT_TRUE(Guess({"x", "y"}, {{"", ""}}).IsEmpty());
    EXPECT_TRUE(Guess({"lat", "name"}, {{"1", "2"}}).IsEmpty());
    EXPECT_TRUE(Guess({}, {}).IsEmpty());
}

TEST(ColumnGuess, EmptyValuesBetweenNumbersDoNoHarm)
{
    EXPECT_EQ(Guess({"x", "y"}, {{"", ""}, {"1", "2"}}).x, "x");
}

TEST(ColumnGuess, ATableWithoutRowsIsKnownByItsNames)
{
    EXPECT_EQ(Guess({"x", "y"}, {}).y, "y");
}

TEST(ColumnGuess, GeometriesAsTextAreFoundByTheirValues)
{
    EXPECT_EQ(Guess({"id", "geom"}, {{"1", "POINT (1 2)"}}).wkt, "geom");
    EXPECT_EQ(
        Guess({"note", "place"}, {{"a", "SRID=4326;MultiPolygon Z(((0 0,1 0,1 1,0 0)))"}}).wkt, "place");
    EXPECT_TRUE(Guess({"geom"}, {{"Points of interest"}}).IsEmpty());
}

TEST(ColumnGuess, NumbersAreReadAsPeopleWriteThem)
{
    EXPECT_EQ(NumberOf("13.5"), 13.5);
    EXPECT_EQ(NumberOf(" -13,5 "), -13.5);
    EXPECT_EQ(NumberOf("1e3"), 1000);
    EXPECT_EQ(NumberOf("4.567.890,5"), 4567890.5);
    EXPECT_EQ(NumberOf("4,567,890.5"), 4567890.5);
    EXPECT_EQ(NumberOf("12 km"), std::nullopt);
    EXPECT_EQ(NumberOf("2,600"), 2.6);
    EXPECT_EQ(NumberOf("2.600"), 2.6);
    EXPECT_EQ(NumberOf(""), std::nullopt);
}

TEST(ColumnGuess, NumbersInGroupsOfThreeAreRead)
{
    EXPECT_EQ(NumberOf("2'600'000"), 2600000);
    EXPECT_EQ(NumberOf("2\u2019600\u2019000.25"), 2600000.25);
    EXPECT_EQ(NumberOf("-2 600 000,5"), -2600000.5);
    EXPECT_EQ(NumberOf("2\u00a0600\u00a0000"), 2600000);
    EXPECT_EQ(NumberOf("2\u202f600\u202f000"), 2600000);
    EXPECT_EQ(NumberOf("2,600,000.5"), 2600000.5);
    EXPECT_EQ(NumberOf("2,600,000"), 2600000);
    EXPECT_EQ(NumberOf("2.600.000"), 2600000);
    EXPECT_EQ(NumberOf("1 200"), 1200);
}

TEST(ColumnGuess, OtherTextsWithSeparatorsAreNoNumbers)
{
    EXPECT_EQ(NumberOf("48 52 30"), std::nullopt);
    EXPECT_EQ(NumberOf("12 3456"), std::nullopt);
    EXPECT_EQ(NumberOf("2'600 000"), std::nullopt);
    EXPECT_EQ(NumberOf("'600"), std::nullopt);
    EXPECT_EQ(NumberOf("1.2.2020"), std::nullopt);
}

} // namespace Orvane
