// SPDX-License-Identifier: MIT
#include "mapkit/drawing/FeaturePainter.h"

#include "mapkit/Drawings.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// One map unit per pixel; (0, 0) is the window's lower left corner.
const MapView View({50, 50}, 1, QSize(100, 100));

class FeaturePainterTest : public testing::Test
{
protected:
    FeaturePainterTest()
    {
        m_look.outline = QPen(Qt::NoPen);
        m_look.fill = QColor(Qt::blue);
        m_look.symbol = QColor(Qt::red);
        m_image.fill(Qt::white);
    }

    void Paint(const FeatureSet& features)
    {
        QPainter painter(&m_image);
        FeaturePainter(painter, View, m_look).Paint(features, m_cancelled);
    }

    QColor At(int x, int y) const { return m_image.pixelColor(x, 99 - y); }

    QImage m_image{100, 100, QImage::Format_RGB32};
    LayerLook m_look;
    std::atomic<bool> m_cancelled = false;
};

} // namespace

TEST_F(FeaturePainterTest, AnAreaIsFilledInsideAndNotOutside)
{
    Paint(*Area(20, 20, 60, 60));
    EXPECT_EQ(At(40, 40), QColor(Qt::blue));
    EXPECT_EQ(At(70, 40), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, ARingInARingIsAHole)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area);
    for (const auto& ring : {Area(10, 10, 90, 90), Area(40, 40, 60, 60)})
        set.AddPart(ring->Part(0));
    Paint(set);
    EXPECT_EQ(At(20, 50), QColor(Qt::blue));
    EXPECT_EQ(At(50, 50), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, AnAreaFarLargerThanTheWindowFillsIt)
{
    Paint(*Area(-1e9, -1e9, 1e9, 1e9));
    EXPECT_EQ(At(0, 0), QColor(Qt::blue));
    EXPECT_EQ(At(99, 99), QColor(Qt::blue));
}

TEST_F(FeaturePainterTest, AnAreaSmallerThanAPixelLeavesASpeck)
{
    Paint(*Area(50, 49.9, 50.1, 50));
    EXPECT_EQ(At(50, 49), QColor(Qt::blue));
}

TEST_F(FeaturePainterTest, ALineTakesThePensColourAndWidth)
{
    m_look.outline = QPen(Qt::darkGreen, 6);
    Paint(*Line({{10, 50}, {90, 50}}));
    EXPECT_EQ(At(50, 51), QColor(Qt::darkGreen));
    EXPECT_EQ(At(50, 48), QColor(Qt::darkGreen));
    EXPECT_EQ(At(50, 56), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, ALineThatLeavesAndReturnsIsDrawnWhereItIsInside)
{
    m_look.outline = QPen(Qt::darkGreen, 4);
    Paint(*Line({{10, 50}, {300, 50}, {300, 20}, {10, 20}}));
    EXPECT_EQ(At(95, 50), QColor(Qt::darkGreen));
    EXPECT_EQ(At(95, 20), QColor(Qt::darkGreen));
    EXPECT_EQ(At(95, 35), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, ALineWithoutAPenIsNotDrawn)
{
    Paint(*Line({{10, 50}, {90, 50}}));
    EXPECT_EQ(At(50, 50), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, APointIsASymbolInTheLayersColour)
{
    Paint(*Point(50.5, 49.5));
    EXPECT_EQ(At(50, 49), QColor(Qt::red));
    EXPECT_EQ(At(70, 49), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, DashesStayOnTheLineWhenTheWindowCutsIt)
{
    m_look.outline = QPen(Qt::black, 4, Qt::DashLine, Qt::FlatCap);
    const auto row = [this](QPointF centre) {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        FeaturePainter(painter, MapView(centre, 1, View.Size()), m_look)
            .Paint(*Line({{-400, 50}, {400, 50}}), m_cancelled);
        return m_image.copy(0, 50, 100, 1);
    };
    EXPECT_EQ(row({50, 50}).copy(7, 0, 90, 1), row({57, 50}).copy(0, 0, 90, 1));
}

TEST_F(FeaturePainterTest, OnlyChosenFeaturesAreDrawn)
{
    FeatureSet set;
    for (const auto& area : {Area(10, 10, 40, 40), Area(60, 60, 90, 90)}) {
        set.BeginFeature(FeatureKind::Area);
        set.AddPart(area->Part(0));
    }
    QPainter painter(&m_image);
    FeaturePainter(painter, View, m_look)
        .Paint(
            set, [](size_t index) { return index == 1; }, m_cancelled);
    EXPECT_EQ(At(25, 25), QColor(Qt::white));
    EXPECT_EQ(At(75, 75), QColor(Qt::blue));
}

TEST_F(FeaturePainterTest, APatternMovesAlongWithTheMap)
{
    QImage tile(8, 8, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::yellow);
    tile.setPixelColor(0, 0, Qt::black);
    m_look.fill = QBrush(tile);
    const auto firstBlack = [this](QPointF centre) {
        m_image.fill(Qt::white);
        QPainter painter(&m_image);
        FeaturePainter(painter, MapView(centre, 1, View.Size()), m_look)
            .Paint(*Area(-100, -100, 200, 200), m_cancelled);
        for (int x = 0; x < 8; ++x) {
            for (int y = 0; y < 8; ++y) {
                if (m_image.pixelColor(x, y) == QColor(Qt::black))
                    return QPoint(x, y);
            }
        }
        return QPoint(-1, -1);
    };
    const QPoint before = firstBlack({50, 50});
    EXPECT_EQ(firstBlack({47, 50}), QPoint((before.x() + 3) % 8, before.y()));
    EXPECT_EQ(firstBlack({50, 52}), QPoint(before.x(), (before.y() + 2) % 8));
}

TEST_F(FeaturePainterTest, EachBitOfAPatternCoversWholeDots)
{
    QImage tile(2, 2, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::yellow);
    tile.setPixelColor(0, 0, Qt::black);
    tile.setPixelColor(1, 1, Qt::black);
    m_look.fill = QBrush(tile);
    m_image = QImage(150, 150, QImage::Format_RGB32);
    m_image.fill(Qt::white);
    m_image.setDevicePixelRatio(1.5);
    Paint(*Area(-100, -100, 200, 200));
    for (int x = 1; x < 140; ++x) {
        const QColor colour = m_image.pixelColor(x, 20);
        EXPECT_TRUE(colour == QColor(Qt::black) || colour == QColor(Qt::yellow)) << x;
        EXPECT_EQ(colour == m_image.pixelColor(x + 2, 20), false) << x;
    }
}

TEST_F(FeaturePainterTest, CancelledWorkDrawsNothingMore)
{
    m_cancelled = true;
    Paint(*Area(20, 20, 60, 60));
    EXPECT_EQ(At(40, 40), QColor(Qt::white));
}

TEST_F(FeaturePainterTest, ManyVerticesOnOnePixelDoNotChangeTheShape)
{
    std::vector<QPointF> ring;
    for (int i = 0; i <= 40000; ++i)
        ring.emplace_back(20 + i / 1000.0, 20);
    ring.insert(ring.end(), {{60, 60}, {20, 60}, {20, 20}});
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area);
    set.AddPart(ring);
    Paint(set);
    EXPECT_EQ(At(40, 22), QColor(Qt::blue));
    EXPECT_EQ(At(40, 17), QColor(Qt::white));
}

} // namespace Orvane
