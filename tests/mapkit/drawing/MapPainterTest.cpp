// SPDX-License-Identifier: MIT
#include "mapkit/drawing/MapPainter.h"

#include "mapkit/Drawings.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// One map unit per pixel; (0, 0) is the lower left corner.
const MapView View({50, 50}, 1, QSize(100, 100));
constexpr double Scale = 10000;

class MapPainterTest : public testing::Test
{
protected:
    // The map at this many dots per pixel.
    QImage Picture(const std::vector<MapLayer>& layers, int dots = 1)
    {
        QImage image(View.Size() * dots, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(dots, dots);
        m_finished = PaintMap(painter, layers, View, Scale, m_cancelled);
        return image;
    }

    std::atomic<bool> m_cancelled = false;
    bool m_finished = false;
};

MapLayer BlueBelowRed()
{
    return FilledLayer(1, Qt::blue, Area(0, 0, 100, 100), 200);
}

MapLayer RedAbove()
{
    return FilledLayer(2, Qt::red, Area(20, 20, 60, 60), 10);
}

} // namespace

TEST_F(MapPainterTest, PaintsTheLayersInTheirOrder)
{
    const QImage image = Picture({RedAbove(), BlueBelowRed()});
    EXPECT_TRUE(m_finished);
    EXPECT_EQ(image.pixelColor(40, 60), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::blue));
}

TEST_F(MapPainterTest, ABackdropIsPaleAndBelow)
{
    MapLayer backdrop = RedAbove();
    backdrop.mode = DrawMode::Backdrop;
    EXPECT_EQ(Picture({backdrop, BlueBelowRed()}).pixelColor(40, 60), QColor(Qt::blue));
    const QColor alone = Picture({backdrop}).pixelColor(40, 60);
    EXPECT_EQ(alone.red(), 255);
    EXPECT_GT(alone.green(), 120);
}

TEST_F(MapPainterTest, AFinerDeviceShowsTheSameMapInFinerDots)
{
    const QImage image = Picture({BlueBelowRed(), RedAbove()}, 6);
    EXPECT_EQ(image.pixelColor(6 * 40, 6 * 60), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(6 * 20 - 1, 6 * 60), QColor(Qt::blue));
    EXPECT_EQ(image.pixelColor(6 * 20 + 1, 6 * 60), QColor(Qt::red));
}

TEST_F(MapPainterTest, AFinerDeviceShowsDetailThatAScreenHides)
{
    std::vector<QPointF> teeth;
    for (int i = 0; i < 160; ++i)
        teeth.emplace_back(10 + i * 0.5, i % 2 == 0 ? 50 : 50.4);
    MapLayer line = FilledLayer(1, Qt::blue, Line(teeth));
    line.look.outline = QPen(Qt::black, 0.1);
    const QImage image = Picture({line}, 20);
    int turns = 0;
    const int row = 20 * 50 - 4;
    for (int x = 1; x < image.width(); ++x)
        turns += (image.pixelColor(x, row) == QColor(Qt::white))
            != (image.pixelColor(x - 1, row) == QColor(Qt::white));
    EXPECT_GT(turns, 200);
}

TEST_F(MapPainterTest, NothingIsPaintedOutsideTheView)
{
    QImage image(300, 300, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(100, 100);
    PaintMap(painter, {FilledLayer(1, Qt::blue, Area(-500, -500, 500, 500))}, View, Scale, m_cancelled);
    EXPECT_EQ(image.pixelColor(150, 150), QColor(Qt::blue));
    for (const QPoint outside : {QPoint(98, 150), QPoint(202, 150), QPoint(150, 98), QPoint(150, 202)})
        EXPECT_EQ(image.pixelColor(outside), QColor(Qt::white));
}

TEST_F(MapPainterTest, CancelledWorkTellsSo)
{
    m_cancelled = true;
    EXPECT_EQ(Picture({RedAbove()}).pixelColor(40, 60), QColor(Qt::white));
    EXPECT_FALSE(m_finished);
}

TEST_F(MapPainterTest, ThePaintersStateIsKept)
{
    QImage image(100, 100, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setPen(QPen(Qt::magenta, 7));
    MapLayer backdrop = RedAbove();
    backdrop.mode = DrawMode::Backdrop;
    PaintMap(painter, {backdrop}, View, Scale, m_cancelled);
    EXPECT_EQ(painter.pen(), QPen(Qt::magenta, 7));
    EXPECT_EQ(painter.opacity(), 1);
    EXPECT_FALSE(painter.hasClipping());
}

} // namespace Orvane
