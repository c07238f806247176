// SPDX-License-Identifier: MIT
#include "shell/map/MapLayers.h"

#include "hostkit/StandardShellServices.h"
#include "mapkit/Drawings.h"
#include "mapkit/document/MapDocument.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapLayersTest : public testing::Test
{
protected:
    void SetUp() override
    {
        for (const char* name : {"Roads", "Rivers"}) {
            NewLayer layer;
            layer.name = name;
            layer.path = "data.gpkg";
            m_document->AddLayer(layer);
        }
        m_layers.ReadAll();
    }

    void Change(const QString& assignment)
    {
        m_document->Database().Execute("UPDATE Layers SET " + assignment);
    }
    const MapLayer& First() const { return m_layers.All().at(0); }

    std::unique_ptr<MapDocument> m_document = MapDocument::Untitled();
    StandardShellServices m_services;
    MapLayers m_layers{*m_document, m_services, 4};
};

} // namespace

TEST_F(MapLayersTest, ReadsWhatARowSaysOfDrawing)
{
    Change("Color = 255, FillStyle = 3, LineThickness = -2, Priority = 9, OverrideMode = 1, Visible = 0,"
           " MinVisScale = 500, MaxVisScale = 2500");
    m_layers.ReadAll();
    EXPECT_EQ(First().values.color, 255);
    EXPECT_EQ(First().values.fillStyle, 3);
    EXPECT_EQ(First().values.lineThickness, -2);
    EXPECT_EQ(First().look.outline.widthF(), 2);
    EXPECT_EQ(First().priority, 9);
    EXPECT_EQ(First().mode, DrawMode::Backdrop);
    EXPECT_FALSE(First().visible);
    EXPECT_EQ(First().minDenominator, 500);
    EXPECT_EQ(First().maxDenominator, 2500);
}

TEST_F(MapLayersTest, AValueThatIsNoNumberCountsAsUnknownAndHidesNoLayer)
{
    Change(
        "Color = 'red', LineThickness = 99999999999, OverrideMode = 'x', Visible = 'no', MinVisScale = 'y'");
    m_document->Database().Execute("INSERT INTO Layers (LayerID) VALUES (2147483648)");
    m_layers.ReadAll();
    ASSERT_EQ(m_layers.All().size(), 2u);
    EXPECT_EQ(First().name, "Roads");
    EXPECT_EQ(First().values.color, 0);
    EXPECT_EQ(First().values.lineThickness, 0);
    EXPECT_EQ(First().mode, DrawMode::Normal);
    EXPECT_TRUE(First().visible);
    EXPECT_EQ(First().minDenominator, 0);
}

TEST_F(MapLayersTest, ReadsWhatARowSaysOfTheToolsOnTheMap)
{
    EXPECT_EQ(First().name, "Roads");
    EXPECT_EQ(First().flags, LayerFlags());
    Change("Selectable = 0, locked = 1, Hitable = 0, SnapRequired = -1, Enquirable = 0");
    m_layers.ReadAll();
    EXPECT_FALSE(First().flags.selectable);
    EXPECT_TRUE(First().flags.locked);
    EXPECT_FALSE(First().flags.hitable);
    EXPECT_TRUE(First().flags.snapRequired);
    EXPECT_FALSE(First().flags.enquirable);
}

TEST_F(MapLayersTest, NullColumnsAreDrawnPlainly)
{
    Change("Color = NULL, FillStyle = NULL, Priority = NULL, OverrideMode = NULL, Visible = NULL, "
           "MaxVisScale = NULL");
    m_layers.ReadAll();
    EXPECT_TRUE(First().visible);
    EXPECT_EQ(First().mode, DrawMode::Normal);
    EXPECT_EQ(First().maxDenominator, std::numeric_limits<double>::infinity());
}

TEST_F(MapLayersTest, TheLimitBeyondEveryScaleIsNoneInEitherColumn)
{
    Change("MinVisScale = 2000000000, MaxVisScale = 2000000000");
    m_layers.ReadAll();
    EXPECT_TRUE(First().IsInScale(1));
    EXPECT_TRUE(First().IsInScale(1e9));
    Change("MinVisScale = 0, MaxVisScale = 0");
    m_layers.ReadAll();
    EXPECT_TRUE(First().IsInScale(1));
    EXPECT_TRUE(First().IsInScale(1e9));
}

TEST_F(MapLayersTest, AnUnknownModeCountsAsNormal)
{
    Change("OverrideMode = 17");
    m_layers.ReadAll();
    EXPECT_EQ(First().mode, DrawMode::Normal);
}

TEST_F(MapLayersTest, ManyLayersAreReadAgainByAsManyStatementsAsOne)
{
    m_document->AddLayers(std::vector<NewLayer>(30));
    const auto statementsOf = [this](const QSet<qint32>& layerIDs) {
        int statements = 0;
        m_document->Database().SetQueryListener([&](const QString&) { ++statements; });
        m_layers.Read(layerIDs);
        m_document->Database().SetQueryListener({});
        return statements;
    };
    QSet<qint32> many;
    for (qint32 layerID = 1; layerID <= 32; ++layerID)
        many.insert(layerID);
    EXPECT_EQ(statementsOf(many), statementsOf({2}));
    EXPECT_EQ(m_layers.All().size(), 32u);
}

TEST_F(MapLayersTest, OnlyTheLayersAskedForAreReadAgain)
{
    Change("Priority = 3");
    m_layers.Read({2});
    EXPECT_EQ(m_layers.All()[0].priority, 128);
    EXPECT_EQ(m_layers.All()[1].priority, 3);
}

TEST_F(MapLayersTest, ALayerWhoseRowIsGoneLeavesTheList)
{
    m_document->Database().Execute("DELETE FROM Layers WHERE LayerID = 1");
    m_layers.Read({1});
    ASSERT_EQ(m_layers.All().size(), 1u);
    EXPECT_EQ(First().layerID, 2);
}

TEST_F(MapLayersTest, ANewLayerJoinsTheList)
{
    const qint32 layerID = m_document->AddLayer(NewLayer());
    m_layers.Read({layerID});
    EXPECT_EQ(m_layers.All().back().layerID, layerID);
}

TEST_F(MapLayersTest, ManyChangedLayersAreAllReadAgain)
{
    QSet<qint32> changed = {1, 2};
    while (changed.size() < 500)
        changed.insert(m_document->AddLayer(NewLayer()));
    Change("Priority = 3");
    m_layers.Read(changed);
    EXPECT_EQ(m_layers.All().size(), 500u);
    for (const MapLayer& layer : m_layers.All())
        EXPECT_EQ(layer.priority, 3) << layer.layerID;
}

TEST_F(MapLayersTest, FeaturesStayThroughEveryReading)
{
    SourceContents contents;
    contents.features[1] = Area(0, 0, 1, 1);
    m_layers.TakeFeatures(contents);
    EXPECT_EQ(First().features, contents.features[1]);
    m_layers.Read({1});
    EXPECT_EQ(First().features, contents.features[1]);
    m_layers.ReadAll();
    EXPECT_EQ(First().features, contents.features[1]);
}

TEST_F(MapLayersTest, FeaturesOfALayerThatIsGoneAreNotKept)
{
    SourceContents contents;
    contents.features[1] = Area(0, 0, 1, 1);
    const std::weak_ptr<const FeatureSet> features = contents.features[1];
    m_layers.TakeFeatures(std::exchange(contents, {}));
    m_document->Database().Execute("DELETE FROM Layers WHERE LayerID = 1");
    m_layers.DropFeaturesOfOtherData();
    m_layers.ReadAll();
    EXPECT_TRUE(features.expired());
}

TEST_F(MapLayersTest, OnlyLayersWithoutFeaturesAreMissing)
{
    EXPECT_EQ(m_layers.MissingSources().size(), 2u);
    SourceContents contents;
    contents.features[1] = Area(0, 0, 1, 1);
    m_layers.TakeFeatures(contents);
    ASSERT_EQ(m_layers.MissingSources().size(), 1u);
    EXPECT_EQ(m_layers.MissingSources()[0].layerID, 2);
}

} // namespace Orvane
