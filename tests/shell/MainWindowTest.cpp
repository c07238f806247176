// SPDX-License-Identifier: MIT
#include "shell/MainWindow.h"

#include "hostkit/Impatience.h"
#include "hostkit/common/HostNotifications.h"
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Progress.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/drawing/ScaleText.h"
#include "shell/window/RecentMaps.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "store/sqlite/files/LayerFileUse.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QUrl>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// Cancels the work of that name as soon as it runs, even before its dialog is visible.
class Canceller
{
public:
    explicit Canceller(const QString& work)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [work] {
            for (QWidget* window : QApplication::topLevelWidgets()) {
                auto* dialog = qobject_cast<QProgressDialog*>(window);
                if (dialog && dialog->labelText() == work)
                    emit dialog->canceled();
            }
        });
        m_timer.start(0);
    }

private:
    QTimer m_timer;
};

class MainWindowTest : public testing::Test
{
protected:
    MainWindowTest()
    {
        QSettings().clear();
        m_window = std::make_unique<MainWindow>();
        m_window->show();
    }

    QString MakeMap(const QString& name)
    {
        const auto document = MapDocument::Create(m_folder.Path(name));
        NewLayer layer;
        layer.name = "Square";
        layer.path = m_folder.WriteSquare("square.geojson");
        layer.ogrLayer = "square";
        document->SetSystem("EPSG:4326");
        document->AddLayer(layer);
        return document->Path();
    }

    void Drop(const QStringList& paths)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& path : paths)
            urls << QUrl::fromLocalFile(path);
        data.setUrls(urls);
        QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &enter);
        QDropEvent event({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_window.get(), &event);
    }

    QStringList SomeFiles(int count)
    {
        QStringList paths;
        for (int i = 0; i < count; ++i)
            paths << m_folder.WriteSquare(QString::number(i) + ".geojson");
        return paths;
    }
    QStringList ThousandFiles() { return SomeFiles(1000); }

    // Whether act ended because the user cancelled.
    static bool IsCancelled(const std::function<void()>& act)
    {
        try {
            act();
        } catch (const RunTimeError& error) {
            EXPECT_TRUE(IsCancellation(error)) << error.what();
            return true;
        }
        return false;
    }

    int Count(const QString& table)
    {
        const QString sql = "SELECT count(*) AS N FROM " + table;
        return ToInt32(m_window->Document().Database().OpenRecordset(sql)->Field("N"));
    }

    QString Label(const char* name) const { return m_window->findChild<QLabel*>(name)->text(); }
    QAction* Action(const char* name) const { return m_window->findChild<QAction*>(name); }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
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
    EXPECT_TRUE(Label("lblScale").startsWith("1:"));
    EXPECT_EQ(Label("lblScale"), ScaleText(m_window->Canvas().ScaleDenominator()));
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

TEST_F(MainWindowTest, AThousandFilesCanBeCancelledWhileTheyAreOpened)
{
    const QStringList paths = ThousandFiles();
    QTimer user;
    QObject::connect(&user, &QTimer::timeout, [&] {
        auto* dialog = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget());
        if (dialog && dialog->isVisible())
            dialog->findChild<QPushButton*>()->click();
    });
    user.start(1);
    bool cancelled = false;
    try {
        m_window->AddData(paths);
    } catch (const Cancelled&) {
        cancelled = true;
    }
    const size_t shown = m_window->Canvas().Layers().size();
    EXPECT_TRUE(shown == 0 || (shown == 1000 && !cancelled)) << shown; // none, or the work was done before
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindowTest, CancellingWhileFilesAreLookedIntoLeavesTheMapAsItWas)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const Canceller user("Opening map data");
    EXPECT_THROW(m_window->AddData(ThousandFiles()), Cancelled);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_EQ(Count("Layers"), 1);
    EXPECT_EQ(Count("LayerGroups"), 0);
    EXPECT_FALSE(Action("actUndo")->isEnabled());
}

TEST_F(MainWindowTest, CancellingWhileFilesAreReadLeavesTheMapAsItWas)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const MapView view = m_window->Canvas().View();
    const Canceller user("Reading map data");
    EXPECT_THROW(m_window->AddData(ThousandFiles()), Cancelled);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_EQ(Count("Layers"), 1);
    EXPECT_EQ(Count("LayerGroups"), 0);
    EXPECT_EQ(Count("LayerSources"), 1);
    EXPECT_EQ(m_window->Canvas().View(), view);
    EXPECT_FALSE(Action("actUndo")->isEnabled());
    EXPECT_FALSE(Action("actRedo")->isEnabled());
}

// At every place where the user can press Cancel while the layers are stored.
TEST_F(MainWindowTest, CancellingWhileLayersAreAddedLeavesTheMapAsItWas)
{
    const QStringList paths = SomeFiles(50);
    const Impatience now;
    bool done = false;
    for (int last = 0; !done; last += 1 + last / 3) {
        const AtEachLook user([last, look = 0](QProgressDialog& dialog, int) mutable {
            if (dialog.labelText() == "Adding layers to the map" && look++ == last)
                PressCancel(dialog);
        });
        done = !IsCancelled([&] { m_window->AddData(paths); });
        EXPECT_EQ(Count("Layers"), done ? 50 : 0) << last;
        EXPECT_EQ(Count("LayerGroups"), done ? 50 : 0) << last;
        EXPECT_EQ(m_window->Document().System().isEmpty(), !done) << last;
        EXPECT_EQ(Action("actUndo")->isEnabled(), done) << last;
        EXPECT_FALSE(Action("actRedo")->isEnabled()) << last;
    }
    EXPECT_EQ(m_window->Canvas().Layers().size(), 50u);
}

TEST_F(MainWindowTest, CancellingWhileAMapIsOpenedKeepsTheOtherMap)
{
    m_window->OpenMap(MakeMap("map.orvane"));
    const QString other = m_folder.Path("other.orvane");
    {
        const auto document = MapDocument::Create(other);
        NewLayer layer;
        layer.ogrLayer = "0";
        for (const QString& path : ThousandFiles()) {
            layer.path = path;
            document->AddLayer(layer);
        }
    }
    const Canceller user("Reading map data");
    EXPECT_THROW(m_window->OpenMap(other), Cancelled);
    EXPECT_EQ(m_window->Document().Path(), m_folder.Path("map.orvane"));
    EXPECT_EQ(m_window->Canvas().Layers().size(), 1u);
    EXPECT_FALSE(IsLayerFileInUse(other));
}

TEST_F(MainWindowTest, TheRowsOfAMapAreReadWithProgressThatCannotBeCancelled)
{
    const QString map = MakeMap("map.orvane");
    MapDocument::Open(map)->Database().Execute(
        "WITH RECURSIVE N(i) AS (SELECT 2 UNION ALL SELECT i + 1 FROM N WHERE i < 300)"
        " INSERT INTO Layers (LayerID, Name) SELECT i, 'Layer ' || i FROM N");
    const Impatience now;
    int looks = 0;
    const AtEachLook user([&](QProgressDialog& dialog, int) {
        if (dialog.labelText() != "Reading the map")
            return;
        ++looks;
        EXPECT_EQ(dialog.findChild<QPushButton*>(), nullptr);
        dialog.close();
    });
    m_window->OpenMap(map);
    EXPECT_GT(looks, 0);
    EXPECT_EQ(m_window->Canvas().Layers().size(), 300u);
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
