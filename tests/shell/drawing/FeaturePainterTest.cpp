// SPDX-License-Identifier: MIT
#include "shell/drawing/FeaturePainter.h"

#include "shell/Drawings.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// One map unit a pixel; (0, 0) is the window's lower left corner.
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
