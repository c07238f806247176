// SPDX-License-Identifier: MIT
#include "mapkit/data/SourceEditor.h"

#include "examples/sample_maps/GeoPackageWriter.h"
#include "mapkit/DataFolder.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceReader.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class SourceEditorTest : public testing::Test
{
protected:
    LayerSource GeoPackage(const QString& system = "EPSG:32632")
    {
        const QString path = m_folder.Path("data.gpkg");
        FeatureSet set;
        for (const double west : {500000.0, 500100.0}) {
            set.BeginFeature(FeatureKind::Line);
            set.AddPart(std::vector<QPointF>{{west, 5300000}, {west + 50, 5300040}});
        }
        GeoPackageWriter(path, system).AddLayer("lines", set);
        return {1, path, "lines", {}};
    }

    QPointF FirstPoint(const LayerSource& source, size_t feature, const QString& system)
    {
        Progress progress;
        const FeatureSet set = DataSource(source.path).Read(source.ogrLayer, {}, system, progress);
        return set.Part(set.Features().at(feature).firstPart)[0];
    }

    static void Move(const LayerSource& source, qint64 featureID, QPointF offset, const QString& system)
    {
        SourceEditor editor(source);
        editor.SetGeometry(featureID, editor.Moved(editor.Geometry(featureID), offset, system));
        editor.Save();
    }

    static QString ErrorOf(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), SourceUnchangeable);
            return error.Description();
        }
        return {};
    }

    DataFolder m_folder;
};

} // namespace

TEST_F(SourceEditorTest, MovesOneFeatureAndLeavesTheOthers)
{
    const LayerSource source = GeoPackage();
    Move(source, 2, {10, -5}, "EPSG:32632");
    EXPECT_EQ(FirstPoint(source, 1, "EPSG:32632"), QPointF(500110, 5299995));
    EXPECT_EQ(FirstPoint(source, 0, "EPSG:32632"), QPointF(500000, 5300000));
}

TEST_F(SourceEditorTest, MovesByUnitsOfTheMapWhateverTheSourceCountsIn)
{
    const LayerSource source = GeoPackage();
    const QPointF before = FirstPoint(source, 0, "EPSG:3857");
    Move(source, 1, {100, 200}, "EPSG:3857");
    const QPointF way = FirstPoint(source, 0, "EPSG:3857") - before;
    EXPECT_NEAR(way.x(), 100, 1e-4);
    EXPECT_NEAR(way.y(), 200, 1e-4);
}

TEST_F(SourceEditorTest, TheGeometryPutBackIsTheSameToTheLastBit)
{
    const LayerSource source = GeoPackage();
    const QByteArray before = SourceEditor(source).Geometry(1);
    Move(source, 1, {0.1, 0.7}, "EPSG:3857");
    EXPECT_NE(SourceEditor(source).Geometry(1), before);
    SourceEditor editor(source);
    editor.SetGeometry(1, before);
    editor.Save();
    EXPECT_EQ(SourceEditor(source).Geometry(1), before);
}

TEST_F(SourceEditorTest, WhatIsNotSavedIsShownAndNotWritten)
{
    const LayerSource source = GeoPackage();
    const SourceEditor editor(source);
    const FeatureSet shown
        = editor.Shown(editor.Moved(editor.Geometry(1), {7, 0}, "EPSG:32632"), 1, "EPSG:32632");
    ASSERT_EQ(shown.Features().size(), 1u);
    EXPECT_EQ(shown.FeatureId(0), 1);
    EXPECT_EQ(shown.Part(0)[0], QPointF(500007, 5300000));
    EXPECT_EQ(FirstPoint(source, 0, "EPSG:32632"), QPointF(500000, 5300000));
}

TEST_F(SourceEditorTest, AttributesStayWhenAFeatureMoves)
{
    const QString path = m_folder.WriteSquare("square.geojson");
    const LayerSource source{1, path, "square", {}};
    Move(source, 0, {1, 0}, "EPSG:4326");
    const auto attributes = DataSource(path).Attributes("square", 0);
    ASSERT_EQ(attributes.size(), 1u);
    EXPECT_EQ(attributes[0].value, "a");
    EXPECT_EQ(FirstPoint(source, 0, "EPSG:4326").x(), 1);
}

TEST_F(SourceEditorTest, AFormatThatCannotBeChangedSaysSoAndStaysAsItIs)
{
    const QByteArray track = R"(<?xml version="1.0"?><gpx version="1.1" creator="x"
        xmlns="http://www.topografix.com/GPX/1/1"><wpt lat="48" lon="11"><name>Here</name></wpt></gpx>)";
    const QString path = m_folder.Write("track.gpx", track);
    const QString error = ErrorOf([&] { SourceEditor({1, path, "waypoints", {}}); });
    EXPECT_TRUE(error.startsWith("\"track.gpx\" cannot be changed: ")) << qPrintable(error);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), track);
}

TEST_F(SourceEditorTest, AMissingFileLayerOrFeatureIsNamed)
{
    EXPECT_TRUE(ErrorOf([&] {
                    SourceEditor({1, m_folder.Path("gone.gpkg"), "x", {}});
                }).contains("gone.gpkg"));
    const LayerSource source = GeoPackage();
    EXPECT_TRUE(ErrorOf([&] { SourceEditor({1, source.path, "other", {}}); }).contains("other"));
    EXPECT_TRUE(ErrorOf([&] { (void)SourceEditor(source).Geometry(99); }).contains("no longer there"));
    EXPECT_TRUE(ErrorOf([&] { SourceEditor(source).SetGeometry(99, {}); }).contains("no longer there"));
}

TEST_F(SourceEditorTest, AFeatureCannotLeaveTheEarth)
{
    const LayerSource source = GeoPackage();
    const SourceEditor editor(source);
    const QByteArray before = editor.Geometry(1);
    EXPECT_TRUE(ErrorOf([&] {
                    (void)editor.Moved(before, {1e12, 1e12}, "EPSG:8857");
                }).contains("outside the coordinate system"));
}

TEST_F(SourceEditorTest, MovesInTheSystemThatWasChosenForTheSource)
{
    LayerSource source = GeoPackage();
    source.system = "EPSG:3857";
    SourceEditor editor(source);
    const QByteArray before = editor.Geometry(1);
    const FeatureSet stored = editor.Shown(before, 1, "EPSG:3857");
    const QPointF shown = stored.Part(0)[0];
    EXPECT_EQ(shown, QPointF(500000, 5300000));
    const QByteArray after = editor.Moved(before, {100, 200}, "EPSG:3857");
    const FeatureSet moved = editor.Shown(after, 1, "EPSG:3857");
    EXPECT_EQ(moved.Part(0)[0], shown + QPointF(100, 200));
}

} // namespace Orvane
