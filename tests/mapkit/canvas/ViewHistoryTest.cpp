// SPDX-License-Identifier: MIT
#include "mapkit/canvas/ViewHistory.h"

#include "mapkit/Drawings.h"
#include "mapkit/canvas/MapCanvas.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class ViewHistoryTest : public testing::Test
{
protected:
    ViewHistoryTest()
    {
        m_canvas.resize(200, 200);
        m_canvas.show();
        m_canvas.ShowAll({FilledLayer(1, Qt::blue, Area(0, 0, 100, 100))}, 1);
        m_first = m_canvas.View();
    }

    // time: in milliseconds
    void Wheel(int eighthsOfADegree, quint64 time)
    {
        const QPointF at(50, 50);
        QWheelEvent event(
            at, m_canvas.mapToGlobal(at), {}, {0, eighthsOfADegree}, Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        event.setTimestamp(time);
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
    ViewHistory m_history{m_canvas};
    MapView m_first;
};

class CountingHistoryTest : public ViewHistoryTest
{
protected:
    CountingHistoryTest() { m_canvas.ShowAll(m_canvas.Layers(), 1); } // the history has seen it

    int StepsBack()
    {
        int steps = 0;
        for (; m_history.CanGoBack(); ++steps)
            m_history.GoBack();
        return steps;
    }
};

} // namespace

TEST_F(ViewHistoryTest, HasNothingToGoBackToInTheFirstView)
{
    m_canvas.ShowAll(m_canvas.Layers(), 1);
    EXPECT_FALSE(m_history.CanGoBack());
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), m_first);
}

TEST_F(CountingHistoryTest, GoesBackAndForwardThroughTheViews)
{
    m_canvas.ZoomIn();
    const MapView second = m_canvas.View();
    m_canvas.ZoomIn();
    const MapView third = m_canvas.View();
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), second);
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), m_first);
    EXPECT_FALSE(m_history.CanGoBack());
    m_history.GoForward();
    m_history.GoForward();
    EXPECT_EQ(m_canvas.View(), third);
    EXPECT_FALSE(m_history.CanGoForward());
}

TEST_F(CountingHistoryTest, CountsADragAsOneStep)
{
    Drag({100, 100}, {60, 60});
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), m_first);
    EXPECT_FALSE(m_history.CanGoBack());
}

TEST_F(CountingHistoryTest, CountsTwoDragsAsTwoSteps)
{
    Drag({100, 100}, {60, 60});
    Drag({100, 100}, {60, 60});
    EXPECT_EQ(StepsBack(), 2);
}

TEST_F(CountingHistoryTest, CountsARowOfWheelTurnsAsOneStep)
{
    for (const quint64 time : {1000u, 1200u, 1500u})
        Wheel(120, time);
    EXPECT_EQ(StepsBack(), 1);
}

TEST_F(CountingHistoryTest, CountsWheelTurnsAfterAPauseAsAnotherStep)
{
    Wheel(120, 1000);
    Wheel(120, 5000);
    EXPECT_EQ(StepsBack(), 2);
}

TEST_F(CountingHistoryTest, CountsAWheelTurnAfterACommandAsAnotherStep)
{
    Wheel(120, 1000);
    m_canvas.ZoomToAll();
    Wheel(120, 1100);
    EXPECT_EQ(StepsBack(), 3);
}

TEST_F(CountingHistoryTest, ForgetsWhatWasAheadAfterANewStep)
{
    m_canvas.ZoomIn();
    m_history.GoBack();
    Drag({100, 100}, {60, 60});
    EXPECT_FALSE(m_history.CanGoForward());
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), m_first);
}

TEST_F(CountingHistoryTest, KeepsTheStepsWhenTheWindowGetsAnotherSize)
{
    m_canvas.ZoomIn();
    m_canvas.resize(300, 260);
    m_history.GoBack();
    EXPECT_EQ(m_canvas.View(), m_first.Resized({300, 260}));
    EXPECT_TRUE(m_history.CanGoForward());
    m_canvas.resize(200, 200);
    EXPECT_TRUE(m_history.CanGoForward());
}

TEST_F(CountingHistoryTest, KeepsAHundredViews)
{
    for (int i = 1; i <= 150; ++i)
        m_canvas.SetView(m_first.Panned(QPointF(i, 0)));
    EXPECT_EQ(StepsBack(), 99);
}

TEST_F(CountingHistoryTest, LeavesOutAStepThatEndsWhereItBegan)
{
    m_canvas.ZoomToAll();
    EXPECT_FALSE(m_history.CanGoBack());
}

TEST_F(CountingHistoryTest, LeavesOutViewsOfAnEmptyMap)
{
    m_canvas.SetLayers({}, 1);
    m_history.Clear();
    m_canvas.ZoomIn();
    m_canvas.ZoomIn();
    EXPECT_FALSE(m_history.CanGoBack());
}

TEST_F(CountingHistoryTest, ForgetsTheViewsOfAnotherMap)
{
    m_canvas.ZoomIn();
    const QSignalSpy changes(&m_history, &ViewHistory::Changed);
    m_history.Clear();
    EXPECT_EQ(changes.size(), 1);
    EXPECT_FALSE(m_history.CanGoBack());
}

} // namespace Orvane
