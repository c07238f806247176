// SPDX-License-Identifier: MIT
#include "shell/view/ViewActions.h"

#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"

#include <QApplication>
#include <QMenu>
#include <QTest>
#include <QToolBar>

namespace Orvane {

using namespace Testing;

namespace {

class ViewActionsTest : public MainWindowTest
{
protected:
    ViewActionsTest()
    {
        m_window->OpenMap(MakeMap("map.orvane"));
        m_window->activateWindow();
        EXPECT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == m_window.get(); }));
        Canvas().setFocus();
        m_first = Canvas().View();
    }

    MapCanvas& Canvas() { return m_window->Canvas(); }
    bool CanRun(const char* name) const { return Action(name)->isEnabled(); }
    void Press(Qt::Key key, Qt::KeyboardModifiers modifiers)
    {
        QTest::keyClick(m_window->windowHandle(), key, modifiers);
    }
    void Click(Qt::MouseButton button) { QTest::mouseClick(&Canvas(), button, {}, Canvas().rect().center()); }
    // As the layer control tells it.
    void Choose(const std::vector<qint32>& layerIDs)
    {
        IChoiceWatch& watch = m_window->Session().Shell();
        watch.LayersChosen(nullptr, layerIDs);
    }
    void SelectTheSquare()
    {
        Action("actSelect")->trigger();
        Click(Qt::LeftButton);
        Action("actPan")->trigger();
    }

    MapView m_first;
};

} // namespace

TEST_F(ViewActionsTest, GoesBackAndForwardByTheKeys)
{
    EXPECT_FALSE(CanRun("actPreviousView"));
    Canvas().ZoomIn();
    const MapView second = Canvas().View();
    Press(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(Canvas().View(), m_first);
    EXPECT_FALSE(CanRun("actPreviousView"));
    Press(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(Canvas().View(), second);
    EXPECT_FALSE(CanRun("actNextView"));
}

TEST_F(ViewActionsTest, GoesBackAndForwardByTheSideButtonsOfTheMouse)
{
    Canvas().ZoomIn();
    const MapView second = Canvas().View();
    Click(Qt::BackButton);
    EXPECT_EQ(Canvas().View(), m_first);
    Click(Qt::ForwardButton);
    EXPECT_EQ(Canvas().View(), second);
}

TEST_F(ViewActionsTest, ForgetsTheViewsOfTheMapBefore)
{
    Canvas().ZoomIn();
    m_window->OpenMap(MakeMap("other.orvane"));
    EXPECT_FALSE(CanRun("actPreviousView"));
}

TEST_F(ViewActionsTest, ZoomsToTheChosenLayers)
{
    Canvas().SetView(Canvas().View().Panned({5000, 0}));
    EXPECT_FALSE(CanRun("actZoomLayer"));
    EXPECT_TRUE(Action("actZoomLayer")->toolTip().contains("Choose a layer in the layer control first."));
    EXPECT_TRUE(Action("actZoomLayer")->statusTip().contains("Choose a layer"));
    Choose({Canvas().Layers().front().layerID});
    Press(Qt::Key_L, Qt::ControlModifier);
    EXPECT_EQ(Canvas().View(), m_first);
}

TEST_F(ViewActionsTest, SaysThatTheChosenLayersHaveNoFeatures)
{
    Choose({4711});
    EXPECT_FALSE(CanRun("actZoomLayer"));
    EXPECT_TRUE(Action("actZoomLayer")->toolTip().contains("has no features"));
}

TEST_F(ViewActionsTest, ZoomsToTheSelectedFeatures)
{
    EXPECT_FALSE(CanRun("actZoomSelection"));
    EXPECT_TRUE(Action("actZoomSelection")->toolTip().contains("Select features on the map first."));
    SelectTheSquare();
    Canvas().SetView(Canvas().View().Panned({5000, 0}));
    Press(Qt::Key_J, Qt::ControlModifier);
    EXPECT_EQ(Canvas().View(), m_first);
}

TEST_F(ViewActionsTest, ZoomsToARectangleWithShiftAndAnyTool)
{
    for (const char* tool : {"actPan", "actIdentify", "actSelect", "actMeasureLine", "actMoveFeature"}) {
        Canvas().SetView(m_first);
        Action(tool)->trigger();
        QTest::mousePress(&Canvas(), Qt::LeftButton, Qt::ShiftModifier, {100, 100});
        QTest::mouseMove(&Canvas(), {150, 140});
        QTest::mouseMove(&Canvas(), {200, 180});
        QTest::mouseRelease(&Canvas(), Qt::LeftButton, Qt::ShiftModifier, {200, 180});
        EXPECT_LT(Canvas().View().UnitsPerPixel(), m_first.UnitsPerPixel() / 2) << tool;
    }
}

TEST_F(ViewActionsTest, AreInTheMenuAndInTheToolBar)
{
    const QToolBar* bar = m_window->findChild<QToolBar*>("toolBar");
    const QMenu* menu = m_window->findChild<QMenu*>("menuView");
    for (const char* name : {"actZoomLayer", "actZoomSelection", "actPreviousView", "actNextView"}) {
        EXPECT_TRUE(bar->actions().contains(Action(name))) << name;
        EXPECT_TRUE(menu->actions().contains(Action(name))) << name;
    }
}

} // namespace Orvane
