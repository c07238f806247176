// SPDX-License-Identifier: MIT
#include "mapkit/canvas/MapTool.h"

#include "mapkit/Drawings.h"
#include "mapkit/canvas/MapCanvas.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPainter>
#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

// Records the gestures that it gets, and accepts drags if the test says so.
class NotingTool : public MapTool
{
public:
    QCursor Cursor() const override { return Qt::CrossCursor; }
    void Begin() override { notes.push_back("begin"); }
    void End() override { notes.push_back("end"); }
    void Click(QPointF, Qt::KeyboardModifiers modifiers) override
    {
        notes.push_back(modifiers & Qt::ControlModifier ? "ctrl click" : "click");
        if (fails)
            throw RunTimeError(5, "It fails.");
    }
    bool DoubleClick(QPointF) override
    {
        notes.push_back("double click");
        return takesAll;
    }
    bool RightClick(QPointF) override
    {
        notes.push_back("right click");
        return takesAll;
    }
    bool DragBegin(QPointF from, Qt::KeyboardModifiers) override
    {
        notes.push_back("drag from " + std::to_string(int(from.x())));
        return takesAll;
    }
    void DragTo(QPointF) override { ++dragSteps; }
    void DragEnd(QPointF pixel) override { notes.push_back("drag end " + std::to_string(int(pixel.x()))); }
    void Hover(QPointF) override { notes.push_back("hover"); }
    bool Key(const QKeyEvent& event) override { return event.key() == Qt::Key_Left; }
    void Paint(QPainter& painter, const MapView&) const override
    {
        painter.fillRect(QRect(90, 90, 20, 20), Qt::red);
    }

    std::vector<std::string> notes;
    int dragSteps = 0;
    bool takesAll = true;
    bool fails = false;
};

class GreenOverlay : public MapOverlay
{
public:
    void Paint(QPainter& painter, const MapView&) const override
    {
        painter.fillRect(QRect(80, 80, 40, 40), Qt::green);
    }
};

class MapToolTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_canvas.SetLayers({FilledLayer(1, Qt::blue, Area(0, 0, 100, 100))}, 1);
        m_canvas.ZoomToAll();
        m_canvas.SetTool(&m_tool);
        m_tool.notes.clear();
    }

    void Drag(QPoint from, QPoint to, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mousePress(&m_canvas, button, {}, from);
        QTest::mouseMove(&m_canvas, (from + to) / 2);
        QTest::mouseMove(&m_canvas, to);
        QTest::mouseRelease(&m_canvas, button, {}, to);
    }

    MapCanvas m_canvas;
    NotingTool m_tool;
};

} // namespace

TEST_F(MapToolTest, ARightClickThatTheToolDoesNotUseAsksForTheMenu)
{
    QSignalSpy wanted(&m_canvas, &MapCanvas::MenuWanted);
    QTest::mouseClick(m_canvas.windowHandle(), Qt::RightButton, {}, {50, 60});
    EXPECT_EQ(wanted.size(), 0);
    m_tool.takesAll = false;
    QTest::mouseClick(m_canvas.windowHandle(), Qt::RightButton, {}, {50, 60});
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_EQ(wanted.first().first().toPointF(), QPointF(50, 60));
}

TEST_F(MapToolTest, ARightClickWithoutAToolAsksForTheMenu)
{
    m_canvas.SetTool(nullptr);
    const QSignalSpy wanted(&m_canvas, &MapCanvas::MenuWanted);
    QTest::mouseClick(m_canvas.windowHandle(), Qt::RightButton, {}, {50, 60});
    EXPECT_EQ(wanted.size(), 1);
}

TEST_F(MapToolTest, TheMenuKeyAsksForTheMenuOnTheMap)
{
    QSignalSpy wanted(&m_canvas, &MapCanvas::MenuWanted);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {0, 0}, {0, 0});
    QApplication::sendEvent(&m_canvas, &event);
    ASSERT_EQ(wanted.size(), 1);
    EXPECT_TRUE(m_canvas.rect().contains(wanted.first().first().toPointF().toPoint()));
}

TEST_F(MapToolTest, TheSideButtonsOfTheMouseGoBackAndForward)
{
    const QSignalSpy back(&m_canvas, &MapCanvas::BackPressed);
    const QSignalSpy forward(&m_canvas, &MapCanvas::ForwardPressed);
    QTest::mouseClick(&m_canvas, Qt::BackButton, {}, {50, 50});
    EXPECT_EQ(back.size(), 1);
    QTest::mouseClick(&m_canvas, Qt::ForwardButton, {}, {50, 50});
    EXPECT_EQ(forward.size(), 1);
}

TEST_F(MapToolTest, AClickReachesTheToolWithItsModifiers)
{
    QTest::mouseClick(&m_canvas, Qt::LeftButton, {}, {50, 50});
    QTest::mouseClick(&m_canvas, Qt::LeftButton, Qt::ControlModifier, {50, 50});
    QTest::mouseClick(&m_canvas, Qt::RightButton, {}, {50, 50});
    EXPECT_THAT(m_tool.notes, ElementsAre("click", "ctrl click", "right click"));
}

TEST_F(MapToolTest, ATremblingHandStillClicks)
{
    const MapView before = m_canvas.View();
    QTest::mousePress(&m_canvas, Qt::LeftButton, {}, {50, 50});
    QTest::mouseMove(&m_canvas, {52, 51});
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, {52, 51});
    EXPECT_THAT(m_tool.notes, ElementsAre("click"));
    EXPECT_EQ(m_canvas.View(), before);
}

TEST_F(MapToolTest, ADragThatTheToolTakesLeavesTheMap)
{
    const MapView before = m_canvas.View();
    Drag({50, 50}, {120, 90});
    EXPECT_THAT(m_tool.notes, ElementsAre("drag from 50", "drag end 120"));
    EXPECT_GT(m_tool.dragSteps, 0);
    EXPECT_EQ(m_canvas.View(), before);
}

TEST_F(MapToolTest, ADragThatTheToolLeavesMovesTheMapAllTheWay)
{
    m_tool.takesAll = false;
    const QPointF grabbed = m_canvas.View().ToMap({50, 50});
    Drag({50, 50}, {120, 90});
    EXPECT_THAT(m_tool.notes, ElementsAre("drag from 50"));
    EXPECT_NEAR(m_canvas.View().ToPixel(grabbed).x(), 120, 1e-6);
    EXPECT_NEAR(m_canvas.View().ToPixel(grabbed).y(), 90, 1e-6);
}

TEST_F(MapToolTest, TheMiddleButtonMovesTheMapUnderAnyTool)
{
    const QPointF grabbed = m_canvas.View().ToMap({50, 50});
    Drag({50, 50}, {120, 90}, Qt::MiddleButton);
    EXPECT_THAT(m_tool.notes, IsEmpty());
    EXPECT_NEAR(m_canvas.View().ToPixel(grabbed).x(), 120, 1e-6);
    EXPECT_EQ(m_canvas.cursor().shape(), Qt::CrossCursor);
}

TEST_F(MapToolTest, AMoveWithoutAButtonIsAHover)
{
    QTest::mouseMove(&m_canvas, {70, 70});
    EXPECT_THAT(m_tool.notes, ElementsAre("hover"));
}

TEST_F(MapToolTest, ADoubleClickThatTheToolLeavesZoomsIn)
{
    const double before = m_canvas.View().UnitsPerPixel();
    QTest::mouseDClick(&m_canvas, Qt::LeftButton, {}, {30, 60});
    EXPECT_EQ(m_canvas.View().UnitsPerPixel(), before);
    m_tool.takesAll = false;
    QTest::mouseDClick(&m_canvas, Qt::LeftButton, {}, {30, 60});
    EXPECT_LT(m_canvas.View().UnitsPerPixel(), before);
}

TEST_F(MapToolTest, AKeyThatTheToolTakesDoesNotMoveTheMap)
{
    const MapView before = m_canvas.View();
    QTest::keyClick(&m_canvas, Qt::Key_Left);
    EXPECT_EQ(m_canvas.View(), before);
    QTest::keyClick(&m_canvas, Qt::Key_Right);
    EXPECT_NE(m_canvas.View(), before);
}

TEST_F(MapToolTest, AnotherToolEndsTheOneBefore)
{
    QSignalSpy changed(&m_canvas, &MapCanvas::ToolChanged);
    NotingTool other;
    m_canvas.SetTool(&other);
    m_canvas.SetTool(&other);
    EXPECT_THAT(m_tool.notes, ElementsAre("end"));
    EXPECT_THAT(other.notes, ElementsAre("begin"));
    EXPECT_EQ(changed.size(), 1);
    m_canvas.SetTool(nullptr);
    EXPECT_EQ(m_canvas.cursor().shape(), Qt::OpenHandCursor);
}

TEST_F(MapToolTest, ADragEndsUnfinishedWhenTheToolIsPutAway)
{
    QTest::mousePress(&m_canvas, Qt::LeftButton, {}, {50, 50});
    QTest::mouseMove(&m_canvas, {90, 50});
    m_canvas.SetTool(nullptr);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, {90, 50});
    EXPECT_THAT(m_tool.notes, ElementsAre("drag from 50", "end"));
}

TEST_F(MapToolTest, WhatAToolRaisesIsToldAndTheCanvasGoesOn)
{
    m_tool.fails = true;
    MessageBoxRobot user{BoxKey::Enter};
    QTest::mouseClick(&m_canvas, Qt::LeftButton, {}, {50, 50});
    EXPECT_EQ(user.Only().text, "It fails.");
    m_tool.fails = false;
    QTest::mouseClick(&m_canvas, Qt::RightButton, {}, {70, 70});
    EXPECT_THAT(m_tool.notes, ElementsAre("click", "right click"));
}

TEST_F(MapToolTest, TheToolIsPaintedAboveTheOverlaysAndBothAboveTheMap)
{
    const GreenOverlay overlay;
    m_canvas.AddOverlay(&overlay);
    QImage shown = m_canvas.grab().toImage();
    EXPECT_EQ(shown.pixelColor(85, 85), QColor(Qt::green));
    EXPECT_EQ(shown.pixelColor(100, 100), QColor(Qt::red));
    m_canvas.RemoveOverlay(&overlay);
    shown = m_canvas.grab().toImage();
    EXPECT_NE(shown.pixelColor(85, 85), QColor(Qt::green));
}

TEST_F(MapToolTest, AToolThatEndsFirstLeavesTheCanvasWithoutOne)
{
    {
        NotingTool shortLived;
        m_canvas.SetTool(&shortLived);
    }
    EXPECT_EQ(m_canvas.Tool(), nullptr);
    QTest::mouseClick(&m_canvas, Qt::LeftButton, {}, {50, 50});
}

} // namespace Orvane
