// SPDX-License-Identifier: MIT
#include "shell/tools/ToolActions.h"

#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "shell/map/MapSession.h"
#include "shell/tools/StatusText.h"

#include <QAction>
#include <QMenu>
#include <QSettings>
#include <QTest>
#include <QToolBar>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr const char* ToolNames[]
    = {"actPan", "actIdentify", "actSelect", "actMeasureLine", "actMeasureArea", "actMoveFeature"};

class ToolActionsTest : public testing::Test
{
protected:
    ToolActionsTest()
    {
        QSettings().clear();
        MakeMap();
        m_window = std::make_unique<MainWindow>();
        m_window->resize(800, 600);
        m_window->show();
        m_window->OpenMap(m_folder.Path("map.orvane"));
    }

    void MakeMap()
    {
        const auto document = MapDocument::Create(m_folder.Path("map.orvane"));
        document->SetSystem("EPSG:4326");
        NewLayer layer;
        layer.name = "Square";
        layer.path = m_folder.WriteSquare("square.geojson");
        layer.ogrLayer = "square";
        document->AddLayer(layer);
    }

    QAction* Action(const char* name) const { return m_window->findChild<QAction*>(QLatin1String(name)); }
    QString Status() const { return m_window->findChild<StatusText*>("lblToolStatus")->Text(); }
    QTreeWidget* Attributes() const { return m_window->findChild<QTreeWidget*>("tvIdentified"); }
    void ClickOn(QPointF map)
    {
        MapCanvas& canvas = m_window->Canvas();
        QTest::mouseClick(&canvas, Qt::LeftButton, {}, canvas.View().ToPixel(map).toPoint());
    }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

TEST_F(ToolActionsTest, EachToolHasAnIconAShortcutATipAndItsPlaceInMenuAndToolBar)
{
    const auto* menu = m_window->findChild<QMenu*>("menuTools");
    const auto* bar = m_window->findChild<QToolBar*>("toolBarMap");
    for (const char* name : ToolNames) {
        const QAction* action = Action(name);
        ASSERT_NE(action, nullptr) << name;
        EXPECT_FALSE(action->icon().isNull()) << name;
        EXPECT_FALSE(action->shortcut().isEmpty()) << name;
        EXPECT_FALSE(action->statusTip().isEmpty()) << name;
        EXPECT_TRUE(action->toolTip().contains(action->shortcut().toString())) << name;
        EXPECT_TRUE(menu->actions().contains(action)) << name;
        EXPECT_TRUE(bar->actions().contains(action)) << name;
    }
}

TEST_F(ToolActionsTest, OneToolIsInHandAtATimeAndPanIsTheFirst)
{
    EXPECT_TRUE(Action("actPan")->isChecked());
    for (const char* name : ToolNames) {
        Action(name)->trigger();
        for (const char* other : ToolNames)
            EXPECT_EQ(Action(other)->isChecked(), name == other) << name << ", " << other;
    }
    Action("actPan")->trigger();
    EXPECT_EQ(m_window->Canvas().Tool(), nullptr);
}

TEST_F(ToolActionsTest, IdentifyListsTheAttributesOfTheSource)
{
    Action("actIdentify")->trigger();
    ClickOn({5, 5});
    ASSERT_EQ(Attributes()->topLevelItemCount(), 1);
    EXPECT_TRUE(Attributes()->isVisible());
    EXPECT_EQ(Attributes()->topLevelItem(0)->text(0), "Square");
    EXPECT_EQ(Attributes()->topLevelItem(0)->child(0)->text(1), "a");
    ClickOn({10.3, 10.3});
    EXPECT_EQ(Status(), "No layer here.");
    EXPECT_EQ(Attributes()->topLevelItemCount(), 0);
}

TEST_F(ToolActionsTest, IdentifyTellsWhatCannotBeReadAmongTheOtherAnswers)
{
    NewLayer gone;
    gone.name = "Gone";
    gone.path = m_folder.WriteSquare("gone.geojson");
    gone.ogrLayer = "gone";
    gone.priority = 1;
    m_window->Document().AddLayer(gone);
    m_window->Session().ReadAndShow();
    ASSERT_TRUE(QFile::remove(gone.path));
    Action("actIdentify")->trigger();
    ClickOn({5, 5});
    ASSERT_EQ(Attributes()->topLevelItemCount(), 2);
    EXPECT_EQ(Attributes()->topLevelItem(0)->text(0), "Gone");
    ASSERT_EQ(Attributes()->topLevelItem(0)->childCount(), 1);
    EXPECT_TRUE(Attributes()->topLevelItem(0)->child(0)->text(1).contains("gone.geojson"));
    EXPECT_EQ(Attributes()->topLevelItem(1)->child(0)->text(1), "a");
}

TEST_F(ToolActionsTest, AClickBesideEverythingOpensNoPanel)
{
    Action("actIdentify")->trigger();
    ClickOn({10.3, 10.3});
    EXPECT_FALSE(Attributes()->isVisible());
}

TEST_F(ToolActionsTest, MeasuringUsesTheEarthOfTheMap)
{
    Action("actMeasureLine")->trigger();
    ClickOn({1, 1});
    ClickOn({2, 1});
    EXPECT_TRUE(Status().endsWith("km")) << qPrintable(Status());
}

TEST_F(ToolActionsTest, AFeatureIsMovedInItsFile)
{
    Action("actMoveFeature")->trigger();
    MapCanvas& canvas = m_window->Canvas();
    const QPoint from = canvas.View().ToPixel({5, 5}).toPoint();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas, from + QPoint(30, 0));
    QTest::mouseMove(&canvas, from + QPoint(60, 0));
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, from + QPoint(60, 0));
    const double moved = 60 * canvas.View().UnitsPerPixel();
    EXPECT_NEAR(canvas.Layers()[0].features->Bounds().minX, moved, 1e-6);
    m_window->OpenMap(m_folder.Path("map.orvane"));
    EXPECT_NEAR(canvas.Layers()[0].features->Bounds().minX, moved, 1e-6);
}

TEST_F(ToolActionsTest, AMoveThatWasUndoneIsNoLongerTold)
{
    Action("actMoveFeature")->trigger();
    MapCanvas& canvas = m_window->Canvas();
    const QPoint from = canvas.View().ToPixel({5, 5}).toPoint();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas, from + QPoint(30, 0));
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, from + QPoint(60, 0));
    EXPECT_EQ(Status(), "Moved a feature of Square.");
    Action("actUndo")->trigger();
    EXPECT_NEAR(canvas.Layers()[0].features->Bounds().minX, 0, 1e-6);
    EXPECT_EQ(Status(), "Drag a feature to move it.");
}

TEST_F(ToolActionsTest, AFileThatIsReadOnlyIsToldBeforeTheFeatureFollowsThePointer)
{
    NewLayer layer;
    layer.name = "Places";
    layer.priority = 1;
    layer.path = m_folder.Write(
        "places.gpx",
        R"(<?xml version="1.0"?><gpx version="1.1" creator="x" xmlns="http://www.topografix.com/GPX/1/1">)"
        R"(<wpt lat="5" lon="5"><name>Here</name></wpt></gpx>)");
    layer.ogrLayer = "waypoints";
    m_window->Document().AddLayer(layer);
    m_window->OpenMap(m_folder.Path("map.orvane"));
    Action("actMoveFeature")->trigger();
    MapCanvas& canvas = m_window->Canvas();
    const QPoint from = canvas.View().ToPixel({5, 5}).toPoint();
    QTest::mousePress(&canvas, Qt::LeftButton, {}, from);
    QTest::mouseMove(&canvas, from + QPoint(30, 0));
    const QString refusal = Status();
    QTest::mouseRelease(&canvas, Qt::LeftButton, {}, from + QPoint(60, 0));
    EXPECT_TRUE(refusal.contains("places.gpx")) << qPrintable(refusal);
    EXPECT_EQ(Status(), refusal);
}

TEST_F(ToolActionsTest, AnotherMapStartsWithoutSelectionAndResults)
{
    Action("actSelect")->trigger();
    ClickOn({5, 5});
    EXPECT_EQ(Status(), "Selected features: 1");
    Action("actIdentify")->trigger();
    ClickOn({5, 5});
    m_window->OpenMap(m_folder.Path("map.orvane"));
    EXPECT_EQ(Status(), "");
    EXPECT_EQ(Attributes()->topLevelItemCount(), 0);
}

TEST_F(ToolActionsTest, TheStatusTextIsShortenedWhereTheBarIsNarrow)
{
    StatusText text;
    text.SetText(QString(500, u'x'));
    EXPECT_GT(text.sizeHint().width(), 1000);
    EXPECT_LT(text.minimumSizeHint().width(), 200);
    text.resize(100, 20);
    text.show();
    EXPECT_EQ(text.accessibleName().size(), 500);
}

} // namespace Orvane
