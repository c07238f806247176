// SPDX-License-Identifier: MIT
#include "benchmarks/Figures.h"

#include <gmock/gmock.h>

namespace Orvane::Benchmarks {

TEST(SpreadTest, TheMedianOfAnOddNumberIsTheMiddleValue)
{
    EXPECT_DOUBLE_EQ(SpreadOf({9, 1, 4}).median, 4);
}

TEST(SpreadTest, TheMedianOfAnEvenNumberIsBetweenTheMiddleTwo)
{
    EXPECT_DOUBLE_EQ(SpreadOf({8, 1, 2, 4}).median, 3);
}

TEST(SpreadTest, TheQuartilesEncloseTheMiddleHalf)
{
    const Spread spread = SpreadOf({50, 20, 10, 40, 30});
    EXPECT_DOUBLE_EQ(spread.lower, 20);
    EXPECT_DOUBLE_EQ(spread.upper, 40);
}

TEST(SpreadTest, AQuartileBetweenTwoValuesIsInterpolated)
{
    const Spread spread = SpreadOf({10, 20, 30, 40});
    EXPECT_DOUBLE_EQ(spread.lower, 17.5);
    EXPECT_DOUBLE_EQ(spread.upper, 32.5);
}

TEST(SpreadTest, OneValueIsAllThree)
{
    const Spread spread = SpreadOf({7});
    EXPECT_DOUBLE_EQ(spread.lower, 7);
    EXPECT_DOUBLE_EQ(spread.median, 7);
    EXPECT_DOUBLE_EQ(spread.upper, 7);
}

TEST(SpreadTest, WithoutValuesAllIsZero)
{
    EXPECT_DOUBLE_EQ(SpreadOf({}).median, 0);
}

TEST(GrowthTest, TenfoldTimeForTenfoldSizeIsProportional)
{
    EXPECT_NEAR(*GrowthExponent({{1000, 2}, {10000, 20}, {100000, 200}}), 1, 1e-9);
}

TEST(GrowthTest, HundredfoldTimeForTenfoldSizeIsQuadratic)
{
    EXPECT_NEAR(*GrowthExponent({{10, 1}, {100, 100}}), 2, 1e-9);
}

TEST(GrowthTest, TheSameTimeForEachSizeDoesNotGrow)
{
    EXPECT_NEAR(*GrowthExponent({{10, 3}, {100, 3}, {1000, 3}}), 0, 1e-9);
}

TEST(GrowthTest, AllPointsCount)
{
    EXPECT_NEAR(*GrowthExponent({{1, 1}, {10, 1}, {100, 100}}), 1, 1e-9);
}

TEST(GrowthTest, OneSizeTellsNothing)
{
    EXPECT_FALSE(GrowthExponent({{10, 3}, {10, 5}}));
    EXPECT_FALSE(GrowthExponent({}));
}

} // namespace Orvane::Benchmarks
