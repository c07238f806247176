// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerSnap.h"

#include "qgis/layers/LayerFixture.h"

#include <QSignalSpy>
#include <qgssnappingconfig.h>

namespace Orvane {

namespace {

class LayerSnapOfQgis : public Testing::LayerFixture
{
protected:
    void UseMode(QgsSnappingConfig::SnappingMode mode)
    {
        QgsSnappingConfig config = project.snappingConfig();
        config.setMode(mode);
        config.setEnabled(true);
        project.setSnappingConfig(config);
    }

    bool Snaps(const QgsMapLayer& layer) { return Get(layer, "SnapRequired").IsIdenticalTo(true); }
};

} // namespace

TEST_F(LayerSnapOfQgis, IsReadAsItWasWritten)
{
    QgsVectorLayer& layer = Add("Polygon");
    WriteSnap(project, {{&layer, true}});
    EXPECT_TRUE(Snaps(layer));
    EXPECT_TRUE(project.snappingConfig().enabled());
    WriteSnap(project, {{&layer, false}});
    EXPECT_FALSE(Snaps(layer));
}

TEST_F(LayerSnapOfQgis, IsOffInAProjectThatDoesNotSnap)
{
    EXPECT_TRUE(Get(Add("Polygon"), "SnapRequired").IsIdenticalTo(false));
}

TEST_F(LayerSnapOfQgis, OtherLayersStayAsTheyWereWhenTheProjectTurnsAdvanced)
{
    QgsVectorLayer& parcels = Add("Polygon");
    QgsVectorLayer& roads = Add("LineString", "Roads");
    UseMode(QgsSnappingConfig::AllLayers);
    EXPECT_TRUE(Snaps(parcels));
    WriteSnap(project, {{&parcels, false}});
    EXPECT_EQ(project.snappingConfig().mode(), QgsSnappingConfig::AdvancedConfiguration);
    EXPECT_FALSE(Snaps(parcels));
    EXPECT_TRUE(Snaps(roads));
}

TEST_F(LayerSnapOfQgis, TheFirstLayerThatSnapsIsTheOnlyOne)
{
    QgsVectorLayer& parcels = Add("Polygon");
    QgsVectorLayer& roads = Add("LineString", "Roads");
    WriteSnap(project, {{&parcels, true}});
    EXPECT_TRUE(Snaps(parcels));
    EXPECT_FALSE(Snaps(roads));
}

TEST_F(LayerSnapOfQgis, TheProjectStaysAsItIsWhenNothingChanges)
{
    QgsVectorLayer& layer = Add("Polygon");
    UseMode(QgsSnappingConfig::AllLayers);
    int changes = 0;
    const QObject listener; // a project that ends changes, too
    QObject::connect(&project, &QgsProject::snappingConfigChanged, &listener, [&changes] { ++changes; });
    WriteSnap(project, {{&layer, true}});
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(project.snappingConfig().mode(), QgsSnappingConfig::AllLayers);
}

TEST_F(LayerSnapOfQgis, TheProjectIsNotifiedOfManyLayersOnce)
{
    QHash<QgsMapLayer*, bool> layers;
    for (int i = 0; i < 5; ++i)
        layers.insert(&Add("Polygon"), true);
    int changes = 0;
    const QObject listener; // a project that ends changes, too
    QObject::connect(&project, &QgsProject::snappingConfigChanged, &listener, [&changes] { ++changes; });
    WriteSnap(project, layers);
    EXPECT_EQ(changes, 1);
    for (const QgsMapLayer* layer : layers.keys())
        EXPECT_TRUE(Snaps(*layer));
}

TEST_F(LayerSnapOfQgis, ALayerKeepsItsToleranceInQgis)
{
    QgsVectorLayer& layer = Add("Polygon");
    WriteSnap(project, {{&layer, true}});
    QgsSnappingConfig config = project.snappingConfig();
    auto settings = config.individualLayerSettings(&layer);
    settings.setTolerance(42);
    config.setIndividualLayerSettings(&layer, settings);
    project.setSnappingConfig(config);
    WriteSnap(project, {{&layer, false}});
    EXPECT_EQ(project.snappingConfig().individualLayerSettings(&layer).tolerance(), 42);
}

TEST_F(LayerSnapOfQgis, ARasterIsLeftOut)
{
    QgsRasterLayer& raster = AddRaster();
    WriteSnap(project, {{&raster, true}});
    EXPECT_TRUE(ReadSnap(raster, project).IsNull());
    EXPECT_NE(project.snappingConfig().mode(), QgsSnappingConfig::AdvancedConfiguration);
}

} // namespace Orvane
