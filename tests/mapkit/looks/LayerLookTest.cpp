// SPDX-License-Identifier: MIT
#include "mapkit/looks/LayerLook.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/looks/LayerRendering.h"

#include <QImage>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

constexpr qint32 Transparent = qint32(0xff000000u);
constexpr qint32 Blue = 0xff0000; // BGR
constexpr qint32 Red = 0x0000ff;
constexpr double PixelsPerMillimetre = 4;

LayerLook LookFor(const DrawingValues& values)
{
    return LookOf(values, StandardShellServices(), PixelsPerMillimetre);
}

DrawingValues Filled(int fillStyle, qint32 fore, qint32 back)
{
    DrawingValues values;
    values.fillStyle = fillStyle;
    values.fillForeColor = fore;
    values.fillBackColor = back;
    return values;
}

} // namespace

TEST(LayerLook, ColoursAreStoredWithRedInTheLowByte)
{
    EXPECT_EQ(ColourFromBgr(0x332211), QColor(0x11, 0x22, 0x33));
}

TEST(LayerLook, AnyTopByteMarksAColourTransparent)
{
    EXPECT_EQ(ColourFromBgr(Transparent), std::nullopt);
    EXPECT_EQ(ColourFromBgr(0x01000000 | Red), std::nullopt);
}

TEST(LayerLook, ANegativeThicknessCountsPixelsAndAPositiveOneMillimetres)
{
    DrawingValues values;
    EXPECT_EQ(LookFor(values).outline.widthF(), 1);
    values.lineThickness = -3;
    EXPECT_EQ(LookFor(values).outline.widthF(), 3);
    values.lineThickness = 2;
    EXPECT_EQ(LookFor(values).outline.widthF(), 2 * PixelsPerMillimetre);
}

TEST(LayerLook, TheLineStylesAreToldApart)
{
    const std::pair<int, Qt::PenStyle> styles[]
        = {{0, Qt::SolidLine},      {1, Qt::DashLine}, {2, Qt::DotLine},       {3, Qt::DashDotLine},
           {4, Qt::DashDotDotLine}, {15, Qt::NoPen},   {9, Qt::CustomDashLine}};
    for (const auto& [stored, drawn] : styles) {
        DrawingValues values;
        values.outlineStyle = stored;
        EXPECT_EQ(LookFor(values).outline.style(), drawn) << stored;
    }
}

TEST(LayerLook, TheLineColourIsDrawnWhateverTheSymbolFlagSays)
{
    DrawingValues values;
    values.color = Red;
    EXPECT_EQ(LookFor(values).outline.color(), QColor(255, 0, 0));
    values.color = Red | Transparent;
    EXPECT_EQ(LookFor(values).outline.color(), QColor(255, 0, 0));
}

TEST(LayerLook, SymbolsTakeTheLayersColourOnlyWhenItIsUsedForSymbols)
{
    DrawingValues values;
    values.color = Red;
    EXPECT_EQ(LookFor(values).symbol, QColor(255, 0, 0));
    values.color = Red | Transparent;
    EXPECT_NE(LookFor(values).symbol, QColor(255, 0, 0));
}

TEST(LayerLook, ASolidFillTakesTheForeColourAndAHollowOneTheBackColour)
{
    EXPECT_EQ(LookFor(Filled(0, Blue, Red)).fill, QBrush(QColor(0, 0, 255)));
    EXPECT_EQ(LookFor(Filled(15, Blue, Red)).fill, QBrush(QColor(255, 0, 0)));
}

TEST(LayerLook, ATransparentColourFillsNothing)
{
    EXPECT_EQ(LookFor(Filled(0, Transparent, Red)).fill.style(), Qt::NoBrush);
    EXPECT_EQ(LookFor(Filled(0, Transparent, Transparent)).fill.style(), Qt::NoBrush);
    EXPECT_EQ(LookFor(Filled(15, Blue, Transparent)).fill.style(), Qt::NoBrush);
}

TEST(LayerLook, WithBothFillColoursTransparentAPatternTakesTheLineColour)
{
    DrawingValues values = Filled(5, Transparent, Transparent);
    values.color = Red;
    const QImage pattern = LookFor(values).fill.textureImage();
    int lines = 0, empty = 0;
    for (int y = 0; y < pattern.height(); ++y) {
        for (int x = 0; x < pattern.width(); ++x) {
            lines += pattern.pixelColor(x, y) == QColor(255, 0, 0);
            empty += pattern.pixelColor(x, y).alpha() == 0;
        }
    }
    EXPECT_GT(lines, 0);
    EXPECT_GT(empty, 0);
    EXPECT_EQ(lines + empty, pattern.width() * pattern.height());
}

TEST(LayerLook, APatternIsDrawnInForeAndBackColour)
{
    const MonochromeBitmap bitmap = StandardShellServices().FillPattern(7, 3);
    const QImage pattern = LookFor(Filled(3, Blue, Red)).fill.textureImage();
    ASSERT_EQ(pattern.size(), QSize(bitmap.width, bitmap.height));
    for (int x = 0; x < 8; ++x) {
        const bool set = (bitmap.rows.at(0) << x) & 0x80;
        EXPECT_EQ(pattern.pixelColor(x, 0), set ? QColor(0, 0, 255) : QColor(255, 0, 0)) << x;
    }
}

TEST(LayerLook, AnUnknownFillStyleFillsNothing)
{
    EXPECT_EQ(LookFor(Filled(32, Blue, Red)).fill.style(), Qt::NoBrush);
    EXPECT_EQ(LookFor(Filled(-1, Blue, Red)).fill.style(), Qt::NoBrush);
}

TEST(LayerLook, ClassesGoFromTheBackColourToTheForeColour)
{
    const auto looks = ClassLooksOf(Filled(0, Blue, Red), LayerRendering(), StandardShellServices(), 3);
    ASSERT_EQ(looks.size(), 3u);
    EXPECT_EQ(looks.front().colour, QColor(Qt::red));
    EXPECT_EQ(looks.back().colour, QColor(Qt::blue));
    EXPECT_EQ(looks.back().fill.color(), QColor(Qt::blue));
}

TEST(LayerLook, APaleFillBecomesStrongInTheHighestClass)
{
    const qint32 pale = 0xf2e2d3; // BGR
    const auto looks
        = ClassLooksOf(Filled(0, pale, Transparent), LayerRendering(), StandardShellServices(), 5);
    EXPECT_GT(looks.front().colour.lightnessF(), 0.85);
    EXPECT_LT(looks.back().colour.lightnessF(), 0.4);
    EXPECT_NEAR(looks.back().colour.hslHueF(), ColourFromBgr(pale)->hslHueF(), 0.02);
}

TEST(LayerLook, ARampTakesThePlaceOfTheFillColours)
{
    LayerRendering rendering;
    rendering.ramp = "heat";
    const auto looks = ClassLooksOf(Filled(0, Blue, Red), rendering, StandardShellServices(), 4);
    rendering.isRampReversed = true;
    const auto reversed = ClassLooksOf(Filled(0, Blue, Red), rendering, StandardShellServices(), 4);
    EXPECT_NE(looks.front().colour, QColor(Qt::red));
    EXPECT_EQ(looks.front().colour, reversed.back().colour);
}

} // namespace Orvane
