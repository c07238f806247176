// SPDX-License-Identifier: MIT
#include "shell/map/ImportPlan.h"

#include "mapkit/DataFolder.h"
#include "mapkit/UnmeasurableFile.h"
#include "mapkit/UnnamedFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "shell/map/MapSession.h"

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

using Reason = SystemNote::Reason;

const Box Utm{500000, 5500000, 510000, 5510000};

class ImportPlanTest : public testing::Test
{
protected:
    QString Unnamed(const QString& name, const Box& box) { return WriteUnnamed(m_folder.Path(name), box); }

    ImportPlan Plan(const QStringList& paths, const ImportTarget& target = {})
    {
        return PlanImport(WithTablesAsLayers(LookInto(paths, m_progress), m_progress), target, m_progress);
    }

    static QString System(const ImportPlan& plan, size_t source)
    {
        return SystemOf(plan.data.sources.at(source).layers.front());
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(ImportPlanTest, DegreesAreAssumedAndTold)
{
    const ImportPlan plan = Plan({Unnamed("a.shp", {5, 45, 15, 55}), Unnamed("b.shp", {6, 46, 7, 47})});
    EXPECT_EQ(System(plan, 0), "EPSG:4326");
    ASSERT_EQ(plan.notes.size(), 1u);
    EXPECT_EQ(plan.notes[0].reason, Reason::Degrees);
    EXPECT_EQ(plan.notes[0].names, QStringList({"a.shp", "b.shp"}));
    const QString text = plan.NoteTexts().value(0);
    EXPECT_TRUE(text.contains("a.shp, b.shp")) << qPrintable(text);
    EXPECT_TRUE(text.contains("WGS 84 (EPSG:4326)")) << qPrintable(text);
    EXPECT_TRUE(plan.NoteTexts(1).value(0).contains("a.shp and 1 more"));
}

TEST_F(ImportPlanTest, DataThatNameTheirSystemKeepIt)
{
    const ImportPlan plan = Plan({m_folder.WriteSquare("a.geojson")}, {{}, {}, "EPSG:3857"});
    EXPECT_EQ(System(plan, 0), "EPSG:4326");
    EXPECT_TRUE(plan.notes.empty());
}

TEST_F(ImportPlanTest, TheMapsSystemIsAssumedWhereItFits)
{
    const ImportPlan plan = Plan({Unnamed("a.shp", Utm)}, {"EPSG:32632", {}, {}});
    EXPECT_EQ(System(plan, 0), "EPSG:32632");
    EXPECT_EQ(plan.notes.at(0).reason, Reason::Map);
    EXPECT_TRUE(plan.NoteTexts().value(0).contains("EPSG:32632"));
}

TEST_F(ImportPlanTest, WhatTheMapShowsAlreadyCounts)
{
    const Box mercator{0, 0, 1100000, 1100000};
    const LayerSource shown{1, m_folder.WriteSquare("shown.geojson"), "shown", {}};
    EXPECT_EQ(System(Plan({Unnamed("a.shp", mercator)}, {"EPSG:3857", {shown}, {}}), 0), "EPSG:3857");
    EXPECT_EQ(System(Plan({m_folder.Path("a.shp")}, {"EPSG:3857", {}, {}}), 0), "");
}

TEST_F(ImportPlanTest, OfAnOpenMapNothingIsReadAgain)
{
    Progress progress;
    auto document = MapDocument::Untitled();
    document->SetSystem("EPSG:3857");
    AddToMap(*document, LookInto({m_folder.WriteSquare("shown.geojson")}, progress));
    MapCanvas canvas;
    MapSession session(std::move(document), canvas, canvas, nullptr);
    ASSERT_EQ(session.ReadAndShow(), "");
    ASSERT_TRUE(QFile::remove(m_folder.Path("shown.geojson")));
    const Box mercator{0, 0, 1100000, 1100000};
    EXPECT_EQ(System(Plan({Unnamed("a.shp", mercator)}, TargetOf(session)), 0), "EPSG:3857");
}

TEST_F(ImportPlanTest, DataThatCannotBeMeasuredAreNoted)
{
    const ImportPlan plan = Plan({WriteUnmeasurable(m_folder.Path("view.gpkg"))});
    ASSERT_EQ(plan.notes.size(), 1u);
    EXPECT_EQ(plan.notes[0].reason, Reason::Unmeasured);
    EXPECT_FALSE(plan.IsPlaced());
    EXPECT_TRUE(plan.Unknown().isEmpty()) << "there is nothing to choose a system for";
    EXPECT_TRUE(plan.NoteTexts().value(0).contains("view.gpkg")) << qPrintable(plan.NoteTexts().value(0));
}

TEST_F(ImportPlanTest, WhatFitsNothingIsUnknownUntilItIsChosen)
{
    ImportPlan plan = Plan({Unnamed("a.shp", Utm)});
    EXPECT_EQ(System(plan, 0), "");
    EXPECT_EQ(plan.Unknown(), QStringList("a.shp"));
    EXPECT_TRUE(plan.NoteTexts().value(0).contains("a.shp"));
    plan.Choose("EPSG:25832");
    EXPECT_EQ(System(plan, 0), "EPSG:25832");
    EXPECT_TRUE(plan.Unknown().isEmpty());
    EXPECT_TRUE(plan.NoteTexts().value(0).contains("EPSG:25832"));
}

TEST_F(ImportPlanTest, ASystemForUnnamedDataHoldsForDegreesToo)
{
    const ImportPlan plan = Plan({Unnamed("a.shp", {5, 45, 15, 55})}, {{}, {}, "EPSG:4258"});
    EXPECT_EQ(System(plan, 0), "EPSG:4258");
}

TEST_F(ImportPlanTest, TheChosenSystemIsStoredWithTheLayer)
{
    const auto document = MapDocument::Untitled();
    ImportPlan plan = Plan({Unnamed("a.shp", Utm)});
    plan.Choose("EPSG:25832");
    AddToMap(*document, plan.data);
    EXPECT_EQ(document->Sources().at(0).system, "EPSG:25832");
    EXPECT_EQ(document->System(), "EPSG:25832");
}

TEST_F(ImportPlanTest, TheOrderOfTheFilesDecidesNothing)
{
    const QString town = m_folder.WriteSquare("a.geojson", 5, 45);
    const QString world = Unnamed("world.shp", {-180, -90, 180, 84});
    for (const QStringList& paths : {QStringList{town, world}, QStringList{world, town}}) {
        const auto document = MapDocument::Untitled();
        AddToMap(*document, Plan(paths).data);
        EXPECT_EQ(document->System(), "EPSG:8857");
    }
}

TEST_F(ImportPlanTest, ACancelledPlanEnds)
{
    m_progress.Cancel();
    EXPECT_THROW(Plan({m_folder.WriteSquare("a.geojson")}), Cancelled);
}

} // namespace Orvane
