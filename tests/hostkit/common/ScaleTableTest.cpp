// SPDX-License-Identifier: MIT
#include "hostkit/common/ScaleTable.h"

#include <cmath>
#include <gmock/gmock.h>
#include <limits>

namespace Orvane {
namespace {

TEST(ScaleTable, RunsFromOneToAHundredToOneToTwoHundredMillion)
{
    const ScaleTable table;
    EXPECT_EQ(table.Denominator(1), 100);
    EXPECT_EQ(table.Denominator(255), 200'000'000);
}

TEST(ScaleTable, EveryDenominatorIsGreaterThanTheOneBefore)
{
    const ScaleTable table;
    for (qint32 index = 2; index <= 255; ++index)
        EXPECT_GT(table.Denominator(index), table.Denominator(index - 1)) << "index " << index;
}

TEST(ScaleTable, NeighboursDifferByAFewPerCent)
{
    const ScaleTable table;
    for (qint32 index = 2; index <= 255; ++index) {
        const double ratio = table.Denominator(index) / table.Denominator(index - 1);
        EXPECT_GT(ratio, 1.02) << "index " << index;
        EXPECT_LT(ratio, 1.11) << "index " << index;
    }
}

TEST(ScaleTable, DenominatorsAreWholeNumbersWithAtMostThreeLeadingDigits)
{
    const ScaleTable table;
    for (qint32 index = 1; index <= 255; ++index) {
        const double denominator = table.Denominator(index);
        const double unit = std::pow(10, std::floor(std::log10(denominator)) - 2);
        EXPECT_EQ(std::fmod(denominator, unit), 0) << denominator;
        EXPECT_EQ(denominator, std::trunc(denominator));
    }
}

TEST(ScaleTable, HoldsTheUsualMapScales)
{
    const ScaleTable table;
    for (const double usual : {500.0, 1000.0, 2500.0, 5000.0, 10000.0, 25000.0, 50000.0, 100000.0, 1e6})
        EXPECT_EQ(table.Denominator(table.Index(usual)), usual);
}

TEST(ScaleTable, IndexIsTheInverseOfDenominator)
{
    const ScaleTable table;
    for (qint32 index = 1; index <= 255; ++index)
        EXPECT_EQ(table.Index(table.Denominator(index)), index);
}

TEST(ScaleTable, AScaleBetweenTwoGoesToTheNearerOneAndInTheMiddleToTheLowerOne)
{
    const ScaleTable table;
    const double lower = table.Denominator(40);
    const double upper = table.Denominator(41);
    EXPECT_EQ(table.Index(lower + (upper - lower) * 0.4), 40);
    EXPECT_EQ(table.Index(lower + (upper - lower) * 0.5), 40);
    EXPECT_EQ(table.Index(lower + (upper - lower) * 0.6), 41);
}

TEST(ScaleTable, ScalesBeyondTheTableGoToItsEnds)
{
    const ScaleTable table;
    EXPECT_EQ(table.Index(0), 1);
    EXPECT_EQ(table.Index(-5), 1);
    EXPECT_EQ(table.Index(1e12), 255);
    EXPECT_EQ(table.Index(std::numeric_limits<double>::quiet_NaN()), 1);
    EXPECT_EQ(table.Denominator(0), 100);
    EXPECT_EQ(table.Denominator(256), 200'000'000);
}

} // namespace
} // namespace Orvane
