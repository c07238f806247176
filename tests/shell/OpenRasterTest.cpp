// SPDX-License-Identifier: MIT
// Rasters in the window: opened by drop and by menu, undone, and what their layers do not offer.
#include "hostkit/undo/UndoHistory.h"
#include "mapkit/RasterFile.h"
#include "mapkit/canvas/MapCanvas.h"
#include "shell/MainWindowTest.h"
#include "shell/dialogs/LayerPropertiesDialog.h"
#include "shell/dialogs/RenderingDialog.h"
#include "shell/map/LayerCommand.h"
#include "shell/map/MapSession.h"
#include "support/MessageBoxRobot.h"

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QMenu>
#include <QTest>
#include <QTimer>

namespace Orvane {

using namespace Testing;

namespace {

class OpenRasterTest : public MainWindowTest
{
protected:
    QString Raster(const QString& name, const RasterSpec& spec = {}) const
    {
        WriteRaster(m_folder.Path(name), spec, [](int column, int, int) { return column; });
        return m_folder.Path(name);
    }

    const std::vector<MapLayer>& Layers() const { return m_window->Canvas().Layers(); }
    const LayerCommand& Command(const QString& id) const
    {
        const auto& commands = m_window->Session().Shell().LayerCommands();
        return *std::find_if(
            commands.begin(), commands.end(), [&](const LayerCommand& command) { return command.id == id; });
    }
};

} // namespace

TEST_F(OpenRasterTest, DroppedRastersJoinTheMapAsLayers)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    Drop({Raster("first.tif"), Raster("second.tif")});
    ASSERT_EQ(Layers().size(), 3u);
    EXPECT_EQ(Layers()[1].name, "first");
    EXPECT_TRUE(Layers()[1].raster && Layers()[2].raster);
    EXPECT_EQ(Count("LayerGroups"), 2);
}

TEST_F(OpenRasterTest, AddingOneIsUndoneAndRedone)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    Drop({Raster("photo.tif")});
    Action("actUndo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Layers().size() == 1; }));
    Action("actRedo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Layers().size() == 2 && Layers()[1].raster; }));
}

TEST_F(OpenRasterTest, TheMenuOpensThemToo)
{
    const QString path = Raster("photo.tif");
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &look, [&] {
        if (auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget())) {
            look.stop();
            dialog->selectFile(path);
            QTest::keyClick(dialog, Qt::Key_Return);
        }
    });
    look.start(5);
    for (QAction* action : m_window->findChild<QMenu*>("menuFile")->actions()) {
        if (action->objectName() == "actOpenRaster")
            action->trigger();
    }
    ASSERT_EQ(Layers().size(), 1u);
    EXPECT_TRUE(Layers()[0].raster);
}

TEST_F(OpenRasterTest, OneThatNamesNoSystemIsToldAsOtherDataAre)
{
    Drop({Raster("photo.tif", {.system = nullptr})});
    ASSERT_EQ(Layers().size(), 1u);
    EXPECT_TRUE(m_window->findChild<QLabel*>("lblNotice")->text().contains("photo.tif"));
}

TEST_F(OpenRasterTest, APictureWithoutAPlaceIsRefusedWithAReason)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    MessageBoxRobot user{BoxKey::Enter};
    Drop({Raster("photo.tif", {.system = nullptr, .isPlaced = false})});
    EXPECT_TRUE(user.Only().text.contains("photo.tfw")) << qPrintable(user.Only().text);
    EXPECT_EQ(Layers().size(), 1u);
}

TEST_F(OpenRasterTest, ARasterHasNoAttributesAndItsCommandsSaySo)
{
    Drop({Raster("photo.tif")});
    const std::vector<qint32> layers{Layers().at(0).layerID};
    EXPECT_NE(Command("AttributeTable").whyNot(layers), "");
    EXPECT_NE(Command("LayerRendering").whyNot(layers), "");
    EXPECT_EQ(Command("ZoomToLayer").whyNot(layers), "");
    EXPECT_EQ(Command("OpenFolder").whyNot(layers), "");
}

TEST_F(OpenRasterTest, TheRenderingOfLayersChosenWithARasterBeginsWithTheFirstOfTheseLayers)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    Drop({m_folder.WriteSquare("second.geojson"), Raster("photo.tif")});
    ASSERT_EQ(Layers().size(), 3u);
    QString shown;
    QTimer::singleShot(0, m_window.get(), [&] {
        auto* dialog = qobject_cast<RenderingDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        shown = dialog->findChild<QComboBox*>("cmbLayer")->currentText();
        dialog->reject();
    });
    Command("LayerRendering").run({Layers()[2].layerID, Layers()[0].layerID});
    EXPECT_EQ(shown, "Square");
}

TEST_F(OpenRasterTest, TheRenderingOffersNoRasterThatCannotBeRead)
{
    const QString map = MakeMap("map.orvane");
    NewLayer raster = NewLayer::OfRaster();
    raster.name = "photo";
    raster.path = m_folder.Path("gone.tif");
    MapDocument::Open(map)->AddLayer(raster);
    MessageBoxRobot user{BoxKey::Enter};
    m_window->OpenMap(map);
    ASSERT_EQ(Layers().size(), 2u);
    int offered = 0;
    QTimer::singleShot(0, m_window.get(), [&] {
        auto* dialog = qobject_cast<RenderingDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        offered = dialog->findChild<QComboBox*>("cmbLayer")->count();
        dialog->reject();
    });
    Action("actLayerRendering")->trigger();
    EXPECT_EQ(offered, 1);
}

TEST_F(OpenRasterTest, ItsPropertiesAreThoseOfARaster)
{
    Drop({Raster("photo.tif", {.width = 50, .bands = 3})});
    QString raster;
    QString pixel;
    bool hasLayerName = true;
    QTimer::singleShot(0, m_window.get(), [&] {
        auto* dialog = qobject_cast<LayerPropertiesDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        raster = dialog->findChild<QLabel*>("lblGeometry")->text();
        pixel = dialog->findChild<QLabel*>("lblCount")->text();
        hasLayerName = dialog->findChild<QLabel*>("lblSourceLayer")->isVisible();
        dialog->reject();
    });
    Action("actLayerProperties")->trigger();
    EXPECT_EQ(raster, "50 x 100 pixels, bands: 3");
    EXPECT_EQ(pixel, "0.1 x 0.1");
    EXPECT_FALSE(hasLayerName);
}

} // namespace Orvane
