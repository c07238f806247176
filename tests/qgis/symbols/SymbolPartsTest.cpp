// SPDX-License-Identifier: MIT
#include "qgis/symbols/SymbolParts.h"

#include "qgis/symbols/Looks.h"
#include "samples/BgrColour.h"

#include <qgsfillsymbol.h>
#include <qgsfillsymbollayer.h>
#include <qgslinesymbol.h>
#include <qgslinesymbollayer.h>
#include <qgsmarkersymbol.h>
#include <qgsmarkersymbollayer.h>

namespace Orvane {

namespace {

using Testing::Has;
using Testing::Only;

constexpr qint32 Red = Bgr(0xFF0000);
constexpr qint32 Green = Bgr(0x00FF00);

qint32 NotForSymbols(qint32 colour)
{
    return qint32(quint32(colour) | 0xFF000000U);
}

// A blue marker with a black outline.
QgsSimpleMarkerSymbolLayer* Marker()
{
    auto* marker = new QgsSimpleMarkerSymbolLayer;
    marker->setFillColor(Qt::blue);
    marker->setStrokeColor(Qt::black);
    return marker;
}

} // namespace

TEST(SymbolParts, AMarkerInTwoColoursDoesNotUseTheLineColour)
{
    QgsMarkerSymbol symbol({Marker()});
    EXPECT_EQ(ReadSymbol(symbol, {})[LookColumn::Color], NotForSymbols(0));
    ChangeSymbol(symbol, Only(LookColumn::Color, NotForSymbols(Red)), {});
    EXPECT_EQ(ReadSymbol(symbol, {})[LookColumn::Color], NotForSymbols(Red));
    EXPECT_EQ(symbol.symbolLayer(0)->fillColor(), QColor(Qt::blue));
}

TEST(SymbolParts, ALineColourForSymbolsColoursTheWholeMarker)
{
    QgsMarkerSymbol symbol({Marker()});
    ChangeSymbol(symbol, Only(LookColumn::Color, Red), {});
    EXPECT_EQ(ReadSymbol(symbol, {})[LookColumn::Color], Red);
    EXPECT_EQ(symbol.symbolLayer(0)->fillColor(), QColor(Qt::red));
    EXPECT_EQ(symbol.symbolLayer(0)->strokeColor(), QColor(Qt::red));
}

TEST(SymbolParts, AMarkerHasAFillColourButNoFillStyle)
{
    QgsMarkerSymbol symbol({Marker()});
    EXPECT_TRUE(
        Has(ChangeSymbol(symbol, Only(LookColumn::FillForeColor, Green), {}), LookColumn::FillForeColor));
    EXPECT_EQ(ReadSymbol(symbol, {})[LookColumn::FillForeColor], Green);
    EXPECT_FALSE(Has(ChangeSymbol(symbol, Only(LookColumn::FillStyle, 3), {}), LookColumn::FillStyle));
    EXPECT_FALSE(ReadSymbol(symbol, {})[LookColumn::FillStyle]);
}

TEST(SymbolParts, ALineHasNoFill)
{
    QgsLineSymbol symbol({new QgsSimpleLineSymbolLayer(Qt::red)});
    const SymbolLook look = ReadSymbol(symbol, {});
    EXPECT_EQ(look[LookColumn::Color], Red);
    EXPECT_FALSE(look[LookColumn::FillForeColor]);
    EXPECT_FALSE(look[LookColumn::FillStyle]);
    EXPECT_FALSE(
        Has(ChangeSymbol(symbol, Only(LookColumn::FillForeColor, Green), {}), LookColumn::FillForeColor));
}

TEST(SymbolParts, ACasedRoadShowsWhatItsLinesShare)
{
    QgsLineSymbol symbol(
        {new QgsSimpleLineSymbolLayer(Qt::black, 5), new QgsSimpleLineSymbolLayer(Qt::yellow, 3)});
    const SymbolLook look = ReadSymbol(symbol, {});
    EXPECT_FALSE(look[LookColumn::Color]);
    EXPECT_FALSE(look[LookColumn::LineThickness]);
    EXPECT_EQ(look[LookColumn::OutlineStyle], 0);
    ChangeSymbol(symbol, Only(LookColumn::OutlineStyle, 1), {});
    EXPECT_EQ(ReadSymbol(symbol, {})[LookColumn::OutlineStyle], 1);
    EXPECT_EQ(symbol.symbolLayer(0)->color(), QColor(Qt::black));
    EXPECT_EQ(symbol.symbolLayer(1)->color(), QColor(Qt::yellow));
}

TEST(SymbolParts, ALineOfArrowsIsNotKnownAndNotTouched)
{
    QgsLineSymbol symbol({new QgsMarkerLineSymbolLayer});
    EXPECT_EQ(ReadSymbol(symbol, {}), SymbolLook());
    const QVariantMap before = symbol.symbolLayer(0)->properties();
    EXPECT_FALSE(Has(ChangeSymbol(symbol, Only(LookColumn::Color, Red), {}), LookColumn::Color));
    EXPECT_EQ(symbol.symbolLayer(0)->properties(), before);
}

TEST(SymbolParts, AnAreaOfAnotherShapeTakesColoursInItsSimpleLayers)
{
    QgsFillSymbol symbol({new QgsGradientFillSymbolLayer, new QgsSimpleLineSymbolLayer});
    EXPECT_EQ(ReadSymbol(symbol, {}), SymbolLook());
    EXPECT_TRUE(Has(ChangeSymbol(symbol, Only(LookColumn::Color, Red), {}), LookColumn::Color));
    EXPECT_EQ(symbol.symbolLayer(1)->color(), QColor(Qt::red));
    EXPECT_FALSE(Has(ChangeSymbol(symbol, Only(LookColumn::FillStyle, 3), {}), LookColumn::FillStyle));
    EXPECT_EQ(symbol.symbolLayerCount(), 2);
}

} // namespace Orvane
