// SPDX-License-Identifier: MIT
#include "mapkit/DataFolder.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/document/MapDocument.h"
#include "shell/MainWindow.h"
#include "store/ILayerStore.h"
#include "support/CuttingProxy.h"
#include "support/MessageBoxRobot.h"
#include "support/PrivateServer.h"
#include "support/ShownEditor.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QStatusBar>
#include <QTest>
#include <QTreeView>
#include <QUrl>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr int Patience = 20000; // milliseconds; nothing takes that long

// A map on a server, the window that shows it, whose network can be cut, and another window with the same
// map.
class MapSharingOnServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        QSettings().clear();
        m_proxy = std::make_unique<CuttingProxy>(SharedServer().Socket());
        AddSquare(*MapDocument::Create(Place(SharedServer().Folder())), "Square", 0);
        m_window = Opened(m_proxy->Folder());
        m_other = Opened(SharedServer().Folder());
    }

    static QString Place(const QString& folder)
    {
        const QString name = testing::UnitTest::GetInstance()->current_test_info()->name();
        return QStringLiteral("postgresql://orvane@/postgres?host=%1&schema=%2").arg(folder, name);
    }
    static std::unique_ptr<MainWindow> Opened(const QString& folder)
    {
        auto window = std::make_unique<MainWindow>();
        window->show();
        window->OpenMap(Place(folder));
        return window;
    }
    void AddSquare(MapDocument& document, const QString& name, int west)
    {
        NewLayer layer;
        layer.name = name;
        layer.path = m_folder.WriteSquare(name + ".geojson", west);
        layer.ogrLayer = name;
        document.SetSystem("EPSG:4326");
        document.AddLayer(layer);
    }

    // The user chooses the first layer in the window's layer control, and ticks a property.
    QWidget* WithAnEdit()
    {
        m_window->findChild<QAction*>("actLayerControl")->trigger();
        auto* form = ShownEditor();
        auto* list = form->findChild<QTreeView*>("tvLayers2");
        QTest::mouseClick(
            list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
        auto* locked = form->findChild<QWidget*>("chkLocked")->findChild<QCheckBox*>();
        QTest::mouseClick(locked, Qt::LeftButton, {}, QPoint(8, locked->height() / 2));
        return form;
    }
    static void Apply(QWidget& form)
    {
        QTest::mouseClick(form.findChild<QWidget*>("cmdApply"), Qt::LeftButton);
    }
    QString Sharing() const { return m_window->findChild<QLabel*>("lblSharing")->text(); }
    QWidget& SharingField() const { return *m_window->findChild<QLabel*>("lblSharing")->parentWidget(); }
    size_t Shown() { return m_window->Canvas().Layers().size(); }
    void ChangeElsewhere(const QString& assignment)
    {
        m_other->Document().Database().Execute("UPDATE Layers SET " + assignment);
    }
    bool IsStored(const QString& condition)
    {
        const auto rows = m_other->Document().Database().OpenQuery("SELECT * FROM Layers WHERE " + condition);
        return !rows->AtEOF();
    }

    DataFolder m_folder;
    std::unique_ptr<CuttingProxy> m_proxy;
    std::unique_ptr<MainWindow> m_window;
    std::unique_ptr<MainWindow> m_other;
};

} // namespace

TEST_F(MapSharingOnServerTest, WhatAnotherWindowAddsIsShown)
{
    AddSquare(m_other->Document(), "More", 20);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown() == 2u; }, Patience));
    EXPECT_TRUE(m_window->statusBar()->currentMessage().contains("another window"));
}

TEST_F(MapSharingOnServerTest, AnotherStyleIsShownWithoutReadingTheMapAgain)
{
    ChangeElsewhere("Color = 255");
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return m_window->Canvas().Layers()[0].values.color == 255; }, Patience));
    EXPECT_EQ(m_window->statusBar()->currentMessage(), "");
}

TEST_F(MapSharingOnServerTest, TheLayerControlFollowsAnotherWindowAndKeepsEdits)
{
    QWidget* form = WithAnEdit();
    ChangeElsewhere("Priority = 7");
    const auto* priority = form->findChild<QLabel*>("lblPriority");
    EXPECT_TRUE(QTest::qWaitFor([&] { return priority->text() == "7"; }, Patience));
    Apply(*form);
    EXPECT_TRUE(IsStored("locked AND Priority = 7"));
}

TEST_F(MapSharingOnServerTest, TheStatusBarNamesTheOthers)
{
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sharing() == "Also opened by: orvane"; }, Patience));
    m_other.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return !SharingField().isVisible(); }, Patience));
}

TEST_F(MapSharingOnServerTest, ALostConnectionIsToldAndMadeAgain)
{
    m_proxy->Refuse();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Sharing() == "Connection lost, trying again"; }, Patience));
    ChangeElsewhere("Color = 255");
    m_proxy->Restore();
    auto* again = m_window->findChild<QPushButton*>("cmdTryServer");
    EXPECT_TRUE(QTest::qWaitFor([&] { return again->isEnabled(); }, Patience));
    QTest::mouseClick(again, Qt::LeftButton);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return m_window->Canvas().Layers()[0].values.color == 255; }, Patience));
    EXPECT_EQ(Sharing(), "Also opened by: orvane");
}

TEST_F(MapSharingOnServerTest, AnApplyThatTheNetworkCutsCanBeTriedAgain)
{
    QWidget* form = WithAnEdit();
    m_proxy->CutAt("UPDATE", CuttingProxy::Cut::BeforeIt);
    MessageBoxRobot user{BoxKey::Enter};
    Apply(*form);
    EXPECT_EQ(user.Boxes().size(), 1u);
    EXPECT_TRUE(QTest::qWaitFor([&] { return IsStored("locked"); }, Patience));
    EXPECT_FALSE(form->findChild<QWidget*>("cmdApply")->isEnabled());
}

TEST_F(MapSharingOnServerTest, AStepThatSomebodyElseHasOvertakenIsNotUndone)
{
    QWidget* form = WithAnEdit();
    Apply(*form);
    ASSERT_TRUE(IsStored("locked"));
    ChangeElsewhere("locked = FALSE");
    MessageBoxRobot user{BoxKey::Enter};
    m_window->findChild<QAction*>("actUndo")->trigger();
    EXPECT_TRUE(user.Only().text.contains("another program")) << qPrintable(user.Only().text);
    EXPECT_TRUE(IsStored("NOT locked"));
}

} // namespace Orvane
