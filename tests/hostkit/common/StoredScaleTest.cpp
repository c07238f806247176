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
    for (qint32 index = 0; index <= 256; ++index)
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

TEST(StoredScale, NoLimitIsZeroBelowAndBeyondAnyMapAbove)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::FromIndex(0, services), 0);
    EXPECT_EQ(StoredScale::FromIndex(256, services), StoredScale::NoMaximum);
    EXPECT_GT(StoredScale::NoMaximum, services.ScaleFromIndex(255));
}

TEST(StoredScale, StoredNonsenseReadsAsNoLimit)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::ToIndex(-1, services), 0);
    EXPECT_EQ(StoredScale::ToIndex(std::numeric_limits<double>::quiet_NaN(), services), 0);
    EXPECT_EQ(StoredScale::ToIndex(1e300, services), 256);
}

TEST(StoredScale, AnIndexOutsideTheDialogsRangeIsNoLimit)
{
    const StandardShellServices services;
    EXPECT_EQ(StoredScale::FromIndex(-7, services), StoredScale::NoMinimum);
    EXPECT_EQ(StoredScale::FromIndex(1000, services), StoredScale::NoMaximum);
}

} // namespace
} // namespace Orvane
