// SPDX-License-Identifier: MIT
#include "shell/tools/IdentifyTool.h"

#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/data/SourceReader.h"
#include "shell/tools/RasterTexts.h"
#include "shell/tools/ToolCanvas.h"

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

class IdentifyToolTest : public ToolCanvasTest
{
protected:
    IdentifyToolTest()
    {
        m_roads = NamedLayer(1, "Roads", FeatureBuilder().Square(10, 10, 20).Square(60, 10, 20).Done(), 10);
        m_lakes = NamedLayer(2, "Lakes", FeatureBuilder().Square(5, 5, 40).Done(), 20);
        Show({m_roads, m_lakes});
        QObject::connect(
            &m_tool, &IdentifyTool::Identified, &m_canvas,
            [this](const std::vector<IdentifiedFeature>& features) { m_found = features; });
        Take(m_tool);
    }

    std::vector<FeatureKey> Keys() const
    {
        std::vector<FeatureKey> keys;
        for (const IdentifiedFeature& feature : m_found)
            keys.push_back(feature.key);
        return keys;
    }

    MapLayer m_roads;
    MapLayer m_lakes;
    int m_reads = 0;
    std::vector<IdentifiedFeature> m_found;
    MapLayer Photo(qint32 layerID, const QString& name, int priority = 255)
    {
        const QString path = m_folder.Path(name + ".tif");
        WriteRaster(path, {.transform = {0, 1, 0, 100, 0, -1}}, [](int column, int row, int) {
            return column + row;
        });
        MapLayer layer = NamedLayer(layerID, name, nullptr, priority);
        LayerSource source;
        source.path = path;
        layer.raster = std::make_shared<const MapRaster>(source, QString());
        return layer;
    }

    DataFolder m_folder;
    IdentifyTool m_tool{
        m_canvas, [this](const std::vector<IdentifyQuestion>& questions) {
            ++m_reads;
            std::vector<std::vector<FeatureAttribute>> attributes;
            for (const auto& [key, raster, place] : questions) {
                attributes.push_back(
                    raster ? ValuesAsAttributes(raster->ValuesAt(place))
                           : std::vector<FeatureAttribute>{{"id", QString::number(key.featureID)}});
            }
            return attributes;
        }};
};

} // namespace

TEST_F(IdentifyToolTest, AClickFindsWhatLiesThereTopmostFirst)
{
    Click(20, 20);
    EXPECT_THAT(Keys(), ElementsAre(FeatureKey{1, 1}, FeatureKey{2, 1}));
    EXPECT_EQ(m_found[0].layerName, "Roads");
    EXPECT_EQ(m_found[0].attributes.at(0).value, "1");
    EXPECT_EQ(m_status, "Features found: 2");
    EXPECT_EQ(m_reads, 1);
}

TEST_F(IdentifyToolTest, ALayerThatIsNotEnquirableIsNotAsked)
{
    m_roads.flags.enquirable = false;
    Show({m_roads, m_lakes});
    Click(20, 20);
    EXPECT_THAT(Keys(), ElementsAre(FeatureKey{2, 1}));
    Click(70, 20);
    EXPECT_THAT(m_found, IsEmpty());
    EXPECT_EQ(m_status, "Roads is here but not enquirable.");
    EXPECT_EQ(m_reads, 1);
}

TEST_F(IdentifyToolTest, WhatCannotBeHitCannotBeEnquired)
{
    m_lakes.flags.hitable = false;
    Show({m_lakes});
    Click(20, 20);
    EXPECT_THAT(m_found, IsEmpty());
    EXPECT_EQ(m_status, "Lakes is here but not hitable.");
}

TEST_F(IdentifyToolTest, ACollectionIsOneFeature)
{
    FeatureSet set;
    for (const double west : {10.0, 12.0}) {
        set.BeginFeature(FeatureKind::Area, 7);
        set.AddPart(std::vector<QPointF>{{west, 10}, {west + 20, 10}, {west + 20, 30}, {west, 30}});
    }
    Show({NamedLayer(1, "Collection", std::make_shared<const FeatureSet>(std::move(set)))});
    Click(20, 20);
    EXPECT_THAT(Keys(), ElementsAre(FeatureKey{1, 7}));
}

TEST_F(IdentifyToolTest, OfVeryManyFeaturesOnlyTheTopmostAreAsked)
{
    FeatureBuilder builder;
    for (int i = 0; i < 200; ++i)
        builder.Square(10, 10, 50);
    Show({NamedLayer(1, "Pile", builder.Done())});
    Click(20, 20);
    ASSERT_THAT(m_found, SizeIs(50));
    EXPECT_EQ(m_found[0].key.featureID, 200);
}

TEST_F(IdentifyToolTest, RastersFollowTheFeaturesWithTheirValuesThere)
{
    Show({Photo(7, "Low"), m_lakes, Photo(8, "High", 1)});
    Click(20, 20);
    EXPECT_THAT(
        Keys(), ElementsAre(FeatureKey{2, 1}, FeatureKey{8, NoFeatureID}, FeatureKey{7, NoFeatureID}));
    EXPECT_EQ(m_found[1].layerName, "High");
    ASSERT_THAT(m_found[1].attributes, SizeIs(1));
    EXPECT_EQ(m_found[1].attributes[0].name, "Band 1");
    EXPECT_EQ(m_found[1].attributes[0].value, "100"); // column 20, row 80
    EXPECT_EQ(m_status, "Features found: 1, rasters: 2");
    Click(90, 90);
    EXPECT_EQ(m_status, "Rasters found: 2");
}

TEST_F(IdentifyToolTest, ARasterThatIsNotEnquirableIsNotAskedAndSaysSo)
{
    MapLayer photo = Photo(7, "Photo");
    photo.flags.enquirable = false;
    Show({photo});
    Click(20, 20);
    EXPECT_THAT(m_found, IsEmpty());
    EXPECT_EQ(m_status, "Photo is here but not enquirable.");
    EXPECT_EQ(m_reads, 0);
}

TEST_F(IdentifyToolTest, ADragMovesTheMap)
{
    const QPointF centre = m_canvas.View().Centre();
    Drag({20, 20}, {40, 20});
    EXPECT_THAT(m_found, IsEmpty());
    EXPECT_NE(m_canvas.View().Centre(), centre);
}

} // namespace Orvane
