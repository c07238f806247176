// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LabelSpace.h"

#include <QTransform>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

QPolygonF Box(double x, double y, double width, double height, double angle = 0)
{
    const QRectF box(-width / 2, -height / 2, width, height);
    return QTransform().translate(x, y).rotate(angle).map(QPolygonF(box).mid(0, 4));
}

} // namespace

TEST(LabelSpace, WhatIsTakenIsNotTakenAgain)
{
    LabelSpace space;
    EXPECT_TRUE(space.Take(Box(50, 50, 40, 10)));
    EXPECT_FALSE(space.Take(Box(80, 55, 40, 10)));
    EXPECT_TRUE(space.Take(Box(95, 50, 40, 10)));
}

TEST(LabelSpace, ABoxThatWasRefusedTakesNothing)
{
    LabelSpace space;
    space.Take(Box(50, 50, 40, 10));
    EXPECT_FALSE(space.Take(Box(80, 50, 40, 10)));
    EXPECT_TRUE(space.Take(Box(95, 50, 40, 10)));
}

TEST(LabelSpace, TiltedBoxesMayLieCloserThanTheirBounds)
{
    LabelSpace space;
    EXPECT_TRUE(space.Take(Box(50, 50, 100, 6, 45)));
    EXPECT_TRUE(space.Take(Box(70, 50, 100, 6, 45)));
    EXPECT_FALSE(space.Take(Box(60, 50, 100, 6, -45)));
}

TEST(LabelSpace, FarBoxesAndNegativePlacesDoNotMeet)
{
    LabelSpace space;
    EXPECT_TRUE(space.Take(Box(-500, -500, 30, 30)));
    EXPECT_TRUE(space.Take(Box(500, 500, 30, 30)));
    EXPECT_FALSE(space.Take(Box(-490, -490, 30, 30)));
}

TEST(LabelSpace, ABlockedBoxMayOverlapOthersButIsTakenThen)
{
    LabelSpace space;
    space.Block(Box(0, 0, 10, 10));
    space.Block(Box(5, 0, 10, 10));
    EXPECT_FALSE(space.Take(Box(9, 0, 4, 4)));
}

} // namespace Orvane
