// SPDX-License-Identifier: MIT
#include "shell/tools/MoveTool.h"

#include "shell/tools/ToolCanvas.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

using namespace Testing;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

struct Moved {
    FeatureKey key;
    QPointF offset;
};

class MoveToolTest : public ToolCanvasTest
{
protected:
    MoveToolTest()
    {
        m_houses = NamedLayer(1, "Houses", FeatureBuilder().Square(10, 10, 20).Square(60, 60, 20).Done(), 10);
        Show({m_houses});
        Take(m_tool);
    }

    MapLayer m_houses;
    std::vector<Moved> m_moved;
    bool m_fails = false;
    bool m_isReadOnly = false;
    MoveTool m_tool{
        m_canvas,
        {[this](const FeatureKey&) {
             if (m_isReadOnly)
                 throw RunTimeError(5, "It is read only.");
         },
         [this](const FeatureKey& key, QPointF offset) {
             if (m_fails)
                 throw RunTimeError(5, "The disk is full.");
             m_moved.push_back({key, offset});
         }}};
};

} // namespace

TEST_F(MoveToolTest, ADragMovesTheFeatureByTheWayOfThePointer)
{
    Drag({65, 65}, {45, 70});
    ASSERT_THAT(m_moved, SizeIs(1));
    EXPECT_EQ(m_moved[0].key, (FeatureKey{1, 2}));
    EXPECT_NEAR(m_moved[0].offset.x(), -20, 1e-9);
    EXPECT_NEAR(m_moved[0].offset.y(), 5, 1e-9);
    EXPECT_EQ(m_status, "Moved a feature of Houses.");
}

TEST_F(MoveToolTest, TheFeatureIsSeenUnderThePointerOnTheWay)
{
    const QColor before = ColourAt(50, 30);
    BeginDrag({15, 15}, {45, 25});
    EXPECT_NE(ColourAt(50, 30), before);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(45, 25));
    EXPECT_EQ(ColourAt(50, 30), before);
}

TEST_F(MoveToolTest, ALockedLayerStaysAndTheMapStaysToo)
{
    m_houses.flags.locked = true;
    Show({m_houses});
    const MapView before = m_canvas.View();
    Drag({15, 15}, {45, 25});
    EXPECT_THAT(m_moved, IsEmpty());
    EXPECT_EQ(m_status, "Houses is here but locked.");
    EXPECT_EQ(m_canvas.View(), before);
}

TEST_F(MoveToolTest, ALockedLayerIsToldWhenTheDragBegins)
{
    m_houses.flags.locked = true;
    Show({m_houses});
    QTest::mousePress(&m_canvas, Qt::LeftButton, {}, Pixel(15, 15));
    QTest::mouseMove(&m_canvas, Pixel(25, 15));
    EXPECT_EQ(m_status, "Houses is here but locked.");
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(25, 15));
    EXPECT_EQ(m_status, "Houses is here but locked.");
}

TEST_F(MoveToolTest, ASourceThatIsReadOnlyIsToldWhenTheDragBeginsAndNothingMoves)
{
    m_isReadOnly = true;
    const MapView view = m_canvas.View();
    const QColor before = ColourAt(50, 30);
    BeginDrag({15, 15}, {45, 25});
    EXPECT_EQ(m_status, "It is read only.");
    EXPECT_EQ(ColourAt(50, 30), before) << "no ghost";
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(45, 25));
    EXPECT_THAT(m_moved, IsEmpty());
    EXPECT_EQ(m_canvas.View(), view);
    EXPECT_EQ(m_status, "It is read only.");
}

TEST_F(MoveToolTest, ADragBesideEverythingMovesTheMap)
{
    const QPointF centre = m_canvas.View().Centre();
    Drag({90, 20}, {80, 20});
    EXPECT_THAT(m_moved, IsEmpty());
    EXPECT_NE(m_canvas.View().Centre(), centre);
}

TEST_F(MoveToolTest, EscLetsGo)
{
    BeginDrag({15, 15}, {45, 25});
    Press(Qt::Key_Escape);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(45, 25));
    EXPECT_THAT(m_moved, IsEmpty());
}

TEST_F(MoveToolTest, AClickMovesNothingAndSaysWhatCouldBeMoved)
{
    EXPECT_EQ(m_status, "Drag a feature to move it.");
    Click(15, 15);
    EXPECT_THAT(m_moved, IsEmpty());
    EXPECT_EQ(m_status, "Drag the feature of Houses to move it.");
    Click(95, 95);
    EXPECT_EQ(m_status, "No layer here.");
}

TEST_F(MoveToolTest, WhatCannotBeWrittenIsToldAndTheGhostIsGone)
{
    m_fails = true;
    const QColor before = ColourAt(50, 30);
    MessageBoxRobot user{BoxKey::Enter};
    Drag({15, 15}, {45, 25});
    EXPECT_EQ(user.Only().text, "The disk is full.");
    EXPECT_EQ(ColourAt(50, 30), before);
    EXPECT_NE(m_status, "Moved a feature of Houses.");
}

TEST_F(MoveToolTest, AnotherToolLetsGo)
{
    BeginDrag({15, 15}, {45, 25});
    m_canvas.SetTool(nullptr);
    QTest::mouseRelease(&m_canvas, Qt::LeftButton, {}, Pixel(45, 25));
    EXPECT_THAT(m_moved, IsEmpty());
}

} // namespace Orvane
