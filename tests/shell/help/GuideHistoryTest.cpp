// SPDX-License-Identifier: MIT
#include "shell/help/GuideHistory.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(GuideHistory, GoesBackToAPlaceAsItWasLeft)
{
    GuideHistory history;
    history.Visit("page", "one");
    history.Leave(40);
    history.Visit("page", "two");
    ASSERT_TRUE(history.Has(-1));
    EXPECT_EQ(history.At(-1).top, 40);
    history.Go(-1);
    EXPECT_EQ(history.Section(), "one");
    EXPECT_TRUE(history.Has(1));
    EXPECT_FALSE(history.Has(-1));
}

TEST(GuideHistory, ANewPlaceForgetsThoseThatCameAfter)
{
    GuideHistory history;
    history.Visit("page", "one");
    history.Visit("page", "two");
    history.Go(-1);
    history.Visit("page", "three");
    EXPECT_FALSE(history.Has(1));
    EXPECT_EQ(history.At(-1).section, "one");
}

TEST(GuideHistory, ThePresentPlaceAgainIsNoVisit)
{
    GuideHistory history;
    EXPECT_FALSE(history.Has(0));
    history.Leave(10);
    history.Visit("page", "one");
    history.Visit("page", "one");
    EXPECT_FALSE(history.Has(-1));
    history.Visit("other page", "one");
    EXPECT_TRUE(history.Has(-1));
}

} // namespace Orvane
