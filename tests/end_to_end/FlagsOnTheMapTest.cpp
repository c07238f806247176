// SPDX-License-Identifier: MIT
#include "hostkit/common/SettingsStore.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "shell/tools/MeasureTool.h"
#include "shell/tools/StatusText.h"
#include "support/ShownEditor.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTreeView>
#include <QTreeWidget>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr QPointF Inside(5, 5);

// A map of one square of ten degrees, the layer control beside it, and a user who uses both.
class FlagsOnTheMap : public testing::Test
{
protected:
    void SetUp() override
    {
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.Path("settings"));
        SettingsStore().Write("DrawStyleEditor::Main", "9000:7000:LAYERS:EXPANDED");
        MakeMap();
        m_window = std::make_unique<MainWindow>();
        m_window->resize(800, 600);
        m_window->show();
        m_window->OpenMap(m_folder.Path("map.orvane"));
        m_window->ShowLayerControl();
        ASSERT_NE(Form(), nullptr);
        auto& tree = Find<QTreeView>("tvLayers2");
        QTest::mouseClick(
            tree.viewport(), Qt::LeftButton, {}, tree.visualRect(tree.model()->index(0, 0)).center());
    }

    void TearDown() override
    {
        if (Form())
            Form()->close();
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

    static QWidget* Form() { return ShownEditor(); }

    template <typename Widget> static Widget& Find(const char* name)
    {
        auto* found = Form() ? Form()->findChild<Widget*>(QLatin1String(name)) : nullptr;
        if (!found)
            throw std::runtime_error(name);
        return *found;
    }

    // The box is clicked and the change applied.
    static void Toggle(const char* name)
    {
        QCheckBox& box = *Find<QWidget>(name).findChild<QCheckBox*>();
        QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(8, box.height() / 2));
        QTest::mouseClick(&Find<QPushButton>("cmdApply"), Qt::LeftButton);
    }

    void Take(const char* tool) { m_window->findChild<QAction*>(QLatin1String(tool))->trigger(); }
    QPoint Pixel(QPointF map) { return m_window->Canvas().View().ToPixel(map).toPoint(); }
    void Click(QPointF map) { QTest::mouseClick(&m_window->Canvas(), Qt::LeftButton, {}, Pixel(map)); }
    void Drag(QPointF from, QPointF to)
    {
        MapCanvas& canvas = m_window->Canvas();
        QTest::mousePress(&canvas, Qt::LeftButton, {}, Pixel(from));
        QTest::mouseMove(&canvas, (Pixel(from) + Pixel(to)) / 2);
        QTest::mouseMove(&canvas, Pixel(to));
        QTest::mouseRelease(&canvas, Qt::LeftButton, {}, Pixel(to));
    }
    // Sent to the map itself: a real pointer may be over the layer control's window.
    void Hover(QPointF map)
    {
        MapCanvas& canvas = m_window->Canvas();
        const QPointF pixel(Pixel(map));
        QMouseEvent event(
            QEvent::MouseMove, pixel, canvas.mapToGlobal(pixel), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&canvas, &event);
    }
    std::string Status() { return m_window->findChild<StatusText*>("lblToolStatus")->Text().toStdString(); }
    double West() { return m_window->Canvas().Layers().at(0).features->Bounds().minX; }
    int ListedFeatures() { return m_window->findChild<QTreeWidget*>("tvIdentified")->topLevelItemCount(); }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace

TEST_F(FlagsOnTheMap, UntickingEnquirableEndsIdentifying)
{
    Take("actIdentify");
    Click(Inside);
    EXPECT_EQ(ListedFeatures(), 1);
    Toggle("chkEnquirable");
    Click(Inside);
    EXPECT_EQ(ListedFeatures(), 0);
    EXPECT_EQ(Status(), "Square is here but not enquirable.");
    Toggle("chkEnquirable");
    Click(Inside);
    EXPECT_EQ(ListedFeatures(), 1);
}

TEST_F(FlagsOnTheMap, UntickingSelectableEndsSelectingAndDropsTheSelection)
{
    Take("actSelect");
    const QImage plain = m_window->Canvas().grab().toImage();
    Click(Inside);
    EXPECT_EQ(Status(), "Selected features: 1");
    Toggle("chkSelectable");
    EXPECT_EQ(
        m_window->Canvas().grab().toImage().pixelColor(Pixel({5, 0.1})), plain.pixelColor(Pixel({5, 0.1})));
    Click(Inside);
    EXPECT_EQ(Status(), "Square is here but not selectable.");
    Drag({-0.1, -0.1}, {8, 8});
    EXPECT_EQ(Status(), "No selectable feature in the rectangle.");
    Toggle("chkSelectable");
    Drag({-0.1, -0.1}, {8, 8});
    EXPECT_EQ(Status(), "Selected features: 1");
}

TEST_F(FlagsOnTheMap, UntickingHitableEndsPointingOutSelectingAndIdentifying)
{
    Take("actPointOut");
    Hover(Inside);
    EXPECT_EQ(Status(), "Square");
    Toggle("chkHitable");
    Hover({6, 6});
    EXPECT_EQ(Status(), "Square is here but not hitable.");
    Take("actPointOut");
    for (const char* tool : {"actSelect", "actIdentify"}) {
        Take(tool);
        Click(Inside);
        EXPECT_EQ(Status(), "Square is here but not hitable.") << tool;
    }
}

TEST_F(FlagsOnTheMap, TickingLockedKeepsAFeatureWhereItIs)
{
    Take("actMoveFeature");
    Toggle("chkLocked");
    Drag(Inside, {6, 5});
    EXPECT_EQ(Status(), "Square is here but locked.");
    EXPECT_EQ(West(), 0);
    Toggle("chkLocked");
    Drag(Inside, {6, 5});
    EXPECT_NEAR(West(), 1, 0.05);
}

TEST_F(FlagsOnTheMap, TickingSnapLetsMeasuringLinesSnap)
{
    Take("actMeasureLine");
    const auto* tool = dynamic_cast<const MeasureTool*>(m_window->Canvas().Tool());
    ASSERT_NE(tool, nullptr);
    Click({10.05, 10.05});
    EXPECT_NE(tool->Vertices().at(0), QPointF(10, 10));
    Toggle("chkSnapRequired");
    Click({10.05, 10.05});
    EXPECT_EQ(tool->Vertices().at(1), QPointF(10, 10));
}

TEST_F(FlagsOnTheMap, UntickingVisibleEndsEverything)
{
    Toggle("chkVisible");
    for (const char* tool : {"actSelect", "actIdentify", "actMoveFeature"}) {
        Take(tool);
        Click(Inside);
        EXPECT_EQ(Status(), "Square is here but not visible.") << tool;
    }
}

} // namespace Orvane
