// SPDX-License-Identifier: MIT
#include "qgis/symbols/PenLook.h"

#include "qgis/symbols/Looks.h"
#include "samples/BgrColour.h"

#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbollayer.h>
#include <qgsproperty.h>

namespace Orvane {

namespace {

using Testing::Has;
using Testing::Only;

constexpr qint32 Red = Bgr(0xFF0000);

} // namespace

TEST(PenLook, EveryLineStyleIsReadAsItWasSet)
{
    QgsSimpleLineSymbolLayer line;
    for (qint32 style = 0; style <= 15; ++style) {
        EXPECT_TRUE(Has(ChangePen(line, Only(LookColumn::OutlineStyle, style)), LookColumn::OutlineStyle));
        EXPECT_EQ(ReadPen(line)[LookColumn::OutlineStyle], style);
    }
}

TEST(PenLook, LineStylesUpToFourAreThoseOfQgis)
{
    QgsSimpleLineSymbolLayer line;
    ChangePen(line, Only(LookColumn::OutlineStyle, 2));
    EXPECT_EQ(line.penStyle(), Qt::DotLine);
    EXPECT_FALSE(line.useCustomDashPattern());
}

TEST(PenLook, EveryWidthIsReadAsItWasSet)
{
    QgsSimpleLineSymbolLayer line;
    QgsSimpleFillSymbolLayer area;
    QgsSimpleMarkerSymbolLayer marker;
    for (const qint32 width : {-40, -5, -2, -1, 0, 1, 2, 30}) {
        const SymbolLook change = Only(LookColumn::LineThickness, width);
        ChangePen(line, change);
        ChangePen(area, change);
        ChangePen(marker, change);
        EXPECT_EQ(ReadPen(line)[LookColumn::LineThickness], width);
        EXPECT_EQ(ReadPen(area)[LookColumn::LineThickness], width);
        EXPECT_EQ(ReadPen(marker)[LookColumn::LineThickness], width);
    }
}

TEST(PenLook, NegativeWidthsArePixelsPositiveOnesMillimetresAndZeroAHairline)
{
    QgsSimpleLineSymbolLayer line;
    ChangePen(line, Only(LookColumn::LineThickness, -3));
    EXPECT_EQ(line.width(), 3);
    EXPECT_EQ(line.widthUnit(), QgsUnitTypes::RenderPixels);
    ChangePen(line, Only(LookColumn::LineThickness, 2));
    EXPECT_EQ(line.width(), 2);
    EXPECT_EQ(line.widthUnit(), QgsUnitTypes::RenderMillimeters);
    ChangePen(line, Only(LookColumn::LineThickness, 0));
    EXPECT_EQ(line.width(), 0);
}

TEST(PenLook, WidthsBetweenAreShownAsTheNearestPixels)
{
    QgsSimpleLineSymbolLayer line(Qt::black, 0.26);
    EXPECT_EQ(ReadPen(line)[LookColumn::LineThickness], -1);
    line.setWidth(0.5);
    EXPECT_EQ(ReadPen(line)[LookColumn::LineThickness], -2);
    line.setWidth(0.01);
    EXPECT_EQ(ReadPen(line)[LookColumn::LineThickness], -1);
    line.setWidth(3);
    line.setWidthUnit(QgsUnitTypes::RenderPoints);
    EXPECT_EQ(ReadPen(line)[LookColumn::LineThickness], -4);
}

TEST(PenLook, WidthsOnTheGroundAreNotKnown)
{
    QgsSimpleLineSymbolLayer line(Qt::black, 12);
    line.setWidthUnit(QgsUnitTypes::RenderMetersInMapUnits);
    EXPECT_FALSE(ReadPen(line)[LookColumn::LineThickness]);
    line.setWidthUnit(QgsUnitTypes::RenderMapUnits);
    EXPECT_FALSE(ReadPen(line)[LookColumn::LineThickness]);
}

TEST(PenLook, DashesGrowWithTheWidth)
{
    QgsSimpleLineSymbolLayer line;
    ChangePen(line, Only(LookColumn::OutlineStyle, 7));
    ChangePen(line, Only(LookColumn::LineThickness, -3));
    EXPECT_EQ(line.customDashVector(), (QVector<qreal>{21, 6, 3, 6}));
    EXPECT_EQ(line.customDashPatternUnit(), QgsUnitTypes::RenderPixels);
    ChangePen(line, Only(LookColumn::LineThickness, 2));
    EXPECT_EQ(line.customDashVector(), (QVector<qreal>{14, 4, 2, 4}));
    EXPECT_EQ(line.customDashPatternUnit(), QgsUnitTypes::RenderMillimeters);
    EXPECT_EQ(ReadPen(line)[LookColumn::OutlineStyle], 7);
}

TEST(PenLook, AHairlineHasDashesTooInPixels)
{
    QgsSimpleLineSymbolLayer line;
    ChangePen(line, Only(LookColumn::LineThickness, 0));
    ChangePen(line, Only(LookColumn::OutlineStyle, 5));
    EXPECT_EQ(line.customDashVector(), (QVector<qreal>{5, 2, 1, 2}));
    EXPECT_EQ(line.customDashPatternUnit(), QgsUnitTypes::RenderPixels);
}

TEST(PenLook, DashesOfAnotherShapeAreNotKnownAndStayWithAnotherWidth)
{
    const QVector<qreal> dashes{3, 7};
    QgsSimpleLineSymbolLayer line;
    line.setUseCustomDashPattern(true);
    line.setCustomDashVector(dashes);
    EXPECT_FALSE(ReadPen(line)[LookColumn::OutlineStyle]);
    ChangePen(line, Only(LookColumn::LineThickness, -2));
    EXPECT_EQ(line.customDashVector(), dashes);
    EXPECT_TRUE(line.useCustomDashPattern());
}

TEST(PenLook, ANewColourKeepsHowMuchShinesThrough)
{
    QgsSimpleLineSymbolLayer line(QColor(0, 0, 255, 100));
    EXPECT_EQ(ReadPen(line)[LookColumn::Color], Bgr(0x0000FF));
    ChangePen(line, Only(LookColumn::Color, Red));
    EXPECT_EQ(line.color(), QColor(255, 0, 0, 100));
}

TEST(PenLook, ANewColourMakesAnInvisibleLineVisible)
{
    QgsSimpleLineSymbolLayer line(QColor(0, 0, 255, 0));
    ChangePen(line, Only(LookColumn::Color, Red));
    EXPECT_EQ(line.color(), QColor(255, 0, 0));
}

TEST(PenLook, WhatDataDefineIsNotKnownAndStays)
{
    QgsSimpleLineSymbolLayer line;
    const QgsProperty expression = QgsProperty::fromExpression(QStringLiteral("color_rgb(1,2,3)"));
    line.setDataDefinedProperty(QgsSymbolLayer::PropertyStrokeColor, expression);
    EXPECT_FALSE(ReadPen(line)[LookColumn::Color]);
    EXPECT_EQ(ReadPen(line)[LookColumn::OutlineStyle], 0);
    ChangePen(line, Only(LookColumn::Color, Red));
    ChangePen(line, Only(LookColumn::LineThickness, -5));
    EXPECT_EQ(line.dataDefinedProperties().property(QgsSymbolLayer::PropertyStrokeColor), expression);
    EXPECT_FALSE(ReadPen(line)[LookColumn::Color]);
}

TEST(PenLook, TheOutlineOfAMarkerTakesNoLongDashes)
{
    QgsSimpleMarkerSymbolLayer marker;
    marker.setStrokeStyle(Qt::DashLine);
    EXPECT_FALSE(Has(ChangePen(marker, Only(LookColumn::OutlineStyle, 9)), LookColumn::OutlineStyle));
    EXPECT_EQ(marker.strokeStyle(), Qt::DashLine);
    EXPECT_TRUE(Has(ChangePen(marker, Only(LookColumn::OutlineStyle, 15)), LookColumn::OutlineStyle));
    EXPECT_EQ(marker.strokeStyle(), Qt::NoPen);
}

} // namespace Orvane
