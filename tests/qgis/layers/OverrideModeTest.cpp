// SPDX-License-Identifier: MIT
#include "qgis/layers/OverrideMode.h"

#include "qgis/layers/LayerFixture.h"

#include <qgslayertree.h>

#include <gmock/gmock.h>

namespace Orvane {

namespace {

class OverrideModeOfQgis : public Testing::LayerFixture
{
protected:
    bool IsTicked(const QgsMapLayer& layer)
    {
        return project.layerTreeRoot()->findLayer(layer.id())->itemVisibilityChecked();
    }
    void Tick(const QgsMapLayer& layer, bool ticked)
    {
        project.layerTreeRoot()->findLayer(layer.id())->setItemVisibilityChecked(ticked);
    }
};

} // namespace

TEST_F(OverrideModeOfQgis, ABackdropIsFaintAndGetsItsOpacityBack)
{
    QgsVectorLayer& layer = Add("Polygon");
    layer.setOpacity(0.8);
    Set(layer, "OverrideMode", 1);
    EXPECT_DOUBLE_EQ(layer.opacity(), 0.8 * 0.35);
    Set(layer, "OverrideMode", 0);
    EXPECT_DOUBLE_EQ(layer.opacity(), 0.8);
    EXPECT_TRUE(layer.customPropertyKeys().isEmpty());
}

TEST_F(OverrideModeOfQgis, AHiddenLayerIsUntickedAndGetsItsTickBack)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 2);
    EXPECT_FALSE(IsTicked(layer));
    EXPECT_TRUE(Get(layer, "Visible").IsIdenticalTo(true));
    Set(layer, "OverrideMode", 0);
    EXPECT_TRUE(IsTicked(layer));
}

TEST_F(OverrideModeOfQgis, ALayerThatWasUntickedBeforeStaysSo)
{
    QgsVectorLayer& layer = Add("Polygon");
    Tick(layer, false);
    Set(layer, "OverrideMode", 2);
    Set(layer, "OverrideMode", 0);
    EXPECT_FALSE(IsTicked(layer));
}

TEST_F(OverrideModeOfQgis, ATickOfAHiddenLayerIsForLater)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 2);
    Set(layer, "Visible", false);
    EXPECT_TRUE(Get(layer, "Visible").IsIdenticalTo(false));
    Set(layer, "Visible", true);
    EXPECT_FALSE(IsTicked(layer));
    Set(layer, "OverrideMode", 0);
    EXPECT_TRUE(IsTicked(layer));
}

TEST_F(OverrideModeOfQgis, OneModeTakesBackTheOther)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 1);
    Set(layer, "OverrideMode", 2);
    EXPECT_DOUBLE_EQ(layer.opacity(), 1);
    EXPECT_FALSE(IsTicked(layer));
    Set(layer, "OverrideMode", 1);
    EXPECT_TRUE(IsTicked(layer));
    EXPECT_DOUBLE_EQ(layer.opacity(), 0.35);
}

TEST_F(OverrideModeOfQgis, AnotherOpacityInQgisEndsTheBackdropAndStays)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 1);
    layer.setOpacity(0.6);
    EXPECT_TRUE(Get(layer, "OverrideMode").IsIdenticalTo(0));
    Set(layer, "Code", 1);
    EXPECT_DOUBLE_EQ(layer.opacity(), 0.6);
    Set(layer, "OverrideMode", 1);
    EXPECT_DOUBLE_EQ(layer.opacity(), 0.6 * 0.35);
}

TEST_F(OverrideModeOfQgis, ATickInQgisEndsTheHiding)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 2);
    Tick(layer, true);
    EXPECT_TRUE(Get(layer, "OverrideMode").IsIdenticalTo(0));
    ForgetEndedMode(layer, project);
    Tick(layer, false);
    EXPECT_TRUE(Get(layer, "OverrideMode").IsIdenticalTo(0));
    EXPECT_TRUE(Get(layer, "Visible").IsIdenticalTo(false));
}

TEST_F(OverrideModeOfQgis, AModeThatEndedIsForgottenWithTheNextChange)
{
    QgsVectorLayer& layer = Add("Polygon");
    Set(layer, "OverrideMode", 2);
    Tick(layer, true);
    Set(layer, "Visible", false);
    EXPECT_TRUE(Get(layer, "OverrideMode").IsIdenticalTo(0));
    EXPECT_TRUE(Get(layer, "Visible").IsIdenticalTo(false));
}

TEST_F(OverrideModeOfQgis, ALayerOutsideTheTreeCannotBeHidden)
{
    QgsVectorLayer& layer = Add("Polygon");
    project.layerTreeRoot()->removeLayer(&layer);
    EXPECT_THAT(Set(layer, "OverrideMode", 2).refused, testing::ElementsAre("OverrideMode"));
    EXPECT_TRUE(layer.customPropertyKeys().isEmpty());
}

TEST_F(OverrideModeOfQgis, ModeAndTickCanBeWrittenAtOnce)
{
    QgsVectorLayer& layer = Add("Polygon");
    const LayerValues before = ReadLayer(layer, project);
    LayerValues after = before;
    SetValue(after, "OverrideMode", qint16(2));
    SetValue(after, "Visible", false);
    WriteLayer(layer, project, before, after);
    WriteLayer(layer, project, after, before);
    EXPECT_TRUE(IsTicked(layer));
}

} // namespace Orvane
