// SPDX-License-Identifier: MIT
#include "hostkit/common/StoredScale.h"

#include "hostkit/StandardShellServices.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane {
namespace {

TEST(StoredScale, TheTwoConversionsAreInverseForAllIndexes)
{
    const StandardShellServices services;
    for (qint32 index = 0; index < 256; ++index)
        EXPECT_EQ(StoredScale::ToIndex(StoredScale::FromIndex(index, services), services), index);
}

TEST(StoredScale, EveryStoredScaleSurvivesStorageAsAWholeThirtyTwoBitNumber)
{
    const StandardShellServices services;
    for (qint32 index = 0; index <= 256; ++index) {
        const double stored = StoredScale::FromIndex(index, services);
        EXPECT_EQ(ToInt32(stored), stored);
    }
}

TEST(StoredScale, NoLimitIsStoredInOneWayAndReadInBoth)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::FromIndex(0, services), 0);
    EXPECT_EQ(StoredScale::FromIndex(256, services), 0);
    EXPECT_EQ(StoredScale::ToIndex(0, services), 0);
    EXPECT_EQ(StoredScale::ToIndex(2'000'000'000, services), 0);
    EXPECT_GT(StoredScale::BeyondAllScales, services.ScaleFromIndex(255));
}

TEST(StoredScale, StoredNonsenseReadsAsNoLimit)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::ToIndex(-1, services), 0);
    EXPECT_EQ(StoredScale::ToIndex(std::numeric_limits<double>::quiet_NaN(), services), 0);
    EXPECT_EQ(StoredScale::ToIndex(1e300, services), 0);
}

TEST(StoredScale, AnIndexOutsideTheDialogsRangeIsNoLimit)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::FromIndex(-7, services), StoredScale::NoLimit);
    EXPECT_EQ(StoredScale::FromIndex(1000, services), StoredScale::NoLimit);
}

} // namespace
} // namespace Orvane
