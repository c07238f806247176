// SPDX-License-Identifier: MIT
#include "mapkit/drawing/LabelSpots.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace LabelSpots;

namespace {

constexpr QSizeF Size(40, 12);

QPolygonF Rectangle(double left, double top, double right, double bottom)
{
    return QPolygonF(QList<QPointF>{{left, top}, {right, top}, {right, bottom}, {left, bottom}});
}

} // namespace

TEST(LabelSpots, APointsTextFirstStandsAtItsRight)
{
    const std::vector<LabelSpot> spots = AroundPoint({100, 100}, 3, Size);
    ASSERT_EQ(spots.size(), 4u);
    EXPECT_GT(spots[0].centre.x() - Size.width() / 2, 103);
    EXPECT_EQ(spots[0].centre.y(), 100);
    for (const LabelSpot& spot : spots)
        EXPECT_EQ(spot.angle, 0);
}

TEST(LabelSpots, ALinesTextStandsAboveItsMiddleAndFollowsIt)
{
    const std::vector<LabelSpot> spots = AlongLine(QPolygonF(QList<QPointF>{{0, 0}, {100, 100}}), 1, Size);
    ASSERT_FALSE(spots.empty());
    EXPECT_DOUBLE_EQ(spots[0].angle, 45);
    EXPECT_NEAR(spots[0].centre.x() - 50, 50 - spots[0].centre.y(), 1e-9);
    EXPECT_LT(spots[0].centre.y(), 50);
}

TEST(LabelSpots, TheTextOfABroadLineStandsOnIt)
{
    const std::vector<LabelSpot> spots = AlongLine(QPolygonF(QList<QPointF>{{0, 50}, {100, 50}}), 14, Size);
    ASSERT_FALSE(spots.empty());
    EXPECT_EQ(spots[0].centre, QPointF(50, 50));
}

TEST(LabelSpots, NoTextIsUpsideDown)
{
    for (const QPointF end : {QPointF(-100, 0), QPointF(-100, 70), QPointF(-90, -80), QPointF(3, -100)}) {
        for (const LabelSpot& spot : AlongLine(QPolygonF({QPointF(0, 0), end}), 1, Size)) {
            EXPECT_GE(spot.angle, -90);
            EXPECT_LE(spot.angle, 90);
        }
    }
}

TEST(LabelSpots, ABentLineIsNamedWhereItIsStraight)
{
    QPolygonF line;
    for (int i = 0; i <= 20; ++i)
        line << QPointF(i * 5, i % 2 == 0 ? 0 : 30);
    line << QPointF(400, 0);
    const std::vector<LabelSpot> spots = AlongLine(line, 1, Size);
    ASSERT_FALSE(spots.empty());
    for (const LabelSpot& spot : spots)
        EXPECT_GT(spot.centre.x(), 100);
}

TEST(LabelSpots, AShortLineAndAPointOfALineHaveNoPlace)
{
    EXPECT_TRUE(AlongLine(QPolygonF(QList<QPointF>{{0, 0}, {30, 0}}), 1, Size).empty());
    EXPECT_TRUE(AlongLine(QPolygonF(QList<QPointF>{{0, 0}}), 1, Size).empty());
    EXPECT_TRUE(AlongLine(QPolygonF(), 1, Size).empty());
}

TEST(LabelSpots, AnAreasTextStandsInItsMiddle)
{
    const QPolygonF ring = Rectangle(0, 0, 100, 60);
    const std::vector<LabelSpot> spots = InsideArea({&ring, 1}, Size);
    ASSERT_FALSE(spots.empty());
    EXPECT_NEAR(spots[0].centre.x(), 50, 1);
    EXPECT_NEAR(spots[0].centre.y(), 30, 4);
}

TEST(LabelSpots, TheTextOfACrescentStandsInsideIt)
{
    const QPolygonF ring(
        {{0, 0}, {200, 0}, {200, 20}, {60, 20}, {60, 180}, {200, 180}, {200, 200}, {0, 200}});
    const std::vector<LabelSpot> spots = InsideArea({&ring, 1}, Size);
    ASSERT_FALSE(spots.empty());
    for (const LabelSpot& spot : spots) {
        const QRectF box(spot.centre - QPointF(19, 6), QSizeF(38, 12));
        for (const QPointF corner : {box.topLeft(), box.topRight(), box.bottomLeft(), box.bottomRight()})
            EXPECT_TRUE(ring.containsPoint(corner, Qt::OddEvenFill));
    }
}

TEST(LabelSpots, AHoleIsNoPlace)
{
    const std::vector<QPolygonF> rings = {Rectangle(0, 0, 200, 60), Rectangle(60, 5, 195, 55)};
    const std::vector<LabelSpot> spots = InsideArea(rings, Size);
    ASSERT_FALSE(spots.empty());
    EXPECT_LT(spots[0].centre.x() + Size.width() / 2, 63);
}

TEST(LabelSpots, ASmallAreaHasNoPlace)
{
    const QPolygonF narrow = Rectangle(0, 0, 30, 200);
    EXPECT_TRUE(InsideArea({&narrow, 1}, Size).empty());
    const QPolygonF low = Rectangle(0, 0, 200, 8);
    EXPECT_TRUE(InsideArea({&low, 1}, Size).empty());
    EXPECT_TRUE(InsideArea({}, Size).empty());
}

} // namespace Orvane
