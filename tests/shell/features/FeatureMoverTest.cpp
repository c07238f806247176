// SPDX-License-Identifier: MIT
#include "shell/features/FeatureMover.h"

#include "examples/sample_maps/GeoPackageWriter.h"
#include "hostkit/undo/UndoHistory.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/SourceEditor.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/MapSession.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;
using testing::ElementsAre;

namespace {

constexpr auto System = "EPSG:32632";

class FeatureMoverTest : public testing::Test
{
protected:
    FeatureMoverTest()
    {
        const QString path = m_folder.Path("town.gpkg");
        FeatureSet set;
        for (const double west : {0.0, 100.0}) {
            set.BeginFeature(FeatureKind::Point);
            set.AddPart(std::vector<QPointF>{{west, 5}});
        }
        GeoPackageWriter(path, System).AddLayer("trees", set);
        auto document = MapDocument::Untitled();
        document->SetSystem(System);
        for (const char* name : {"Trees", "The same trees"}) {
            NewLayer layer;
            layer.name = name;
            layer.path = path;
            layer.ogrLayer = "trees";
            document->AddLayer(layer);
        }
        m_session = std::make_unique<MapSession>(std::move(document), m_canvas, m_canvas, nullptr);
        EXPECT_EQ(m_session->ReadAndShow(), "");
    }

    std::vector<double> Wests(size_t layer) const
    {
        const FeatureSet& features = *m_canvas.Layers().at(layer).features;
        std::vector<double> wests;
        for (const auto& feature : features.Features())
            wests.push_back(feature.bounds.minX);
        return wests;
    }
    std::vector<double> StoredWests() const
    {
        const LayerSource source = m_session->Document().Sources().at(0);
        const SourceEditor editor(source);
        std::vector<double> wests;
        for (const qint64 featureID : {1, 2})
            wests.push_back(editor.Shown(editor.Geometry(featureID), featureID, System).Bounds().minX);
        return wests;
    }
    qint32 AddMixed(const QString& path, std::vector<FeatureKind> kinds)
    {
        NewLayer layer;
        layer.path = path;
        layer.ogrLayer = "mixed";
        layer.choice.kinds = std::move(kinds);
        const qint32 layerID = m_session->Document().AddLayer(layer);
        EXPECT_EQ(m_session->ReadAndShow(), "");
        return layerID;
    }
    const FeatureSet& Features(qint32 layerID) const
    {
        const std::vector<MapLayer>& layers = m_canvas.Layers();
        return *std::find_if(layers.begin(), layers.end(), [=](const MapLayer& layer) {
                    return layer.layerID == layerID;
                })->features;
    }
    UndoHistory& History() { return m_session->Shell().History(); }
    void Move(qint64 featureID, QPointF offset)
    {
        FeatureMover(*m_session, m_canvas).Move({1, featureID}, offset);
    }

    DataFolder m_folder;
    MapCanvas m_canvas;
    Progress m_progress;
    std::unique_ptr<MapSession> m_session;
};

} // namespace

TEST_F(FeatureMoverTest, MovesTheFeatureInTheSourceAndOnTheMapInEveryLayerThatShowsIt)
{
    Move(2, {30, 0});
    EXPECT_THAT(StoredWests(), ElementsAre(0, 130));
    EXPECT_THAT(Wests(0), ElementsAre(0, 130));
    EXPECT_THAT(Wests(1), ElementsAre(0, 130));
}

TEST_F(FeatureMoverTest, CheckingAFeatureThatCanBeMovedChangesNothing)
{
    FeatureMover(*m_session, m_canvas).Check({1, 2});
    EXPECT_THAT(StoredWests(), ElementsAre(0, 100));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(FeatureMoverTest, AMoveIsOneStepThatCanBeUndoneAndRedone)
{
    Move(2, {30, 0});
    EXPECT_TRUE(History().UndoText().contains("Move Feature in Trees")) << qPrintable(History().UndoText());
    History().Undo();
    EXPECT_THAT(StoredWests(), ElementsAre(0, 100));
    EXPECT_THAT(Wests(0), ElementsAre(0, 100));
    History().Redo();
    EXPECT_THAT(StoredWests(), ElementsAre(0, 130));
    EXPECT_THAT(Wests(1), ElementsAre(0, 130));
}

TEST_F(FeatureMoverTest, SeveralMovesAreUndoneFromTheLastOneBack)
{
    Move(1, {1, 0});
    Move(1, {2, 0});
    Move(2, {4, 0});
    History().Undo();
    History().Undo();
    EXPECT_THAT(StoredWests(), ElementsAre(1, 100));
    History().Undo();
    EXPECT_THAT(StoredWests(), ElementsAre(0, 100));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(FeatureMoverTest, WhatSomebodyElseMovedMeanwhileStaysWhereItIs)
{
    Move(2, {30, 0});
    {
        SourceEditor other(m_session->Document().Sources().at(0));
        other.SetGeometry(2, other.Moved(other.Geometry(2), {1, 0}, System));
        other.Save();
    }
    EXPECT_THROW(History().Undo(), RunTimeError);
    EXPECT_THAT(StoredWests(), ElementsAre(0, 131));
    EXPECT_FALSE(History().CanUndo());
}

TEST_F(FeatureMoverTest, ALayerOfAnotherKindShowsItsPartOfTheMovedFeature)
{
    const QString path = m_folder.WriteGeometries(
        "mixed.geojson",
        {R"({"type":"GeometryCollection","geometries":[{"type":"Point","coordinates":[9,50]},)"
         R"({"type":"LineString","coordinates":[[9,50],[9.1,50]]}]})"});
    const qint32 points = AddMixed(path, {FeatureKind::Point});
    const qint32 lines = AddMixed(path, {FeatureKind::Line});
    const double before = Features(lines).Bounds().minX;
    const qint64 featureID = Features(points).FeatureId(0);
    FeatureMover(*m_session, m_canvas).Move({points, featureID}, {1000, 0});
    for (const qint32 layerID : {points, lines}) {
        ASSERT_EQ(Features(layerID).Features().size(), 1u);
        EXPECT_NEAR(Features(layerID).Bounds().minX, before + 1000, 0.1);
    }
    EXPECT_EQ(Features(lines).Features()[0].kind, FeatureKind::Line);
    History().Undo();
    EXPECT_NEAR(Features(lines).Bounds().minX, before, 0.1);
    EXPECT_FALSE(Features(lines).Has(FeatureKind::Point));
}

TEST_F(FeatureMoverTest, ALayerThatReadsTheDataInAnotherSystemShowsTheFeatureThere)
{
    NewLayer layer;
    layer.path = m_session->Document().Sources().at(0).path;
    layer.ogrLayer = "trees";
    layer.system = "EPSG:32633";
    const qint32 layerID = m_session->Document().AddLayer(layer);
    EXPECT_EQ(m_session->ReadAndShow(), "");
    Move(2, {30, 0});
    const FeatureSet moved = Features(layerID);
    m_session->TakeFeatures(
        ReadSources(m_session->Document().Sources(), m_session->Document().System(), m_progress));
    const FeatureSet& read = Features(layerID);
    EXPECT_GT(std::abs(read.Bounds().maxX - 130), 1000);
    EXPECT_NEAR(moved.Bounds().maxX, read.Bounds().maxX, 1e-6);
    EXPECT_NEAR(moved.Bounds().minX, read.Bounds().minX, 1e-6);
}

TEST_F(FeatureMoverTest, ASourceThatCannotBeChangedLeavesMapAndHistoryAsTheyAre)
{
    NewLayer layer;
    layer.path = m_folder.Write(
        "track.gpx",
        R"(<?xml version="1.0"?><gpx version="1.1" creator="x" xmlns="http://www.topografix.com/GPX/1/1">)"
        R"(<wpt lat="0.1" lon="9"><name>Here</name></wpt></gpx>)");
    layer.ogrLayer = "waypoints";
    const qint32 layerID = m_session->Document().AddLayer(layer);
    EXPECT_EQ(m_session->ReadAndShow(), "");
    const auto before = m_canvas.Layers().back().features;
    EXPECT_THROW(FeatureMover(*m_session, m_canvas).Check({layerID, 0}), RunTimeError);
    EXPECT_THROW(FeatureMover(*m_session, m_canvas).Move({layerID, 0}, {5, 5}), RunTimeError);
    EXPECT_EQ(m_canvas.Layers().back().features, before);
    EXPECT_FALSE(History().CanUndo());
}

} // namespace Orvane
