// SPDX-License-Identifier: MIT
#include "ovctrls/LinePatterns.h"

#include <QPen>

#include <gtest/gtest.h>

namespace Orvane {

TEST(LinePatterns, NoTwoStylesLookAlike)
{
    for (int one = 0; one <= NoLinePattern; ++one) {
        for (int other = 0; other < one; ++other) {
            QPen pen, otherPen;
            SetLinePattern(pen, one);
            SetLinePattern(otherPen, other);
            EXPECT_NE(pen, otherPen) << one << " and " << other;
        }
    }
}

TEST(LinePatterns, StyleFifteenIsNoLine)
{
    QPen pen;
    SetLinePattern(pen, 15);
    EXPECT_EQ(pen.style(), Qt::NoPen);
}

TEST(LinePatterns, AStyleOutOfRangeLeavesThePen)
{
    for (const int style : {-1, 16, 32767}) {
        QPen pen(Qt::red, 3, Qt::DotLine);
        SetLinePattern(pen, style);
        EXPECT_EQ(pen, QPen(Qt::red, 3, Qt::DotLine)) << style;
    }
}

} // namespace Orvane
