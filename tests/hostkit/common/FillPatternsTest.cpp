// SPDX-License-Identifier: MIT
#include "hostkit/common/FillPatterns.h"

#include "hostkit/HostKitTest.h"

#include <OrvaneShellLib/LayerValues.h>

#include <QSet>

#include <algorithm>
#include <bit>

namespace Orvane::Testing {
namespace {

int Ink(int fillStyle)
{
    int pixels = 0;
    for (const char row : FillPatterns::Bitmap(fillStyle).rows)
        pixels += std::popcount(static_cast<unsigned char>(row));
    return pixels;
}

TEST(FillPatterns, AreEightByEightPixels)
{
    for (int fillStyle = 0; fillStyle <= LastFillStyle; ++fillStyle) {
        const MonochromeBitmap bitmap = FillPatterns::Bitmap(fillStyle);
        EXPECT_EQ(bitmap.width, 8);
        EXPECT_EQ(bitmap.height, 8);
        EXPECT_EQ(bitmap.rows.size(), 8);
    }
}

TEST(FillPatterns, AllThirtyTwoDiffer)
{
    QSet<QByteArray> patterns;
    for (int fillStyle = 0; fillStyle <= LastFillStyle; ++fillStyle)
        patterns.insert(FillPatterns::Bitmap(fillStyle).rows);
    EXPECT_EQ(patterns.size(), 32);
}

TEST(FillPatterns, OnlySolidIsFullAndOnlyHollowIsEmpty)
{
    for (int fillStyle = 0; fillStyle <= LastFillStyle; ++fillStyle) {
        EXPECT_EQ(Ink(fillStyle) == 64, fillStyle == SolidFill) << fillStyle;
        EXPECT_EQ(Ink(fillStyle) == 0, fillStyle == HollowFill) << fillStyle;
    }
}

TEST(FillPatterns, EachHatchHasADenserOneSixNumbersOn)
{
    for (int wide = 1; wide <= 6; ++wide)
        EXPECT_GT(Ink(wide + 6), Ink(wide)) << wide;
}

TEST(FillPatterns, TheFallingHatchMirrorsTheRisingOne)
{
    for (const auto& [rising, falling] : {std::pair(3, 4), std::pair(9, 10)}) {
        QByteArray mirrored = FillPatterns::Bitmap(rising).rows;
        std::reverse(mirrored.begin(), mirrored.end());
        EXPECT_EQ(mirrored, FillPatterns::Bitmap(falling).rows);
    }
}

TEST(FillPatterns, RefuseANumberOutsideTheirRange)
{
    EXPECT_EQ(ErrorOf([] { FillPatterns::Bitmap(-1); }), 9);
    EXPECT_EQ(ErrorOf([] { FillPatterns::Bitmap(32); }), 9);
}

} // namespace
} // namespace Orvane::Testing
