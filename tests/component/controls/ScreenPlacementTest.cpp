// SPDX-License-Identifier: MIT
#include "component/controls/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QRect area(100, 50, 800, 600);

TEST(ScreenPlacement, WhatLiesInsideStays)
{
    const QRect inside(100, 50, 800, 600);
    EXPECT_EQ(MovedInside(inside, area), inside);
}

TEST(ScreenPlacement, MovesByNoMoreThanNeeded)
{
    EXPECT_EQ(MovedInside(QRect(90, 40, 200, 100), area), QRect(100, 50, 200, 100));
    EXPECT_EQ(MovedInside(QRect(850, 640, 200, 100), area), QRect(700, 550, 200, 100));
}

TEST(ScreenPlacement, WhatIsTooLargeStartsAtTheUpperLeftCorner)
{
    EXPECT_EQ(MovedInside(QRect(300, 300, 900, 700), area), QRect(100, 50, 900, 700));
}

TEST(ScreenPlacement, APointOffAllScreensBelongsToThePrimaryOne)
{
    EXPECT_EQ(AvailableAreaAt(QPoint(-100000, 5)), QGuiApplication::primaryScreen()->availableGeometry());
}

} // namespace

} // namespace Orvane
