// SPDX-License-Identifier: MIT
#include "qgis/symbols/AreaSymbol.h"

#include "qgis/symbols/FillPicture.h"
#include "qgis/symbols/Looks.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/LayerValues.h>

#include <qgsfillsymbol.h>
#include <qgsfillsymbollayer.h>
#include <qgslinesymbollayer.h>
#include <qgsproperty.h>

#include <memory>

namespace Orvane {

namespace {

using Testing::Only;

constexpr qint32 Red = Bgr(0xFF0000);
constexpr qint32 Blue = Bgr(0x0000FF);
constexpr qint32 Green = Bgr(0x00FF00);

// A symbol, and what a layer keeps with it.
class Area
{
public:
    Area()
        : m_symbol(std::make_unique<QgsFillSymbol>(QgsSymbolLayerList{new QgsSimpleFillSymbolLayer(Qt::red)}))
    {
    }

    QgsFillSymbol& Symbol() { return *m_symbol; }
    QgsSimpleFillSymbolLayer& Fill(int index = 0)
    {
        return dynamic_cast<QgsSimpleFillSymbolLayer&>(*m_symbol->symbolLayer(index));
    }
    SymbolLook Look() { return AreaSymbol::Of(*m_symbol)->Look(m_kept); }
    std::optional<qint32> Get(LookColumn column) { return Look()[column]; }
    void Set(LookColumn column, qint32 value) { Set(Only(column, value)); }
    void Set(const SymbolLook& changes)
    {
        AreaSymbol area = *AreaSymbol::Of(*m_symbol);
        const SymbolLook look = Merged(area.Look(m_kept), changes);
        area.Change(changes, m_kept);
        m_kept = look;
    }

private:
    std::unique_ptr<QgsFillSymbol> m_symbol;
    SymbolLook m_kept;
};

SymbolLook FillOf(qint32 style, qint32 fore, qint32 back)
{
    SymbolLook look;
    look[LookColumn::FillStyle] = style;
    look[LookColumn::FillForeColor] = fore;
    look[LookColumn::FillBackColor] = back;
    return look;
}

} // namespace

TEST(AreaSymbol, EveryFillStyleIsReadAsItWasSetWithItsColours)
{
    Area area;
    for (const qint32 fore : {Red, TransparentColour}) {
        for (const qint32 back : {Blue, TransparentColour}) {
            for (qint32 style = 0; style <= LastFillStyle; ++style) {
                const SymbolLook change = FillOf(style, fore, back);
                area.Set(change);
                EXPECT_EQ(Merged(area.Look(), change), area.Look()) << style << ' ' << fore << ' ' << back;
            }
        }
    }
}

TEST(AreaSymbol, EveryLineStyleIsReadAsItWasSetUnderEveryKindOfFill)
{
    for (const qint32 fill : {0, 7, 15}) {
        Area area;
        area.Set(LookColumn::FillStyle, fill);
        for (qint32 style = 0; style <= 15; ++style) {
            area.Set(LookColumn::OutlineStyle, style);
            EXPECT_EQ(area.Get(LookColumn::OutlineStyle), style);
            EXPECT_EQ(area.Get(LookColumn::FillStyle), fill);
        }
    }
}

TEST(AreaSymbol, TheColourOfTheOutlineLeavesTheFillAndTheOtherWayRound)
{
    Area area;
    area.Set(LookColumn::Color, Green);
    EXPECT_EQ(area.Get(LookColumn::FillForeColor), Red);
    area.Set(LookColumn::FillForeColor, Blue);
    EXPECT_EQ(area.Get(LookColumn::Color), Green);
    EXPECT_EQ(area.Fill().strokeColor(), QColor(0, 255, 0));
    EXPECT_EQ(area.Fill().fillColor(), QColor(0, 0, 255));
}

TEST(AreaSymbol, WhetherTheLineColourIsForSymbolsIsKept)
{
    Area area;
    const qint32 notForSymbols = qint32(quint32(Green) | 0xFF000000U);
    area.Set(LookColumn::Color, notForSymbols);
    EXPECT_EQ(area.Get(LookColumn::Color), notForSymbols);
    area.Fill().setStrokeColor(Qt::blue);
    EXPECT_EQ(area.Get(LookColumn::Color), qint32(quint32(Blue) | 0xFF000000U));
}

TEST(AreaSymbol, APatternLiesUnderThePlainFillWhichThenDrawsTheOutline)
{
    Area area;
    area.Set(LookColumn::FillStyle, 3);
    ASSERT_EQ(area.Symbol().symbolLayerCount(), 2);
    auto& pattern = dynamic_cast<QgsRasterFillSymbolLayer&>(*area.Symbol().symbolLayer(0));
    EXPECT_EQ(pattern.imageFilePath(), (FillPicture{3, Red, TransparentColour}.Encoded(0)));
    EXPECT_EQ(area.Fill(1).brushStyle(), Qt::NoBrush);
    EXPECT_EQ(area.Fill(1).strokeStyle(), Qt::SolidLine);
}

TEST(AreaSymbol, APatternGoesAwayWithAPlainFill)
{
    Area area;
    area.Set(LookColumn::FillStyle, 3);
    area.Set(LookColumn::FillStyle, SolidFill);
    ASSERT_EQ(area.Symbol().symbolLayerCount(), 1);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::SolidPattern);
    EXPECT_EQ(area.Fill().fillColor(), QColor(Qt::red));
}

TEST(AreaSymbol, HollowShowsNothingButTheBackColour)
{
    Area area;
    area.Set(LookColumn::FillStyle, HollowFill);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::NoBrush);
    area.Set(LookColumn::FillBackColor, Blue);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::SolidPattern);
    EXPECT_EQ(area.Fill().fillColor(), QColor(Qt::blue));
    EXPECT_EQ(area.Get(LookColumn::FillForeColor), Red);
    area.Set(LookColumn::FillStyle, SolidFill);
    EXPECT_EQ(area.Fill().fillColor(), QColor(Qt::red));
}

TEST(AreaSymbol, ASolidFillInATransparentColourDrawsNothing)
{
    Area area;
    area.Set(LookColumn::FillForeColor, TransparentColour);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::NoBrush);
    area.Set(LookColumn::FillForeColor, Blue);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::SolidPattern);
}

TEST(AreaSymbol, APatternWithoutColoursFollowsTheLineColour)
{
    Area area;
    area.Set(FillOf(13, TransparentColour, TransparentColour));
    area.Set(LookColumn::Color, Green);
    auto& pattern = dynamic_cast<QgsRasterFillSymbolLayer&>(*area.Symbol().symbolLayer(0));
    EXPECT_EQ(
        pattern.imageFilePath(), (FillPicture{13, TransparentColour, TransparentColour}.Encoded(Green)));
}

TEST(AreaSymbol, ARecolouringInQgisIsSeenWhateverIsKept)
{
    Area area;
    area.Set(FillOf(HollowFill, Red, Blue));
    area.Fill().setFillColor(Qt::green);
    EXPECT_EQ(area.Get(LookColumn::FillBackColor), Green);
    area.Set(FillOf(SolidFill, Red, Blue));
    area.Fill().setFillColor(Qt::green);
    EXPECT_EQ(area.Get(LookColumn::FillForeColor), Green);
    area.Fill().setBrushStyle(Qt::NoBrush);
    EXPECT_EQ(area.Get(LookColumn::FillStyle), HollowFill);
}

TEST(AreaSymbol, ABrushOfQgisHasNoNumberAndStaysWithANewColour)
{
    Area area;
    area.Fill().setBrushStyle(Qt::Dense4Pattern);
    EXPECT_FALSE(area.Get(LookColumn::FillStyle));
    area.Set(LookColumn::FillForeColor, Blue);
    EXPECT_EQ(area.Fill().brushStyle(), Qt::Dense4Pattern);
    EXPECT_EQ(area.Fill().fillColor(), QColor(Qt::blue));
}

TEST(AreaSymbol, LongDashesAreDrawnByALineThatTakesTheOutlinesValues)
{
    Area area;
    area.Fill().setStrokeColor(Qt::green);
    area.Fill().setStrokeWidth(2);
    area.Set(LookColumn::OutlineStyle, 9);
    ASSERT_EQ(area.Symbol().symbolLayerCount(), 2);
    EXPECT_EQ(area.Fill().strokeStyle(), Qt::NoPen);
    EXPECT_EQ(area.Get(LookColumn::Color), Green);
    EXPECT_EQ(area.Get(LookColumn::LineThickness), 2);
}

TEST(AreaSymbol, WhatDataDefineStaysWithPatternsAndDashes)
{
    Area area;
    const QgsProperty colour = QgsProperty::fromField(QStringLiteral("colour"));
    area.Fill().setDataDefinedProperty(QgsSymbolLayer::PropertyFillColor, colour);
    area.Fill().setDataDefinedProperty(QgsSymbolLayer::PropertyStrokeColor, colour);
    EXPECT_FALSE(area.Get(LookColumn::FillForeColor));
    EXPECT_FALSE(area.Get(LookColumn::Color));
    area.Set(LookColumn::OutlineStyle, 9);
    EXPECT_FALSE(area.Get(LookColumn::Color));
    area.Set(FillOf(3, Red, Blue));
    area.Set(LookColumn::FillStyle, SolidFill);
    const QgsPropertyCollection& fromData = area.Fill().dataDefinedProperties();
    EXPECT_EQ(fromData.property(QgsSymbolLayer::PropertyFillColor), colour);
    EXPECT_EQ(fromData.property(QgsSymbolLayer::PropertyStrokeColor), colour);
}

TEST(AreaSymbol, APatternOverAColourFromDataTakesTheColourOfTheSymbol)
{
    Area area;
    area.Fill().setDataDefinedProperty(
        QgsSymbolLayer::PropertyFillColor, QgsProperty::fromField(QStringLiteral("colour")));
    area.Set(LookColumn::FillStyle, 3);
    EXPECT_EQ(area.Get(LookColumn::FillForeColor), Red);
}

TEST(AreaSymbol, AnOutlineAloneIsHollowAndCanBeFilled)
{
    QgsFillSymbol symbol({new QgsSimpleLineSymbolLayer(Qt::green)});
    EXPECT_EQ(AreaSymbol::Of(symbol)->Look({})[LookColumn::FillStyle], HollowFill);
    AreaSymbol::Of(symbol)->Change(FillOf(SolidFill, Blue, TransparentColour), {});
    const SymbolLook look = AreaSymbol::Of(symbol)->Look({});
    EXPECT_EQ(look[LookColumn::FillForeColor], Blue);
    EXPECT_EQ(look[LookColumn::Color], Green);
}

TEST(AreaSymbol, AFillThatCoversAPatternIsNotDescribed)
{
    Area area;
    area.Set(LookColumn::FillStyle, 3);
    area.Fill(1).setBrushStyle(Qt::SolidPattern);
    EXPECT_FALSE(AreaSymbol::Of(area.Symbol()));
}

TEST(AreaSymbol, OtherShapesAreNotDescribed)
{
    QgsFillSymbol twoFills({new QgsSimpleFillSymbolLayer, new QgsSimpleFillSymbolLayer});
    QgsFillSymbol gradient({new QgsGradientFillSymbolLayer});
    QgsFillSymbol stones(
        {new QgsRasterFillSymbolLayer(QStringLiteral("stones.png")), new QgsSimpleLineSymbolLayer});
    QgsFillSymbol twoOutlines({new QgsSimpleFillSymbolLayer, new QgsSimpleLineSymbolLayer});
    QgsFillSymbol disabled({new QgsSimpleFillSymbolLayer});
    disabled.symbolLayer(0)->setEnabled(false);
    for (QgsFillSymbol* symbol : {&twoFills, &gradient, &stones, &twoOutlines, &disabled})
        EXPECT_FALSE(AreaSymbol::Of(*symbol));
}

} // namespace Orvane
