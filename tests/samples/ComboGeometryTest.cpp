// SPDX-License-Identifier: MIT
#include "samples/ComboGeometry.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <cmath>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

int ErrorOf(const ComboSize& combo)
{
    try {
        SwatchExtentOf(combo);
        LineExtentOf(combo);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(ComboGeometry, LeavesRoomForFrameAndButton)
{
    const ComboSize combo{2400, 315, 15, 15};

    EXPECT_EQ(SwatchExtentOf(combo).width, 138);
    EXPECT_EQ(SwatchExtentOf(combo).height, 14);
    EXPECT_EQ(LineExtentOf(combo).length, 138);
    EXPECT_EQ(LineExtentOf(combo).height, 15);
    EXPECT_EQ(LineExtentOf(combo).middle, 7);
}

TEST(ComboGeometry, EachDirectionHasItsOwnScale)
{
    const ComboSize combo{2400, 300, 12, 10};

    EXPECT_EQ(SwatchExtentOf(combo).width, 178);
    EXPECT_EQ(SwatchExtentOf(combo).height, 23);
    EXPECT_EQ(LineExtentOf(combo).length, 178);
    EXPECT_EQ(LineExtentOf(combo).height, 24);
}

TEST(ComboGeometry, SwatchesKeepTheirFraction)
{
    const ComboSize combo{2406, 318, 12, 12};

    EXPECT_EQ(SwatchExtentOf(combo).width, 178.5f);
    EXPECT_EQ(SwatchExtentOf(combo).height, 19.5f);
}

TEST(ComboGeometry, WholePixelsStayWholeAtTheScaleOfTheirOwnSize)
{
    for (const double dotsPerInch : {104.0, 110.0, 168.0, 192.0}) {
        for (int pixels = 100; pixels <= 260; ++pixels) {
            const double twips = std::round(pixels * 1440 / dotsPerInch);
            const double scale = twips / pixels;
            EXPECT_EQ(SwatchExtentOf({twips, twips, scale, scale}).width, float(pixels - 22));
            EXPECT_EQ(SwatchExtentOf({twips, twips, scale, scale}).height, float(pixels - 7));
        }
    }
}

TEST(ComboGeometry, AnItemHeightRoundsHalfToEvenAndALengthDownwards)
{
    EXPECT_EQ(LineExtentOf({2406, 318, 12, 12}).height, 20);
    EXPECT_EQ(LineExtentOf({2406, 330, 12, 12}).height, 22);
    EXPECT_EQ(LineExtentOf({2406, 318, 12, 12}).length, 178);
    EXPECT_EQ(LineExtentOf({251, 318, 12, 12}).length, -2);
}

TEST(ComboGeometry, TheMiddleIsRoundedDownwardsAlsoBelowZero)
{
    EXPECT_EQ(LineExtentOf({2400, 300, 15, 15}).middle, 7);
    EXPECT_EQ(LineExtentOf({2400, 15, 15, 15}).height, -5);
    EXPECT_EQ(LineExtentOf({2400, 15, 15, 15}).middle, -3);
}

TEST(ComboGeometry, AnExtentBeyond16BitsOverflows)
{
    EXPECT_EQ(ErrorOf({2400, 15.0 * 32773, 15, 15}), 0);
    EXPECT_EQ(ErrorOf({2400, 15.0 * 32774, 15, 15}), int(ErrorNumber::Overflow));
    EXPECT_EQ(ErrorOf({15.0 * 32790, 315, 15, 15}), int(ErrorNumber::Overflow));
}

TEST(ComboGeometry, AScaleOfZeroIsAFloatingPointFault)
{
    EXPECT_EQ(ErrorOf({2400, 315, 0, 15}), int(ErrorNumber::FloatingPointFault));
    EXPECT_EQ(ErrorOf({2400, 0, 15, 0}), int(ErrorNumber::FloatingPointFault));
}

} // namespace

} // namespace Orvane
