// SPDX-License-Identifier: MIT
#include "examples/dock_host/DockHost.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/undo/UndoHistory.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace Orvane::Testing {
namespace {

const QString EditorID = QStringLiteral("Main");

/// The example host, with the component as a plug-in and the actions of a user.
class DockHost : public HostKitTest
{
protected:
    DockHost()
    {
        QCoreApplication::setOrganizationName(QStringLiteral("Orvane"));
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
        QSettings().clear();
        AddLayer(16, QStringLiteral("Rivers"), 1);
        AddLayer(17, QStringLiteral("Roads"), 2);
        m_client.SetMainWindow(&m_window);
        m_component.Library().Initialise(&m_client);
        m_window.resize(1000, 700);
        m_window.show();
        m_component.Library().NewStyleEditor(EditorID)->Visible(true);
    }

    IStyleEditor* Editor() { return m_component.Library().GetStyleEditor(EditorID); }
    IStyleEditorForm& Form() { return dynamic_cast<IStyleEditorForm&>(*Editor()); }
    QWidget* Control(const char* name) { return m_window.findChild<QWidget*>(QLatin1String(name)); }

    QModelIndex Node(const QString& name)
    {
        const auto* tree = dynamic_cast<QTreeView*>(Control("tvLayers2"));
        return tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, name).value(0);
    }

    void ClickLayer(const QString& name)
    {
        auto* tree = dynamic_cast<QTreeView*>(Control("tvLayers2"));
        ASSERT_TRUE(Node(name).isValid()) << qPrintable(name);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(Node(name)).center());
    }

    void ClickVisible() { QTest::mouseClick(Control("chkVisible")->findChild<QCheckBox*>(), Qt::LeftButton); }

    void PressCloseButtonOfDock()
    {
        auto* button
            = m_window.Dock().findChild<QAbstractButton*>(QStringLiteral("qt_dockwidget_closebutton"));
        QTest::mouseClick(button, Qt::LeftButton);
    }

    QTemporaryDir m_folder;
    StandardShellServices m_services;
    MapWindow m_window;
    DockClient m_client{Database(), m_services, m_window};
    StyleEditorPlugin m_component;
};

TEST_F(DockHost, ShowsTheEditorInItsDockWithItsOwnNames)
{
    EXPECT_TRUE(m_window.Dock().isVisible());
    EXPECT_EQ(m_window.Dock().windowTitle(), QStringLiteral("Layer Control"));
    EXPECT_TRUE(Node(QStringLiteral("Roads (17)")).isValid());
    EXPECT_TRUE(Editor()->Visible());
}

TEST_F(DockHost, DrawsTheLayersAgainWhenOneIsChanged)
{
    auto* map = dynamic_cast<QListWidget*>(m_window.centralWidget());
    m_window.Draw(Database());
    ASSERT_EQ(map->count(), 2);
    EXPECT_EQ(map->item(0)->text(), QStringLiteral("Rivers"));
    Database().Execute(QStringLiteral("UPDATE Layers SET Name = 'Brooks' WHERE LayerID = 16"));
    ClickLayer(QStringLiteral("Roads (17)"));
    ClickVisible();
    QTest::mouseClick(Control("cmdApply"), Qt::LeftButton);
    EXPECT_EQ(map->item(0)->text(), QStringLiteral("Brooks"));
}

TEST_F(DockHost, RefusesUndoWhileTheDockedEditorHoldsEdits)
{
    ClickLayer(QStringLiteral("Roads (17)"));
    ClickVisible();
    QTest::mouseClick(Control("cmdApply"), Qt::LeftButton);
    EXPECT_THAT(Get(17, "Visible"), IsFlag(false));
    ClickVisible();
    EXPECT_EQ(ErrorOf([&] { m_client.History().Undo(); }), int(HostError::EditsPending));
    QTest::keyClick(Control("tvLayers2"), Qt::Key_Escape);
    m_client.History().Undo();
    EXPECT_THAT(Get(17, "Visible"), IsFlag(true));
    EXPECT_TRUE(Control("chkVisible")->findChild<QCheckBox*>()->isChecked()) << "it was read again";
}

TEST_F(DockHost, ReachesTheDockedEditorWithNewsOfItsLayers)
{
    AddLayer(18, QStringLiteral("Fields"), 3);
    m_client.RefreshEditors();
    EXPECT_TRUE(Node(QStringLiteral("Fields (18)")).isValid());
    Database().Execute(QStringLiteral("UPDATE Layers SET Name = 'Meadows' WHERE LayerID = 18"));
    m_client.InvalidateLayerNames();
    m_client.RefreshListedNames({18});
    EXPECT_TRUE(Node(QStringLiteral("Meadows (18)")).isValid());
}

TEST_F(DockHost, ClosingTheDockAppliesWhatTheUserWants)
{
    ClickLayer(QStringLiteral("Roads (17)"));
    ClickVisible();
    MessageBoxRobot user{BoxKey::Yes};
    PressCloseButtonOfDock();
    EXPECT_EQ(user.Only().owner, &m_window);
    EXPECT_THAT(Get(17, "Visible"), IsFlag(false));
    EXPECT_EQ(Editor(), nullptr);
    EXPECT_FALSE(m_window.Dock().isVisible());
    EXPECT_TRUE(QSettings().contains(QStringLiteral("DrawStyleEditor::Main")));
}

TEST_F(DockHost, ClosingTheWindowAsksTheDockedEditorAndRemembersTheDock)
{
    m_window.addDockWidget(Qt::LeftDockWidgetArea, &m_window.Dock());
    ClickLayer(QStringLiteral("Roads (17)"));
    ClickVisible();
    MessageBoxRobot user{BoxKey::Yes};
    m_window.close();
    EXPECT_THAT(Get(17, "Visible"), IsFlag(false));
    MapWindow later;
    later.Restore();
    EXPECT_EQ(later.dockWidgetArea(&later.Dock()), Qt::LeftDockWidgetArea);
    EXPECT_FALSE(later.Dock().isHidden());
}

TEST_F(DockHost, OpensTheEditorAgainInTheSameDock)
{
    PressCloseButtonOfDock();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    m_component.Library().NewStyleEditor(EditorID)->Visible(true);
    EXPECT_TRUE(m_window.Dock().isVisible());
    ClickLayer(QStringLiteral("Roads (17)"));
    EXPECT_TRUE(Control("chkVisible")->isVisible());
}

TEST(DockHostProgram, SaysWhatIsWrongWithAFileThatIsNoMap)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("list.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a shopping list");
    file.close();
    QProcess program;
    program.start(QStringLiteral(DOCK_HOST), {file.fileName()});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("list.txt"));
}

} // namespace
} // namespace Orvane::Testing
