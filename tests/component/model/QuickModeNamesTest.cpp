// SPDX-License-Identifier: MIT
#include "component/model/QuickModeNames.h"

#include <gtest/gtest.h>

using namespace Orvane;

TEST(QuickModeNamesTest, EachModeIsFoundByItsName)
{
    for (const qint16 mode : QuickModeNames::Modes)
        EXPECT_EQ(QuickModeNames::ModeOf(QuickModeNames::NameOf(mode)), mode) << mode;
    EXPECT_EQ(QuickModeNames::NameOf(QuickMode::Backdrop), "backdrop");
}

TEST(QuickModeNamesTest, NothingElseHasAName)
{
    EXPECT_EQ(QuickModeNames::NameOf(QuickMode::Various), QString());
    EXPECT_EQ(QuickModeNames::NameOf(3), QString());
    EXPECT_EQ(QuickModeNames::ModeOf("Normal"), QuickMode::Various);
    EXPECT_EQ(QuickModeNames::ModeOf(QString()), QuickMode::Various);
}
