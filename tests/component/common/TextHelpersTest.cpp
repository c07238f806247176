// SPDX-License-Identifier: MIT
#include "component/common/TextHelpers.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(NextToken, TakesTheTextBeforeTheFirstDelimiter)
{
    QString remaining = "a:b:c";
    EXPECT_EQ(NextToken(remaining, ":"), QString("a"));
    EXPECT_EQ(remaining, QString("b:c"));
}

TEST(NextToken, WithoutADelimiterTakesAllAndLeavesNothing)
{
    QString remaining = "abc";
    EXPECT_EQ(NextToken(remaining, ":"), QString("abc"));
    EXPECT_EQ(remaining, QString(""));
}

TEST(NextToken, OfTheEmptyTextIsEmpty)
{
    QString remaining = "";
    EXPECT_EQ(NextToken(remaining, ":"), QString(""));
    EXPECT_EQ(remaining, QString(""));
}

TEST(NextToken, NeighbouringAndOuterDelimitersGiveEmptyTokens)
{
    QString remaining = ":a::";
    EXPECT_EQ(NextToken(remaining, ":"), QString(""));
    EXPECT_EQ(NextToken(remaining, ":"), QString("a"));
    EXPECT_EQ(NextToken(remaining, ":"), QString(""));
    EXPECT_EQ(remaining, QString(""));
}

TEST(NextToken, ALongerDelimiterIsTakenWhole)
{
    QString remaining = "GROUPS::NOT EXPANDED";
    EXPECT_EQ(NextToken(remaining, "::"), QString("GROUPS"));
    EXPECT_EQ(remaining, QString("NOT EXPANDED"));
}

TEST(NextToken, AnEmptyDelimiterIsNeverFound)
{
    QString remaining = "abc";
    EXPECT_EQ(NextToken(remaining, ""), QString("abc"));
    EXPECT_EQ(remaining, QString(""));
}

} // namespace Orvane
