// SPDX-License-Identifier: MIT
#include "hosts/ValueMatchers.h"

#include <OrvaneShellLib/QuickModes.h>

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

TEST(QuickMode, ComesFromTheThreeOverrideModes)
{
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(0)), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(1)), 2);
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(2)), 4);
}

TEST(QuickMode, IsNormalForAnyOtherOverrideMode)
{
    for (const qint32 mode : {-1, 3, 4, 255, 2147483647})
        EXPECT_EQ(QuickModeFromOverrideMode(mode), 1) << mode;
    EXPECT_EQ(QuickModeFromOverrideMode(0.5), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(1e300), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(Value::Null()), 1);
}

TEST(QuickMode, IsRefusedFromAText)
{
    EXPECT_THROW(QuickModeFromOverrideMode(QStringLiteral("hidden")), RunTimeError);
}

TEST(QuickMode, GoesBackToTheThreeOverrideModes)
{
    EXPECT_EQ(OverrideModeFromQuickMode(1), qint16(0));
    EXPECT_EQ(OverrideModeFromQuickMode(2), qint16(1));
    EXPECT_EQ(OverrideModeFromQuickMode(4), qint16(2));
}

TEST(QuickMode, WritesNothingForVariousOrSeveralBits)
{
    for (const qint16 mode : {0, 3, 5, 6, 7, 8, -1})
        EXPECT_EQ(OverrideModeFromQuickMode(mode), std::nullopt) << mode;
}
