// SPDX-License-Identifier: MIT
#include "mapkit/drawing/MapView.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QSize Window(400, 200);

void ExpectNear(QPointF actual, QPointF expected)
{
    EXPECT_NEAR(actual.x(), expected.x(), 1e-9);
    EXPECT_NEAR(actual.y(), expected.y(), 1e-9);
}

} // namespace

TEST(MapView, NorthIsUpAndEastIsRight)
{
    const MapView view({100, 50}, 2, Window);
    ExpectNear(view.ToPixel({100, 50}), {200, 100});
    ExpectNear(view.ToPixel({110, 60}), {205, 95});
}

TEST(MapView, PixelsLeadBackToTheMapPointTheyCameFrom)
{
    const MapView view({1e6, -5e6}, 37.5, Window);
    ExpectNear(view.ToMap(view.ToPixel({1234567, -4999999})), {1234567, -4999999});
}

TEST(MapView, TheExtentIsWhatTheWindowCovers)
{
    EXPECT_EQ(MapView({100, 50}, 2, Window).Extent(), (Box{-300, -150, 500, 250}));
}

TEST(MapView, FittingShowsTheWholeBoxAroundItsMiddle)
{
    const Box box{0, 0, 100, 400};
    const MapView view = MapView::Fitting(box, Window);
    ExpectNear(view.Centre(), {50, 200});
    const Box shown = view.Extent();
    EXPECT_LT(shown.minY, box.minY);
    EXPECT_GT(shown.maxY, box.maxY);
    EXPECT_LT(shown.Height(), box.Height() * 1.1);
}

TEST(MapView, FittingAPointKeepsAUsableScale)
{
    const MapView view = MapView::Fitting(Box{5, 6, 5, 6}, Window);
    ExpectNear(view.Centre(), {5, 6});
    EXPECT_EQ(view.UnitsPerPixel(), 1);
}

TEST(MapView, FittingNothingGivesTheDefaultView)
{
    EXPECT_EQ(MapView::Fitting(Box(), Window), MapView({}, 1, Window));
}

TEST(MapView, PanningMovesTheMapWithTheHand)
{
    const MapView view({100, 50}, 2, Window);
    const QPointF grabbed = view.ToMap({30, 40});
    ExpectNear(view.Panned({25, -10}).ToPixel(grabbed), {55, 30});
}

TEST(MapView, ZoomingKeepsTheMapPointUnderThePointer)
{
    const MapView view({100, 50}, 2, Window);
    const QPointF under = view.ToMap({380, 15});
    const MapView zoomed = view.ZoomedAt({380, 15}, 4);
    EXPECT_EQ(zoomed.UnitsPerPixel(), 0.5);
    ExpectNear(zoomed.ToPixel(under), {380, 15});
}

TEST(MapView, ZoomingOutOfAllBoundsStopsAtALimit)
{
    MapView view({100, 50}, 2, Window);
    for (int i = 0; i < 500; ++i)
        view = view.ZoomedAt({0, 0}, 0.1);
    EXPECT_TRUE(std::isfinite(view.Centre().x()));
    EXPECT_EQ(view.UnitsPerPixel(), view.ZoomedAt({0, 0}, 0.1).UnitsPerPixel());
}

TEST(MapView, AnotherWindowSizeKeepsMiddleAndScale)
{
    const MapView resized = MapView({100, 50}, 2, Window).Resized({50, 60});
    ExpectNear(resized.ToPixel({100, 50}), {25, 30});
    EXPECT_EQ(resized.UnitsPerPixel(), 2);
}

TEST(MapView, AnEmptyWindowCountsAsOnePixel)
{
    EXPECT_EQ(MapView({0, 0}, 1, QSize(0, -5)).Size(), QSize(1, 1));
}

TEST(MapView, TheScaleComparesGroundAndScreen)
{
    // 96 dots per inch are 3779.5 per metre.
    EXPECT_NEAR(MapView({0, 0}, 1, Window).ScaleDenominator(1, 96), 3779.5, 0.1);
    EXPECT_NEAR(MapView({0, 0}, 1, Window).ScaleDenominator(1000, 96), 3779527.6, 0.1);
}

} // namespace Orvane
