// SPDX-License-Identifier: MIT
#include "mapkit/canvas/ZoomTool.h"

#include "mapkit/canvas/MapCanvas.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

// Notes what it gets.
class NotingTool : public MapTool
{
public:
    void Click(QPointF, Qt::KeyboardModifiers) override { ++clicks; }
    bool DragBegin(QPointF, Qt::KeyboardModifiers) override
    {
        ++drags;
        return true;
    }

    int clicks = 0;
    int drags = 0;
};

// A canvas of 200 pixels square that shows 0 to 100 map units both ways.
class ZoomToolTest : public testing::Test
{
protected:
    ZoomToolTest()
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_canvas.SetView(MapView({50, 50}, 0.5, {200, 200}));
        m_before = m_canvas.View();
    }

    void BeginDrag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::mousePress(&m_canvas, Qt::LeftButton, modifiers, from);
        QTest::mouseMove(&m_canvas, (from + to) / 2);
        QTest::mouseMove(&m_canvas, to);
    }
    void Drag(QPoint from, QPoint to, Qt::KeyboardModifiers modifiers = {})
    {
        BeginDrag(from, to, modifiers);
        QTest::mouseRelease(&m_canvas, Qt::LeftButton, modifiers, to);
    }
    void Release(QPoint at) { QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, at); }

    MapCanvas m_canvas;
    ZoomTool m_tool{m_canvas};
    MapView m_before;
};

} // namespace

TEST_F(ZoomToolTest, ShowsTheRectangleThatIsDrawn)
{
    m_canvas.SetTool(&m_tool);
    Drag({100, 100}, {150, 150});
    EXPECT_EQ(m_canvas.View(), MapView({62.5, 37.5}, 0.125, {200, 200}));
}

TEST_F(ZoomToolTest, ShowsAllOfARectangleOfAnotherShape)
{
    m_canvas.SetTool(&m_tool);
    Drag({150, 110}, {50, 90}); // from the lower right corner
    EXPECT_EQ(m_canvas.View(), MapView({50, 50}, 0.25, {200, 200}));
}

TEST_F(ZoomToolTest, ZoomsInAtAClickAndOutWithCtrl)
{
    m_canvas.SetTool(&m_tool);
    QTest::mouseClick(&m_canvas, Qt::LeftButton, {}, {20, 20});
    EXPECT_EQ(m_canvas.View(), m_before.ZoomedAt({20, 20}, 2));
    QTest::mouseClick(&m_canvas, Qt::LeftButton, Qt::ControlModifier, {20, 20});
    EXPECT_EQ(m_canvas.View(), m_before);
}

TEST_F(ZoomToolTest, DropsTheRectangleAtEscape)
{
    m_canvas.SetTool(&m_tool);
    BeginDrag({100, 100}, {150, 150});
    QTest::keyClick(&m_canvas, Qt::Key_Escape);
    Release({150, 150});
    EXPECT_EQ(m_canvas.View(), m_before);
}

TEST_F(ZoomToolTest, DoesNotZoomToARectangleThatWasClosedAgain)
{
    m_canvas.SetTool(&m_tool);
    BeginDrag({100, 100}, {150, 150});
    Release({101, 100});
    EXPECT_EQ(m_canvas.View(), m_before);
}

TEST_F(ZoomToolTest, GetsDragsWithShiftWhileThereIsNoTool)
{
    m_canvas.SetShiftDragTool(&m_tool);
    Drag({100, 100}, {150, 150}, Qt::ShiftModifier);
    EXPECT_EQ(m_canvas.View(), MapView({62.5, 37.5}, 0.125, {200, 200}));
}

TEST_F(ZoomToolTest, GetsDragsWithShiftInsteadOfTheTool)
{
    NotingTool other;
    m_canvas.SetTool(&other);
    m_canvas.SetShiftDragTool(&m_tool);
    Drag({100, 100}, {150, 150}, Qt::ShiftModifier);
    EXPECT_EQ(other.drags, 0);
    EXPECT_EQ(m_canvas.View().UnitsPerPixel(), 0.125);
}

TEST_F(ZoomToolTest, LeavesOtherDragsAndClicksWithShiftToTheTool)
{
    NotingTool other;
    m_canvas.SetTool(&other);
    m_canvas.SetShiftDragTool(&m_tool);
    QTest::mouseClick(&m_canvas, Qt::LeftButton, Qt::ShiftModifier, {20, 20});
    EXPECT_EQ(other.clicks, 1);
    Drag({100, 100}, {150, 150});
    EXPECT_EQ(other.drags, 1);
    EXPECT_EQ(m_canvas.View(), m_before);
}

TEST_F(ZoomToolTest, ForgetsADragWithShiftWhenTheToolChanges)
{
    NotingTool other;
    m_canvas.SetShiftDragTool(&m_tool);
    BeginDrag({100, 100}, {150, 150}, Qt::ShiftModifier);
    m_canvas.SetTool(&other);
    Release({150, 150});
    EXPECT_EQ(m_canvas.View(), m_before);
}

} // namespace Orvane
