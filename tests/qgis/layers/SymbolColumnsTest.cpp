// SPDX-License-Identifier: MIT
#include "qgis/layers/SymbolColumns.h"

#include "qgis/layers/LayerFixture.h"
#include "samples/BgrColour.h"

#include <qgsfillsymbol.h>
#include <qgsgraduatedsymbolrenderer.h>
#include <qgsheatmaprenderer.h>
#include <qgslinesymbol.h>
#include <qgsmarkersymbol.h>
#include <qgspallabeling.h>
#include <qgsproperty.h>
#include <qgssinglesymbolrenderer.h>
#include <qgssymbollayer.h>
#include <qgsvectorlayerlabeling.h>

#include <gmock/gmock.h>

namespace Orvane {

namespace {

using testing::ElementsAre;

constexpr qint32 Red = Bgr(0xFF0000);
constexpr qint32 Blue = Bgr(0x0000FF);

class SymbolColumnsOfQgis : public Testing::LayerFixture
{
protected:
    static void Classify(QgsVectorLayer& layer)
    {
        auto* renderer = new QgsGraduatedSymbolRenderer(QStringLiteral("people"));
        for (const char* colour : {"red", "blue"}) {
            auto* symbol
                = QgsFillSymbol::createSimple({{QStringLiteral("color"), QString::fromLatin1(colour)}});
            renderer->addClass(QgsRendererRange(0, 1, symbol, QString::fromLatin1(colour)));
        }
        layer.setRenderer(renderer);
    }

    static QColor ClassFill(const QgsVectorLayer& layer, int index)
    {
        return dynamic_cast<const QgsGraduatedSymbolRenderer&>(*layer.renderer())
            .ranges()
            .at(index)
            .symbol()
            ->color();
    }

    static QgsSymbolLayer& SymbolLayer(QgsVectorLayer& layer)
    {
        return *dynamic_cast<QgsSingleSymbolRenderer&>(*layer.renderer()).symbol()->symbolLayer(0);
    }
};

} // namespace

TEST_F(SymbolColumnsOfQgis, AClassifiedLayerIsNeverFlattened)
{
    QgsVectorLayer& layer = Add("Polygon");
    Classify(layer);
    EXPECT_TRUE(Get(layer, "FillForeColor").IsNull());
    Set(layer, "LineThickness", -4);
    Set(layer, "Color", Blue);
    Set(layer, "Visible", false);
    EXPECT_EQ(layer.renderer()->type(), QStringLiteral("graduatedSymbol"));
    EXPECT_EQ(ClassFill(layer, 0), QColor(Qt::red));
    EXPECT_EQ(ClassFill(layer, 1), QColor(Qt::blue));
    EXPECT_TRUE(Get(layer, "LineThickness").IsIdenticalTo(-4));
}

TEST_F(SymbolColumnsOfQgis, ClassesKeepTheirColoursWhenTheyAreNoLongerForSymbols)
{
    QgsVectorLayer& layer = Add("LineString");
    auto* renderer = new QgsGraduatedSymbolRenderer(QStringLiteral("people"));
    for (const char* colour : {"red", "blue"}) {
        auto* symbol = QgsLineSymbol::createSimple({{QStringLiteral("color"), QString::fromLatin1(colour)}});
        renderer->addClass(QgsRendererRange(0, 1, symbol, QString::fromLatin1(colour)));
    }
    layer.setRenderer(renderer);
    Set(layer, "Color", TransparentColour);
    EXPECT_EQ(layer.renderer(), renderer);
    EXPECT_EQ(ClassFill(layer, 1), QColor(Qt::blue));
}

TEST_F(SymbolColumnsOfQgis, LinesAndPointsHaveNoFillStyle)
{
    for (const char* kind : {"LineString", "Point"}) {
        QgsVectorLayer& layer = Add(kind);
        ExpectRoundTrip(layer, "LineThickness", 2);
        ExpectRoundTrip(layer, "OutlineStyle", 3);
        ExpectRoundTrip(layer, "Color", Red);
        EXPECT_TRUE(Get(layer, "FillStyle").IsNull());
        EXPECT_THAT(Set(layer, "FillStyle", 3).refused, ElementsAre("FillStyle"));
    }
}

TEST_F(SymbolColumnsOfQgis, AHeatmapIsNotTouched)
{
    QgsVectorLayer& layer = Add("Point");
    layer.setRenderer(new QgsHeatmapRenderer);
    EXPECT_TRUE(Get(layer, "Color").IsNull());
    EXPECT_THAT(Set(layer, "Color", Red).refused, ElementsAre("Color"));
    EXPECT_EQ(layer.renderer()->type(), QStringLiteral("heatmapRenderer"));
}

TEST_F(SymbolColumnsOfQgis, ATableHasNoSymbols)
{
    QgsVectorLayer& layer = Add("None");
    EXPECT_TRUE(Get(layer, "Color").IsNull());
    EXPECT_THAT(Set(layer, "Color", Red).refused, ElementsAre("Color"));
}

TEST_F(SymbolColumnsOfQgis, NumbersThatAreNoStyleAreRefused)
{
    QgsVectorLayer& layer = Add("Polygon");
    for (const double number : {-1.0, 32.0, 1e300})
        EXPECT_THAT(Set(layer, "FillStyle", number).refused, ElementsAre("FillStyle"));
    for (const double number : {-1.0, 16.0})
        EXPECT_THAT(Set(layer, "OutlineStyle", number).refused, ElementsAre("OutlineStyle"));
    EXPECT_TRUE(Get(layer, "FillStyle").IsIdenticalTo(0));
}

TEST_F(SymbolColumnsOfQgis, ANewColourInQgisIsSeen)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "FillForeColor", Red);
    Set(layer, "FillStyle", 0);
    SymbolLayer(layer).setFillColor(Qt::blue);
    EXPECT_TRUE(Get(layer, "FillForeColor").IsIdenticalTo(Blue));
    SymbolLayer(layer).setStrokeColor(Qt::red);
    EXPECT_TRUE(Get(layer, "Color").IsIdenticalTo(Red));
}

TEST_F(SymbolColumnsOfQgis, ExpressionsLabelsAndOpacityStay)
{
    QgsVectorLayer& layer = Add("Polygon");
    const QgsProperty width = QgsProperty::fromExpression(QStringLiteral("\"people\" / 10"));
    SymbolLayer(layer).setDataDefinedProperty(QgsSymbolLayer::PropertyStrokeWidth, width);
    layer.setLabeling(new QgsVectorLayerSimpleLabeling(QgsPalLayerSettings()));
    layer.setLabelsEnabled(true);
    layer.renderer()->setReferenceScale(1000);
    EXPECT_TRUE(Get(layer, "LineThickness").IsNull());
    Set(layer, "FillForeColor", Blue);
    Set(layer, "Color", Red);
    EXPECT_EQ(
        SymbolLayer(layer).dataDefinedProperties().property(QgsSymbolLayer::PropertyStrokeWidth), width);
    EXPECT_TRUE(layer.labelsEnabled());
    EXPECT_EQ(layer.renderer()->referenceScale(), 1000);
}

TEST_F(SymbolColumnsOfQgis, TheRendererIsSetOnceForManyColumns)
{
    QgsVectorLayer& layer = Add("Polygon");
    const LayerValues before = ReadLayer(layer, project);
    LayerValues after = before;
    SetValue(after, "Color", Red);
    SetValue(after, "FillForeColor", Blue);
    SetValue(after, "FillStyle", 4);
    int calls = 0;
    const auto setter = [&calls](QgsVectorLayer& changed, std::unique_ptr<QgsFeatureRenderer> renderer) {
        ++calls;
        changed.setRenderer(renderer.release());
    };
    WriteLayer(layer, project, before, after, setter);
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(Get(layer, "FillStyle").IsIdenticalTo(4));
}

TEST_F(SymbolColumnsOfQgis, MarkersInTwoColoursTakeTheLineColourForSymbols)
{
    QgsVectorLayer& layer = Add("Point");
    auto* symbol = QgsMarkerSymbol::createSimple({{"color", "blue"}, {"outline_color", "black"}});
    layer.setRenderer(new QgsSingleSymbolRenderer(symbol));
    EXPECT_TRUE(Set(layer, "Color", Red).refused.empty());
    EXPECT_TRUE(Get(layer, "FillForeColor").IsIdenticalTo(Red));
}

TEST_F(SymbolColumnsOfQgis, MarkersOfDifferentFillsKeepThemWhenTheFlagForSymbolsIsSet)
{
    QgsVectorLayer& layer = Add("Point");
    auto* renderer = new QgsGraduatedSymbolRenderer(QStringLiteral("people"));
    for (const char* colour : {"red", "blue"}) {
        auto* symbol = QgsMarkerSymbol::createSimple({{"color", colour}, {"outline_color", "black"}});
        renderer->addClass(QgsRendererRange(0, 1, symbol, QString::fromLatin1(colour)));
    }
    layer.setRenderer(renderer);
    EXPECT_THAT(Set(layer, "Color", Blue).refused, ElementsAre("Color"));
    EXPECT_EQ(ClassFill(layer, 0), QColor(Qt::red));
    EXPECT_EQ(ClassFill(layer, 1), QColor(Qt::blue));
    EXPECT_TRUE(Get(layer, "Color").IsIdenticalTo(qint32(quint32(Blue) | 0xFF000000U)));
}

TEST_F(SymbolColumnsOfQgis, ClassesOfDifferentFillsRefuseAHollowFill)
{
    QgsVectorLayer& layer = Add("Polygon");
    Classify(layer);
    EXPECT_THAT(Set(layer, "FillStyle", 15).refused, ElementsAre("FillStyle"));
    EXPECT_TRUE(Get(layer, "FillForeColor").IsNull());
    EXPECT_EQ(ClassFill(layer, 0), QColor(Qt::red));
}

} // namespace Orvane
