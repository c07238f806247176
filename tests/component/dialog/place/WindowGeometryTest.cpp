// SPDX-License-Identifier: MIT
#include "component/dialog/place/WindowGeometry.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

#include <gmock/gmock.h>

namespace Orvane {

namespace {

const QRect Left(0, 0, 1000, 800);
const QRect Right(1000, 0, 1000, 800);

TEST(WindowGeometry, RestoresAndGivesBackTheSameTwips)
{
    QWidget window;
    WindowGeometry geometry(window);
    for (const WindowSize size :
         {WindowSize{6000, 4000}, WindowSize{6001.25f, 3999.5f}, WindowSize{7007, 7000}}) {
        geometry.Restore(size);
        EXPECT_EQ(geometry.Current(), size);
    }
}

TEST(WindowGeometry, KeepsTheSideThatNobodyResized)
{
    QWidget window;
    WindowGeometry geometry(window);
    geometry.Restore({6001, 4001});
    window.resize(window.width() + 10, window.height());
    EXPECT_EQ(geometry.Current(), (WindowSize{6150, 4001}));
}

TEST(WindowGeometry, IsNeverLargerThanItsScreen)
{
    QWidget window;
    WindowGeometry geometry(window);
    geometry.Restore({1e30f, 3e38f});
    const QSize screen = window.screen()->availableGeometry().size();
    EXPECT_EQ(window.size(), screen);
    EXPECT_EQ(geometry.Current(), (WindowSize{screen.width() * 15.0f, screen.height() * 15.0f}));
}

TEST(WindowGeometry, IsNeverSmallerThanItsLayoutAllows)
{
    QWidget window;
    window.setMinimumSize(200, 100);
    WindowGeometry geometry(window);
    geometry.Restore({1, 0.001f});
    EXPECT_EQ(geometry.Current(), (WindowSize{3000, 1500}));
}

TEST(WindowGeometry, BringsAWindowBackFromBeyondTheScreens)
{
    QWidget window;
    window.setGeometry(90000, -50000, 300, 200);
    WindowGeometry(window).KeepOnScreen();
    EXPECT_TRUE(QGuiApplication::primaryScreen()->availableGeometry().contains(window.geometry()));
    EXPECT_EQ(window.size(), QSize(300, 200));
}

TEST(PlacedOnScreens, LeavesAWindowThatCanBeCaught)
{
    for (const QRect& window : {QRect(10, 10, 300, 200), QRect(900, 0, 300, 200), QRect(-260, 700, 300, 200)})
        EXPECT_EQ(PlacedOnScreens(window, {Left, Right}), window);
}

TEST(PlacedOnScreens, CentresAWindowThatStandsOutside)
{
    EXPECT_EQ(PlacedOnScreens(QRect(5000, 10, 300, 200), {Left, Right}), QRect(350, 300, 300, 200));
    EXPECT_EQ(PlacedOnScreens(QRect(-290, 10, 300, 200), {Left, Right}), QRect(350, 300, 300, 200));
}

TEST(PlacedOnScreens, MakesALostWindowNoLargerThanTheScreen)
{
    EXPECT_EQ(PlacedOnScreens(QRect(-9000, 0, 5000, 4000), {Left}), Left);
}

TEST(PlacedOnScreens, LeavesTheWindowWhereThereIsNoScreen)
{
    EXPECT_EQ(PlacedOnScreens(QRect(-9000, 0, 50, 40), {}), QRect(-9000, 0, 50, 40));
}

} // namespace

} // namespace Orvane
