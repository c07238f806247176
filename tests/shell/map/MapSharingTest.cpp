// SPDX-License-Identifier: MIT
#include "shell/map/MapSharing.h"

#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/MessageBoxRobot.h"
#include "support/ShownEditor.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

// A map, the window that shows it, and another window with the same map.
class MapSharingTest : public testing::Test
{
protected:
    MapSharingTest()
    {
        QSettings().clear();
        AddSquare(*MapDocument::Create(Path()), "Square", 0);
        m_window = std::make_unique<MainWindow>();
        m_window->show();
        m_window->OpenMap(Path());
        m_other = MapDocument::Open(Path());
    }

    QString Path() const { return m_folder.Path("map.orvane"); }

    void AddSquare(MapDocument& document, const QString& name, int west)
    {
        NewLayer layer;
        layer.name = name;
        layer.path = m_folder.WriteSquare(name + ".geojson", west);
        layer.ogrLayer = name;
        document.SetSystem("EPSG:4326");
        document.AddLayer(layer);
    }

    // The user chooses that file in the dialog that opens next.
    static void ChooseFile(const QString& path)
    {
        auto* timer = new QTimer(qApp);
        QObject::connect(timer, &QTimer::timeout, timer, [timer, path] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            timer->deleteLater();
            timer->stop();
            dialog->setOption(QFileDialog::DontConfirmOverwrite);
            dialog->selectFile(path);
            dialog->QDialog::accept();
        });
        timer->start(0);
    }

    void ComeBack() { emit qApp->applicationStateChanged(Qt::ApplicationActive); }
    void Trigger(const char* action) { m_window->findChild<QAction*>(QLatin1String(action))->trigger(); }
    size_t Shown() { return m_window->Canvas().Layers().size(); }

    DataFolder m_folder;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<MapDocument> m_other;
};

} // namespace

TEST_F(MapSharingTest, WhatAnotherWindowAddsIsShownWhenTheUserComesBack)
{
    AddSquare(*m_other, "More", 20);
    EXPECT_EQ(Shown(), 1u);
    ComeBack();
    ASSERT_EQ(Shown(), 2u);
    EXPECT_EQ(m_window->Canvas().Layers()[1].features->Bounds().minX, 20);
    EXPECT_TRUE(m_window->statusBar()->currentMessage().contains("another window"));
}

TEST_F(MapSharingTest, WhatAnotherWindowAddsIsShownWithoutAnyAction)
{
    AddSquare(*m_other, "More", 20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown() == 2u; }));
}

TEST_F(MapSharingTest, TheLayerControlFollowsAnotherWindowAndKeepsEdits)
{
    Trigger("actLayerControl");
    auto* form = ShownEditor();
    ASSERT_TRUE(form);
    auto* list = form->findChild<QTreeView*>("tvLayers2");
    QTest::mouseClick(
        list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
    auto* locked = form->findChild<QWidget*>("chkLocked")->findChild<QCheckBox*>();
    QTest::mouseClick(locked, Qt::LeftButton, {}, QPoint(8, locked->height() / 2));
    ASSERT_TRUE(form->findChild<QWidget*>("cmdApply")->isEnabled());
    m_other->Database().Execute("UPDATE Layers SET Priority = 7");
    const auto* priority = form->findChild<QLabel*>("lblPriority");
    EXPECT_TRUE(QTest::qWaitFor([&] { return priority->text() == "7"; }));
    QTest::mouseClick(form->findChild<QWidget*>("cmdApply"), Qt::LeftButton);
    const auto map = MapDocument::Open(Path());
    const QString kept = "SELECT * FROM Layers WHERE locked <> 0 AND Priority = 7";
    EXPECT_FALSE(map->Database().OpenRecordset(kept)->AtEOF());
}

TEST_F(MapSharingTest, OnesOwnChangesAreNotTakenForOthers)
{
    AddSquare(m_window->Document(), "Own", 20);
    ComeBack();
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "");
}

TEST_F(MapSharingTest, WhatBothWindowsChangeIsKept)
{
    m_window->Document().Database().Execute("UPDATE Layers SET Color = 255");
    m_other->Database().Execute("UPDATE Layers SET Priority = 7");
    m_window->Document().Database().Execute("UPDATE Layers SET FillStyle = 3");
    m_window.reset();
    m_other.reset();
    const auto map = MapDocument::Open(Path());
    const QString kept = "SELECT * FROM Layers WHERE Color = 255 AND Priority = 7 AND FillStyle = 3";
    EXPECT_FALSE(map->Database().OpenRecordset(kept)->AtEOF());
}

TEST_F(MapSharingTest, OpeningAMapThatIsOpenElsewhereAsksFirst)
{
    MainWindow third;
    {
        MessageBoxRobot user{BoxKey::Escape};
        third.OpenMap(Path());
        EXPECT_TRUE(user.Only().text.contains("map.orvane")) << qPrintable(user.Only().text);
        EXPECT_EQ(third.Document().Path(), "");
    }
    MessageBoxRobot user{BoxKey::Enter};
    third.OpenMap(Path());
    EXPECT_EQ(third.Document().Path(), Path());
    EXPECT_EQ(third.Canvas().Layers().size(), 1u);
}

TEST_F(MapSharingTest, AMapOnAServerIsSharedWithoutAQuestion)
{
    QWidget window;
    MapSharing sharing(window, [] {});
    EXPECT_TRUE(sharing.MayOpen("postgresql:///?service=team&schema=Town"));
}

TEST_F(MapSharingTest, AMapThatNobodyElseHasOpenIsOpenedWithoutAQuestion)
{
    const QString path = MapDocument::Create(m_folder.Path("free.orvane"))->Path();
    m_window->OpenMap(path);
    EXPECT_EQ(m_window->Document().Path(), path);
}

TEST_F(MapSharingTest, OpeningTheMapThatIsShownShowsItAgain)
{
    m_other.reset();
    m_window->OpenMap(Path());
    EXPECT_EQ(m_window->Document().Path(), Path());
    EXPECT_EQ(Shown(), 1u);
}

TEST_F(MapSharingTest, SavingOverTheMapThatIsShownKeepsIt)
{
    m_other.reset();
    m_window->Document().Database().Execute("UPDATE Layers SET Color = 255");
    ChooseFile(Path());
    Trigger("actSaveMapAs");
    EXPECT_EQ(m_window->Document().Path(), Path());
    m_window.reset();
    const auto map = MapDocument::Open(Path());
    EXPECT_FALSE(map->Database().OpenRecordset("SELECT * FROM Layers WHERE Color = 255")->AtEOF());
}

TEST_F(MapSharingTest, TheLayerControlStaysOpenWhetherSavingUnderAnotherNameWorksOrNot)
{
    Trigger("actLayerControl");
    ChooseFile(m_folder.Path("copy.orvane"));
    Trigger("actSaveMapAs");
    EXPECT_EQ(m_window->Document().Path(), m_folder.Path("copy.orvane"));
    EXPECT_TRUE(ShownEditor());
    const auto precious = MapDocument::Create(m_folder.Path("precious.orvane"));
    ChooseFile(precious->Path());
    MessageBoxRobot user{BoxKey::Enter};
    Trigger("actSaveMapAs");
    EXPECT_TRUE(ShownEditor());
}

TEST_F(MapSharingTest, SavingOverAMapOfAnotherWindowIsRefusedAndBothMapsStay)
{
    const auto precious = MapDocument::Create(m_folder.Path("precious.orvane"));
    for (const char* command : {"actSaveMapAs", "actNewMap"}) {
        ChooseFile(precious->Path());
        MessageBoxRobot user{BoxKey::Enter};
        Trigger(command);
        EXPECT_TRUE(user.Only().text.contains("precious.orvane")) << qPrintable(user.Only().text);
        EXPECT_EQ(m_window->Document().Path(), Path()) << command;
        EXPECT_EQ(Shown(), 1u) << command;
    }
    AddSquare(*precious, "Late", 0);
    EXPECT_TRUE(MapDocument::Open(precious->Path())->HasLayers()) << "goes on being written";
}

TEST_F(MapSharingTest, AMapWhoseFileIsGoneIsSavedUnderItsOwnName)
{
    m_other.reset();
    MessageBoxRobot user{BoxKey::Escape};
    ASSERT_TRUE(QFile::remove(Path()));
    EXPECT_TRUE(QTest::qWaitFor([&] { return !user.Boxes().empty(); }));
    ChooseFile(Path());
    Trigger("actSaveMapAs");
    m_window.reset();
    EXPECT_TRUE(MapDocument::Open(Path())->HasLayers());
}

} // namespace Orvane
