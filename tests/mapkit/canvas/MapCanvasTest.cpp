// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapCanvas.h"

#include "mapkit/Drawings.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapCanvasTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_canvas.SetLayers({FilledLayer(1, Qt::blue, Area(0, 0, 100, 100))}, 1);
        m_canvas.ZoomToAll();
        WaitForPicture();
    }

    void WaitForPicture()
    {
        ASSERT_TRUE(QTest::qWaitFor([&] {
            return !m_canvas.Picture().IsBusy() && m_canvas.Picture().ImageView() == m_canvas.View();
        }));
    }

    QColor At(QPoint pixel) { return m_canvas.grab().toImage().pixelColor(pixel); }

    void Wheel(QPointF at, int eighthsOfADegree)
    {
        QWheelEvent event(
            at, m_canvas.mapToGlobal(at), {}, {0, eighthsOfADegree}, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(&m_canvas, &event);
    }

    void Drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&m_canvas, Qt::LeftButton, {}, from);
        QTest::mouseMove(&m_canvas, (from + to) / 2);
        QTest::mouseMove(&m_canvas, to);
        QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, to);
    }

    MapCanvas m_canvas;
};

} // namespace

TEST_F(MapCanvasTest, ShowsTheWholeMap)
{
    EXPECT_EQ(At({100, 100}), QColor(Qt::blue));
    EXPECT_EQ(At({8, 8}), QColor(Qt::blue));
    EXPECT_EQ(At({1, 1}), QColor(Qt::white));
}

TEST_F(MapCanvasTest, ADragMovesTheMapWithThePointer)
{
    const QPointF grabbed = m_canvas.View().ToMap({100, 100});
    Drag({100, 100}, {160, 130});
    EXPECT_NEAR(m_canvas.View().ToPixel(grabbed).x(), 160, 1e-6);
    EXPECT_NEAR(m_canvas.View().ToPixel(grabbed).y(), 130, 1e-6);
}

TEST_F(MapCanvasTest, TheMapFollowsTheHandBeforeItIsDrawnAgain)
{
    Drag({100, 100}, {180, 100});
    EXPECT_EQ(At({40, 100}), QColor(Qt::white));
    EXPECT_EQ(At({120, 100}), QColor(Qt::blue));
    WaitForPicture();
    EXPECT_EQ(At({40, 100}), QColor(Qt::white));
}

TEST_F(MapCanvasTest, MovingWithoutAButtonOnlyTellsThePosition)
{
    const MapView before = m_canvas.View();
    QSignalSpy moved(&m_canvas, &MapCanvas::PointerMoved);
    QTest::mouseMove(&m_canvas, {100, 100});
    EXPECT_EQ(m_canvas.View(), before);
    ASSERT_EQ(moved.size(), 1);
    EXPECT_EQ(moved[0][0].toPointF(), before.ToMap({100, 100}));
}

TEST_F(MapCanvasTest, TheWheelZoomsAtThePointer)
{
    const QPointF under = m_canvas.View().ToMap({150, 40});
    const double before = m_canvas.View().UnitsPerPixel();
    Wheel({150, 40}, 120);
    EXPECT_LT(m_canvas.View().UnitsPerPixel(), before);
    EXPECT_NEAR(m_canvas.View().ToPixel(under).x(), 150, 1e-6);
    EXPECT_NEAR(m_canvas.View().ToPixel(under).y(), 40, 1e-6);
}

TEST_F(MapCanvasTest, TheWheelBackAndForthEndsWhereItBegan)
{
    const double before = m_canvas.View().UnitsPerPixel();
    Wheel({150, 40}, 120);
    Wheel({150, 40}, -120);
    EXPECT_NEAR(m_canvas.View().UnitsPerPixel(), before, 1e-12);
}

TEST_F(MapCanvasTest, ArrowKeysShowWhatLiesInTheirDirection)
{
    const std::pair<Qt::Key, QPointF> directions[]
        = {{Qt::Key_Right, {1, 0}}, {Qt::Key_Left, {-1, 0}}, {Qt::Key_Up, {0, 1}}, {Qt::Key_Down, {0, -1}}};
    for (const auto& [key, direction] : directions) {
        const QPointF before = m_canvas.View().Centre();
        QTest::keyClick(&m_canvas, key);
        const QPointF moved = m_canvas.View().Centre() - before;
        EXPECT_GT(QPointF::dotProduct(moved, direction), 0) << key;
    }
}

TEST_F(MapCanvasTest, PlusAndMinusZoomAndHomeShowsEverythingAgain)
{
    const MapView all = m_canvas.View();
    QTest::keyClick(&m_canvas, Qt::Key_Plus);
    EXPECT_LT(m_canvas.View().UnitsPerPixel(), all.UnitsPerPixel());
    QTest::keyClick(&m_canvas, Qt::Key_Minus);
    EXPECT_NEAR(m_canvas.View().UnitsPerPixel(), all.UnitsPerPixel(), 1e-12);
    QTest::keyClick(&m_canvas, Qt::Key_Right);
    QTest::keyClick(&m_canvas, Qt::Key_Home);
    EXPECT_EQ(m_canvas.View(), all);
}

TEST_F(MapCanvasTest, ADoubleClickZoomsInThere)
{
    const QPointF under = m_canvas.View().ToMap({30, 60});
    const double before = m_canvas.View().UnitsPerPixel();
    QTest::mouseDClick(&m_canvas, Qt::LeftButton, {}, {30, 60});
    EXPECT_LT(m_canvas.View().UnitsPerPixel(), before);
    EXPECT_NEAR(m_canvas.View().ToPixel(under).x(), 30, 1e-6);
}

TEST_F(MapCanvasTest, WhatShowsEverythingDoesSoInAnotherWindowSizeToo)
{
    const MapView before = m_canvas.View();
    m_canvas.resize(300, 120);
    EXPECT_EQ(m_canvas.View().Centre(), before.Centre());
    EXPECT_GT(m_canvas.View().UnitsPerPixel(), before.UnitsPerPixel());
    m_canvas.ZoomIn();
    m_canvas.ZoomToAll();
    m_canvas.resize(before.Size());
    EXPECT_EQ(m_canvas.View(), before);
}

TEST_F(MapCanvasTest, AnotherWindowSizeKeepsScaleAndMiddleOnceTheMapWasMoved)
{
    m_canvas.ZoomIn();
    const MapView before = m_canvas.View();
    m_canvas.resize(300, 120);
    EXPECT_EQ(m_canvas.View().Centre(), before.Centre());
    EXPECT_EQ(m_canvas.View().UnitsPerPixel(), before.UnitsPerPixel());
    EXPECT_EQ(m_canvas.View().Size(), QSize(300, 120));
}

TEST_F(MapCanvasTest, ChangesOfTheViewAreToldOnce)
{
    QSignalSpy changed(&m_canvas, &MapCanvas::ViewChanged);
    m_canvas.ZoomIn();
    m_canvas.SetView(m_canvas.View());
    EXPECT_EQ(changed.size(), 1);
}

} // namespace Orvane
