// SPDX-License-Identifier: MIT
#include "qgis/layers/KeptValues.h"
#include "qgis/layers/LayerFixture.h"
#include "samples/BgrColour.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QSignalSpy>
#include <qgsannotationlayer.h>
#include <qgslayertree.h>

#include <gmock/gmock.h>

namespace Orvane {

namespace {

class LayerColumnsOfQgis : public Testing::LayerFixture
{
};

using testing::ElementsAre;

} // namespace

TEST_F(LayerColumnsOfQgis, EachFlagIsReadAsItWasWritten)
{
    QgsVectorLayer& layer = Add("Polygon");
    for (const char* column : {"Visible", "Selectable", "locked", "Hitable", "Enquirable"}) {
        ExpectRoundTrip(layer, column, false);
        ExpectRoundTrip(layer, column, true);
        ExpectRoundTrip(layer, column, false);
    }
}

TEST_F(LayerColumnsOfQgis, EachNumberIsReadAsItWasWritten)
{
    QgsVectorLayer& layer = Add("Polygon");
    ExpectRoundTrip(layer, "Code", 4711);
    ExpectRoundTrip(layer, "MinVisScale", 500.0);
    ExpectRoundTrip(layer, "MaxVisScale", 250000.0);
    ExpectRoundTrip(layer, "MinVisScale", 0.0);
    ExpectRoundTrip(layer, "OverrideMode", 1);
    ExpectRoundTrip(layer, "OverrideMode", 2);
    ExpectRoundTrip(layer, "OverrideMode", 0);
}

TEST_F(LayerColumnsOfQgis, EachSymbolColumnIsReadAsItWasWritten)
{
    QgsVectorLayer& layer = Add("Polygon");
    ExpectRoundTrip(layer, "Color", Bgr(0x123456));
    ExpectRoundTrip(layer, "FillForeColor", Bgr(0x654321));
    ExpectRoundTrip(layer, "FillBackColor", Bgr(0xABCDEF));
    ExpectRoundTrip(layer, "OutlineStyle", 11);
    ExpectRoundTrip(layer, "FillStyle", 21);
    ExpectRoundTrip(layer, "LineThickness", -3);
}

TEST_F(LayerColumnsOfQgis, WhatTheMirrorOwnsIsNotRead)
{
    const QgsVectorLayer& layer = Add("Polygon");
    for (const char* column : {"LayerID", "Name", "Priority", "Pseudo", "SystemLayer"})
        EXPECT_TRUE(Get(layer, column).IsNull()) << column;
}

TEST_F(LayerColumnsOfQgis, NoOtherColumnOfAnAreaIsUnknown)
{
    const LayerValues values = ReadLayer(Add("Polygon"), project);
    for (std::size_t i = 2; i < LayerColumns.size() - 2; ++i) {
        const std::string_view name = LayerColumns[i].name;
        EXPECT_EQ(values[i].IsNull(), name == "Priority" || name == "Style") << name;
    }
}

TEST_F(LayerColumnsOfQgis, TheTickIsThatOfTheTree)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "Visible", false);
    EXPECT_FALSE(project.layerTreeRoot()->findLayer(layer.id())->itemVisibilityChecked());
    project.layerTreeRoot()->findLayer(layer.id())->setItemVisibilityChecked(true);
    EXPECT_TRUE(Get(layer, "Visible").IsIdenticalTo(true));
}

TEST_F(LayerColumnsOfQgis, ALayerOutsideTheTreeHasNoTick)
{
    QgsVectorLayer& layer = Add("Polygon");
    project.layerTreeRoot()->removeLayer(&layer);
    EXPECT_TRUE(Get(layer, "Visible").IsNull());
}

TEST_F(LayerColumnsOfQgis, OurMinimumScaleIsTheMaximumOfQgis)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "MinVisScale", 1000.0);
    Set(layer, "MaxVisScale", 50000.0);
    EXPECT_TRUE(layer.hasScaleBasedVisibility());
    EXPECT_EQ(layer.maximumScale(), 1000);
    EXPECT_EQ(layer.minimumScale(), 50000);
    EXPECT_TRUE(layer.isInScaleRange(20000));
    EXPECT_FALSE(layer.isInScaleRange(500));
    EXPECT_FALSE(layer.isInScaleRange(90000));
}

TEST_F(LayerColumnsOfQgis, ScalesThatQgisDoesNotUseAreNoLimits)
{
    QgsVectorLayer& layer = Add("Polygon");
    layer.setMaximumScale(1000);
    layer.setScaleBasedVisibility(false);
    EXPECT_TRUE(Get(layer, "MinVisScale").IsIdenticalTo(0.0));
    Set(layer, "MaxVisScale", 5e9);
    EXPECT_FALSE(layer.hasScaleBasedVisibility());
}

TEST_F(LayerColumnsOfQgis, IdentifiableIsHitableAndEnquirable)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "Hitable", false);
    EXPECT_FALSE(layer.flags().testFlag(QgsMapLayer::Identifiable));
    EXPECT_TRUE(Get(layer, "Enquirable").IsIdenticalTo(true));
    layer.setFlags(layer.flags() | QgsMapLayer::Identifiable);
    EXPECT_TRUE(Get(layer, "Hitable").IsIdenticalTo(true));
}

TEST_F(LayerColumnsOfQgis, ALayerThatIsBeingEditedRefusesALock)
{
    QgsVectorLayer& layer = Add("Polygon");
    layer.startEditing();
    EXPECT_THAT(Set(layer, "locked", true).refused, ElementsAre("locked"));
    EXPECT_TRUE(Get(layer, "locked").IsIdenticalTo(false));
    layer.rollBack();
}

TEST_F(LayerColumnsOfQgis, NullAndEqualValuesAreNotWritten)
{
    QgsVectorLayer& layer = Add("Polygon");
    LayerValues before = ReadLayer(layer, project);
    SetValue(before, "Visible", qint32(1));
    LayerValues after = UnknownLayerValues();
    SetValue(after, "Visible", true);
    QSignalSpy renderer(&layer, &QgsMapLayer::rendererChanged);
    const QStringList properties = layer.customPropertyKeys();
    WriteLayer(layer, project, before, after);
    EXPECT_EQ(renderer.count(), 0);
    EXPECT_EQ(layer.customPropertyKeys(), properties);
}

TEST_F(LayerColumnsOfQgis, TextsThatAreNoNumbersRaise)
{
    QgsVectorLayer& layer = Add("Polygon");
    EXPECT_THROW(Set(layer, "Code", QStringLiteral("many")), RunTimeError);
}

TEST_F(LayerColumnsOfQgis, ARasterHasNoSymbolColumnsAndIsNotTouched)
{
    QgsRasterLayer& layer = AddRaster();
    QSignalSpy renderer(&layer, &QgsMapLayer::rendererChanged);
    const QStringList properties = layer.customPropertyKeys();
    for (const char* column :
         {"Color", "FillForeColor", "FillBackColor", "OutlineStyle", "FillStyle", "LineThickness", "locked",
          "SnapRequired"}) {
        EXPECT_TRUE(Get(layer, column).IsNull()) << column;
        Set(layer, column, 1);
    }
    EXPECT_THAT(Set(layer, "FillStyle", 3).refused, ElementsAre("FillStyle"));
    EXPECT_EQ(renderer.count(), 0);
    EXPECT_EQ(layer.customPropertyKeys(), properties);
}

TEST_F(LayerColumnsOfQgis, ARasterHasTickScalesAndQuickMode)
{
    QgsRasterLayer& layer = AddRaster();
    ExpectRoundTrip(layer, "Visible", false);
    ExpectRoundTrip(layer, "MaxVisScale", 5000.0);
    ExpectRoundTrip(layer, "OverrideMode", 1);
}

TEST_F(LayerColumnsOfQgis, KeptNumbersThatAreNoneAreForgotten)
{
    QgsVectorLayer& layer = Add("Polygon");
    layer.setCustomProperty(QStringLiteral("orvane/Code"), QStringLiteral("much"));
    EXPECT_TRUE(Get(layer, "Code").IsIdenticalTo(0));
    layer.setCustomProperty(QStringLiteral("orvane/Code"), 1e300);
    EXPECT_TRUE(Get(layer, "Code").IsIdenticalTo(0));
}

TEST_F(LayerColumnsOfQgis, ALayerWithoutDataRefusesAllButItsTick)
{
    auto* layer = new QgsVectorLayer("no such file.shp", "Lost", "ogr");
    project.addMapLayer(layer);
    EXPECT_TRUE(Get(*layer, "OverrideMode").IsNull());
    EXPECT_TRUE(Get(*layer, "Code").IsIdenticalTo(0));
    EXPECT_THAT(Set(*layer, "Code", 3).refused, ElementsAre("Code"));
    EXPECT_TRUE(Set(*layer, "Visible", false).refused.empty());
    EXPECT_FALSE(project.layerTreeRoot()->findLayer(layer)->itemVisibilityChecked());
    EXPECT_TRUE(layer->customPropertyKeys().isEmpty());
}

TEST_F(LayerColumnsOfQgis, AnnotationsHaveWhatQgisSavesOfThem)
{
    auto* layer
        = new QgsAnnotationLayer("Notes", QgsAnnotationLayer::LayerOptions(project.transformContext()));
    project.addMapLayer(layer);
    EXPECT_TRUE(Get(*layer, "Visible").IsIdenticalTo(true));
    for (const char* column : {"Selectable", "Hitable", "Enquirable", "Style", "MinVisScale", "OverrideMode"})
        EXPECT_TRUE(Get(*layer, column).IsNull()) << column;
}

} // namespace Orvane
