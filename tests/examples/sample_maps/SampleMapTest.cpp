// SPDX-License-Identifier: MIT
#include "examples/sample_maps/SampleMap.h"

#include "examples/sample_maps/GeoPackageWriter.h"
#include "examples/sample_maps/TownPlan.h"
#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/document/MapDocument.h"
#include "store/sqlite/SqliteLayerDatabase.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QFileInfo>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class SampleMapTest : public testing::Test
{
protected:
    static SourceContents Read(MapDocument& document)
    {
        Progress progress;
        return ReadSources(document.Sources(), document.System(), progress);
    }

    static int Count(MapDocument& document, const QString& query)
    {
        return ToInt32(document.Database().OpenRecordset("SELECT count(*) AS N FROM " + query)->Field("N"));
    }

    // A small world_map.gpkg with all layers that the world map needs.
    void WriteWorldData() const
    {
        GeoPackageWriter writer(m_folder.Path("world_map.gpkg"), "EPSG:4326");
        FeatureSet square;
        square.BeginFeature(FeatureKind::Area);
        square.AddPart(std::vector<QPointF>{{0, 0}, {10, 0}, {10, 10}, {0, 0}});
        for (const char* layer : {"countries", "states_provinces", "disputed_borders"})
            writer.AddLayer(layer, square);
    }

    DataFolder m_folder;
};

} // namespace

TEST_F(SampleMapTest, TheTownHasAboutThirtyLayersInGroups)
{
    MakeTownMap(m_folder.Path("town.orvane"));
    const auto document = MapDocument::Open(m_folder.Path("town.orvane"));
    EXPECT_GE(Count(*document, "Layers"), 30);
    EXPECT_GE(Count(*document, "LayerGroups"), 6);
    EXPECT_EQ(Count(*document, "Layers WHERE LayerID NOT IN (SELECT LayerID FROM LayerGroupMembers)"), 0);
}

TEST_F(SampleMapTest, EveryLayerOfTheTownCanBeReadAndHoldsSomething)
{
    MakeTownMap(m_folder.Path("town.orvane"));
    const auto document = MapDocument::Open(m_folder.Path("town.orvane"));
    const SourceContents contents = Read(*document);
    EXPECT_EQ(contents.FailureText(), "");
    for (const LayerSource& source : document->Sources())
        EXPECT_FALSE(contents.features.at(source.layerID)->Features().empty()) << qPrintable(source.ogrLayer);
}

TEST_F(SampleMapTest, TheTownIsTheSameEachTime)
{
    const TownPlan first = PlanTown();
    const TownPlan second = PlanTown();
    ASSERT_EQ(first.layers.size(), second.layers.size());
    for (const auto& [name, features] : first.layers) {
        EXPECT_EQ(features.VertexCount(), second.layers.at(name).VertexCount()) << name;
        EXPECT_EQ(features.Bounds(), second.layers.at(name).Bounds()) << name;
    }
}

TEST_F(SampleMapTest, HousesStandOnTheirParcels)
{
    const TownPlan town = PlanTown();
    const FeatureSet& parcels = town.layers.at("parcels");
    for (const FeatureSet::Feature& house : town.layers.at("houses").Features()) {
        const bool onOne
            = std::any_of(parcels.Features().begin(), parcels.Features().end(), [&](const auto& parcel) {
                  return parcel.bounds.minX <= house.bounds.minX && parcel.bounds.maxX >= house.bounds.maxX
                      && parcel.bounds.minY <= house.bounds.minY && parcel.bounds.maxY >= house.bounds.maxY;
              });
        EXPECT_TRUE(onOne);
    }
}

TEST_F(SampleMapTest, WithWorldDataItIsAMapOfTheWorld)
{
    WriteWorldData();
    MakeSampleMap(m_folder.Path("sample.orvane"), m_folder.Path(""));
    const auto document = MapDocument::Open(m_folder.Path("sample.orvane"));
    EXPECT_EQ(document->System(), "EPSG:8857");
    EXPECT_EQ(Count(*document, "LayerGroups WHERE Name = 'Continents'"), 1);
}

TEST_F(SampleMapTest, LayersWhoseDataAreNotThereAreLeftOutOfTheWorld)
{
    WriteWorldData();
    MakeSampleMap(m_folder.Path("sample.orvane"), m_folder.Path(""));
    const auto document = MapDocument::Open(m_folder.Path("sample.orvane"));
    EXPECT_EQ(Count(*document, "LayerGroups WHERE Name = 'Population'"), 0);
    for (const LayerSource& source : document->Sources())
        EXPECT_TRUE(QFileInfo::exists(source.path)) << qPrintable(source.path);
}

TEST_F(SampleMapTest, WithoutWorldDataItIsATown)
{
    MakeSampleMap(m_folder.Path("new folder/sample.orvane"), m_folder.Path("nowhere"));
    const auto document = MapDocument::Open(m_folder.Path("new folder/sample.orvane"));
    EXPECT_EQ(Count(*document, "Layers WHERE Name = 'Parcels'"), 1);
}

TEST_F(SampleMapTest, MakingItAgainReplacesIt)
{
    MakeSampleMap(m_folder.Path("sample.orvane"), {});
    MakeSampleMap(m_folder.Path("sample.orvane"), {});
    EXPECT_EQ(Count(*MapDocument::Open(m_folder.Path("sample.orvane")), "Layers WHERE Name = 'Parcels'"), 1);
}

TEST_F(SampleMapTest, AFolderThatCannotBeWrittenIsAnError)
{
    m_folder.Write("file", "no folder");
    EXPECT_THROW(MakeSampleMap(m_folder.Path("file/sample.orvane"), {}), RunTimeError);
}

} // namespace Orvane
