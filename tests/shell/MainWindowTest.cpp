// SPDX-License-Identifier: MIT
#include "shell/MainWindowTest.h"

#include "hostkit/common/HostNotifications.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/drawing/ScaleText.h"
#include "shell/window/RecentMaps.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QToolBar>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// Cancels each file dialog that opens while it exists.
class FileDialogs
{
public:
    FileDialogs()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            m_proposed << dialog->selectedFiles();
            dialog->reject();
        });
        m_timer.start(0);
    }

    // The file that each of them proposed.
    const QStringList& Proposed() const { return m_proposed; }

private:
    QTimer m_timer;
    QStringList m_proposed;
};

} // namespace

TEST_F(MainWindowTest, BeginsWithAMapWithoutAFile)
{
    EXPECT_EQ(m_window->Document().Path(), "");
    EXPECT_FALSE(m_window->Document().HasLayers());
}

TEST_F(MainWindowTest, TellsOfMissingDataInFrontOfTheRestOfTheMap)
{
    const QString path = MakeMap("map.orvane");
    NewLayer gone;
    gone.name = "Gone";
    gone.path = m_folder.Path("gone.geojson");
    gone.ogrLayer = "gone";
    MapDocument::Open(path)->AddLayer(gone);
    MessageBoxRobot user{BoxKey::Escape};
    double right = 0;
    user.BeforeAnswer([&](QMessageBox&) { right = m_window->Canvas().View().Extent().maxX; });
    m_window->OpenMap(path);
    EXPECT_TRUE(user.Only().text.contains("gone.geojson"));
    EXPECT_EQ(right, m_window->Canvas().View().Extent().maxX);
}

TEST_F(MainWindowTest, IsAtFirstWideEnoughForItsTools)
{
    for (const QToolBar* bar : m_window->findChildren<QToolBar*>())
        EXPECT_GE(bar->width(), bar->sizeHint().width()) << qPrintable(bar->objectName());
}

TEST_F(MainWindowTest, OpensAMapAndShowsAllOfIt)
{
    m_window->OpenMap(MakeMap("squares.orvane"));
    EXPECT_TRUE(m_window->windowTitle().startsWith("squares"));
    ASSERT_EQ(m_window->Canvas().Layers().size(), 1u);
    const Box shown = m_window->Canvas().View().Extent();
    EXPECT_LT(shown.minX, 0);
    EXPECT_GT(shown.maxX, 10);
    const QString scale = m_window->findChild<QComboBox*>("cmbScale")->currentText();
    EXPECT_TRUE(scale.startsWith("1:"));
    EXPECT_EQ(scale, ScaleText(m_window->Canvas().ScaleDenominator()));
}

TEST_F(MainWindowTest, AMapThatWasOpenedIsAmongTheRecentOnes)
{
    const QString first = MakeMap("first.orvane");
    const QString second = MakeMap("second.orvane");
    m_window->OpenMap(first);
    m_window->OpenMap(second);
    EXPECT_EQ(RecentMaps::All(), QStringList({second, first}));
    auto* menu = m_window->findChild<QMenu*>("menuRecent");
    emit menu->aboutToShow();
    ASSERT_EQ(menu->actions().size(), 2);
    menu->actions()[1]->trigger();
    EXPECT_EQ(m_window->Document().Path(), first);
}

TEST_F(MainWindowTest, ARecentMapThatIsGoneIsTakenOffTheListWithAMessage)
{
    const QString path = MakeMap("gone.orvane");
    RecentMaps::Add(path);
    ASSERT_TRUE(QFile::remove(path));
    auto* menu = m_window->findChild<QMenu*>("menuRecent");
    emit menu->aboutToShow();
    MessageBoxRobot user{BoxKey::Enter};
    menu->actions()[0]->trigger();
    EXPECT_TRUE(user.Only().text.contains("gone.orvane"));
    EXPECT_TRUE(RecentMaps::All().isEmpty());
}

TEST_F(MainWindowTest, AMapFileThatGoesWhileItIsOpenIsTold)
{
    const QString path = MakeMap("map.orvane");
    m_window->OpenMap(path);
    MessageBoxRobot user{BoxKey::Escape};
    ASSERT_TRUE(QFile::rename(path, m_folder.Path("away.orvane")));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !user.Boxes().empty(); }));
    EXPECT_TRUE(user.Only().text.contains("map.orvane"));
}

TEST_F(MainWindowTest, DataThatTakeThePlaceOfUndoneOnesAreDrawnAsTheyAre)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    m_window->AddData({m_folder.WriteSquare("first.geojson", 20, 20)});
    Action("actUndo")->trigger();
    m_window->AddData({m_folder.WriteSquare("second.geojson", 60, 40)});
    ASSERT_EQ(m_window->Canvas().Layers().size(), 2u);
    EXPECT_EQ(m_window->Canvas().Layers()[1].name, "second");
    EXPECT_EQ(m_window->Canvas().Layers()[1].features->Bounds().minX, 60);
}

TEST_F(MainWindowTest, AFileThatIsNoMapLeavesTheMapThatIsOpen)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    EXPECT_THROW(m_window->OpenMap(m_folder.Write("text.orvane", "no map")), RunTimeError);
    EXPECT_EQ(m_window->Document().Path(), m_folder.Path("map.orvane"));
}

TEST_F(MainWindowTest, DroppedDataJoinTheMap)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    Drop({m_folder.WriteSquare("more.geojson", 20, 20), m_folder.WriteSquare("again.geojson", 40, 0)});
    EXPECT_EQ(m_window->Canvas().Layers().size(), 3u);
    for (const MapLayer& layer : m_window->Canvas().Layers())
        EXPECT_TRUE(layer.features) << layer.layerID;
}

TEST_F(MainWindowTest, ADroppedMapIsOpened)
{
    const QString path = MakeMap("map.orvane");
    Drop({path});
    EXPECT_EQ(m_window->Document().Path(), path);
}

TEST_F(MainWindowTest, ADroppedFileThatIsBrokenIsToldInOneMessage)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    MessageBoxRobot user{BoxKey::Enter};
    Drop(
        {m_folder.Write("bad.gpkg", "x"), m_folder.Write("worse.shp", "y"),
         m_folder.WriteSquare("good.geojson")});
    EXPECT_TRUE(user.Only().text.contains("bad.gpkg"));
    EXPECT_TRUE(user.Only().text.contains("worse.shp"));
    EXPECT_EQ(m_window->Canvas().Layers().size(), 2u);
}

TEST_F(MainWindowTest, ADropHasEndedBeforeTheUserIsAsked)
{
    {
        MessageBoxRobot nobody{};
        LetGo({m_folder.Write("bad.gpkg", "x")});
    }
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_TRUE(QTest::qWaitFor([&] { return user.Boxes().size() == 1; }));
    EXPECT_TRUE(user.Only().text.contains("bad.gpkg"));
}

TEST_F(MainWindowTest, TheZoomCommandsWork)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const MapView all = m_window->Canvas().View();
    Action("actZoomIn")->trigger();
    EXPECT_LT(m_window->Canvas().View().UnitsPerPixel(), all.UnitsPerPixel());
    Action("actZoomOut")->trigger();
    EXPECT_NEAR(m_window->Canvas().View().UnitsPerPixel(), all.UnitsPerPixel(), 1e-12);
    Action("actZoomIn")->trigger();
    Action("actZoomAll")->trigger();
    EXPECT_EQ(m_window->Canvas().View(), all);
}

TEST_F(MainWindowTest, TheColourUnderTheMapIsChosenAndUndone)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const QColor night(20, 30, 60);
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QColorDialog*>(QApplication::activeModalWidget());
        ASSERT_TRUE(dialog);
        dialog->setCurrentColor(night);
        QTest::keyClick(dialog, Qt::Key_Return);
    });
    Action("actMapBackground")->trigger();
    EXPECT_EQ(m_window->Document().Background(), night);
    const auto corner = [this] { return m_window->Canvas().grab().toImage().pixelColor(2, 2); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return corner() == night; }));
    Action("actUndo")->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return corner() == QColor(Qt::white); }));
}

TEST_F(MainWindowTest, ThePositionUnderThePointerIsShown)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    MapCanvas& canvas = m_window->Canvas();
    QTest::mouseMove(&canvas, canvas.View().ToPixel({5, 5}).toPoint());
    EXPECT_TRUE(Label("lblPosition").contains("° N")) << qPrintable(Label("lblPosition"));
}

TEST_F(MainWindowTest, ClosingAMapWithoutAFileAsksAndCancelKeepsIt)
{
    m_window->AddData({m_folder.WriteSquare("square.geojson")});
    {
        MessageBoxRobot user{BoxKey::Escape};
        EXPECT_FALSE(m_window->close());
        EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    }
    EXPECT_TRUE(m_window->isVisible());
}

TEST_F(MainWindowTest, ANewMapAsksAboutTheUnsavedOneBeforeItAsksForAFile)
{
    m_window->AddData({m_folder.WriteSquare("square.geojson")});
    FileDialogs dialogs;
    MessageBoxRobot user{BoxKey::Escape};
    Action("actNewMap")->trigger();
    EXPECT_EQ(user.Only().icon, QMessageBox::Question);
    EXPECT_TRUE(dialogs.Proposed().isEmpty()) << "the user has cancelled";
    EXPECT_EQ(Count("Layers"), 1);
}

TEST_F(MainWindowTest, SavingAMapOfAFileProposesItsFolderAndName)
{
    m_window->AddData({m_folder.WriteSquare("square.geojson")});
    FileDialogs dialogs;
    Action("actSaveMapAs")->trigger();
    EXPECT_EQ(dialogs.Proposed(), QStringList{m_folder.Path("square.orvane")});
    EXPECT_TRUE(m_window->Document().Path().isEmpty()) << "the user has cancelled";
}

TEST_F(MainWindowTest, ClosingAnEmptyOrStoredMapAsksNothing)
{
    EXPECT_TRUE(m_window->close());
    m_window->show();
    m_window->OpenMap(MakeMap("map.orvane"));
    EXPECT_TRUE(m_window->close());
}

TEST_F(MainWindowTest, TheWindowsPlaceIsKept)
{
    m_window->resize(700, 500);
    m_window->close();
    EXPECT_EQ(MainWindow().size(), QSize(700, 500));
}

TEST_F(MainWindowTest, AChangeThatCannotBeUndoneIsShownOnce)
{
    MessageBoxRobot user{BoxKey::Enter};
    emit m_window->Session().Shell().Notifications().StepNotRecorded("no memory");
    EXPECT_TRUE(user.Boxes().empty()) << "not while the change is being stored";
    QCoreApplication::processEvents();
    EXPECT_TRUE(user.Only().text.contains("no memory"));
    EXPECT_EQ(user.Only().owner, m_window.get());
}

} // namespace Orvane
