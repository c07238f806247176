// SPDX-License-Identifier: MIT
#include "component/controls/Twips.h"

#include <QPushButton>

#include <gtest/gtest.h>
#include <limits>

namespace Orvane {

namespace {

TwipsPerPixel AtDpi(double dpi)
{
    return {1440 / dpi, 1440 / dpi};
}

TEST(Twips, APixelMeasuresFifteenTwipsAt96Dpi)
{
    EXPECT_EQ(AtDpi(96).WidthToTwips(600), 9000);
    EXPECT_EQ(AtDpi(96).HeightToPixels(7000), 467);
}

TEST(Twips, WidthAndHeightHaveTheirOwnScale)
{
    const TwipsPerPixel scale{15, 10};

    EXPECT_EQ(scale.ToTwips(QSize(10, 10)), (TwipSize{150, 100}));
    EXPECT_EQ(scale.ToPixels(TwipPoint{-150, -100}), QPoint(-10, -10));
}

TEST(Twips, PixelsSurviveTheRoundTripAtAnyResolution)
{
    for (double dpi = 48; dpi <= 600; dpi += 1) {
        const TwipsPerPixel scale = AtDpi(dpi);
        for (int pixels = -2000; pixels <= 5000; pixels += 37)
            ASSERT_EQ(scale.WidthToPixels(scale.WidthToTwips(pixels)), pixels) << dpi << " dpi";
    }
}

TEST(Twips, AHalfPixelGoesToTheEvenNeighbour)
{
    EXPECT_EQ((TwipsPerPixel{10, 10}).WidthToPixels(25), 2);
    EXPECT_EQ((TwipsPerPixel{10, 10}).WidthToPixels(35), 4);
}

TEST(Twips, LengthsBeyondTheRangeSaturate)
{
    constexpr int largest = std::numeric_limits<qint32>::max();

    EXPECT_EQ(AtDpi(96).WidthToTwips(largest), largest);
    EXPECT_EQ(AtDpi(2880).HeightToPixels(std::numeric_limits<Twips>::min()), std::numeric_limits<int>::min());
}

TEST(PopupAnchor, IsTheBottomRightCornerOfTheButtonInScreenTwips)
{
    QWidget window;
    window.setGeometry(100, 50, 300, 200);
    QPushButton button(&window);
    button.setGeometry(40, 30, 60, 20);
    const TwipsPerPixel scale = TwipsPerPixelOf(button);

    EXPECT_EQ(scale.ToPixels(PopupAnchor(button)), window.mapToGlobal(QPoint(100, 50)));
}

TEST(PopupAnchor, FollowsTheWindowToTheLeftOfThePrimaryScreen)
{
    QWidget window;
    window.setGeometry(-400, -300, 200, 200);
    QPushButton button(&window);
    button.setGeometry(0, 0, 10, 10);

    EXPECT_EQ(PopupAnchor(button), (TwipPoint{-390 * 15, -290 * 15}));
}

} // namespace

} // namespace Orvane
