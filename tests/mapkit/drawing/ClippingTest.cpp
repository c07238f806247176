// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Clipping.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QRectF Area(0, 0, 100, 50);

} // namespace

TEST(Clipping, ASegmentInsideStaysAsItIs)
{
    QPointF from(10, 10), to(90, 40);
    EXPECT_TRUE(ClipSegment(from, to, Area));
    EXPECT_EQ(from, QPointF(10, 10));
    EXPECT_EQ(to, QPointF(90, 40));
}

TEST(Clipping, ASegmentAcrossIsCutAtBothEdges)
{
    QPointF from(-50, 25), to(150, 25);
    EXPECT_TRUE(ClipSegment(from, to, Area));
    EXPECT_EQ(from, QPointF(0, 25));
    EXPECT_EQ(to, QPointF(100, 25));
}

TEST(Clipping, ASegmentThatPassesByIsRefused)
{
    QPointF from(-10, 45), to(5, 70);
    EXPECT_FALSE(ClipSegment(from, to, Area));
    EXPECT_EQ(from, QPointF(-10, 45));
}

TEST(Clipping, AVerticalSegmentBesideTheAreaIsRefused)
{
    QPointF from(-1, 0), to(-1, 50);
    EXPECT_FALSE(ClipSegment(from, to, Area));
}

TEST(Clipping, AnEndlessSegmentIsCutWithoutLosingItsDirection)
{
    QPointF from(50, 25), to(50 + 1e15, 25);
    EXPECT_TRUE(ClipSegment(from, to, Area));
    EXPECT_NEAR(to.x(), 100, 1e-6);
    EXPECT_NEAR(to.y(), 25, 1e-6);
}

TEST(Clipping, ARingAroundTheAreaBecomesTheArea)
{
    const QPolygonF ring({{-10, -10}, {110, -10}, {110, 60}, {-10, 60}});
    EXPECT_EQ(ClipRing(ring, Area).boundingRect(), Area);
}

TEST(Clipping, ARingInsideKeepsItsCorners)
{
    const QPolygonF ring({{10, 10}, {20, 10}, {15, 30}});
    const QPolygonF clipped = ClipRing(ring, Area);
    EXPECT_EQ(clipped.size(), 3);
    for (const QPointF& corner : ring)
        EXPECT_TRUE(clipped.contains(corner));
}

TEST(Clipping, ARingOutsideLeavesNothing)
{
    EXPECT_TRUE(ClipRing(QPolygonF(QList<QPointF>{{200, 10}, {220, 10}, {215, 30}}), Area).isEmpty());
    EXPECT_TRUE(ClipRing(QPolygonF(), Area).isEmpty());
}

TEST(Clipping, ALineIsCutIntoTheRunsThatAreInside)
{
    const QPolygonF line({{-10, 5}, {5, 5}, {5, 30}, {8, 30}, {8, 5}, {8, 2}});
    const std::vector<ClippedRun> runs = ClipLine(line, QRectF(0, 0, 10, 10));
    ASSERT_EQ(runs.size(), 2u);
    EXPECT_EQ(runs[0].points, QPolygonF(QList<QPointF>{{0, 5}, {5, 5}, {5, 10}}));
    EXPECT_EQ(runs[0].lengthBefore, 10);
    EXPECT_EQ(runs[1].points, QPolygonF(QList<QPointF>{{8, 10}, {8, 5}, {8, 2}}));
    EXPECT_EQ(runs[1].lengthBefore, 15 + 25 + 3 + 20);
}

TEST(Clipping, ALineInsideIsOneRunAndOneOutsideNone)
{
    const QRectF area(0, 0, 10, 10);
    const QPolygonF inside(QList<QPointF>{{1, 1}, {9, 9}, {9, 1}});
    ASSERT_EQ(ClipLine(inside, area).size(), 1u);
    EXPECT_EQ(ClipLine(inside, area)[0].points, inside);
    EXPECT_TRUE(ClipLine(QPolygonF(QList<QPointF>{{-5, -5}, {-1, 20}}), area).empty());
    EXPECT_TRUE(ClipLine(QPolygonF(), area).empty());
}

} // namespace Orvane
