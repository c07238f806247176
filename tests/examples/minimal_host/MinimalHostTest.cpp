// SPDX-License-Identifier: MIT
#include "hostkit/HostKitTest.h"
#include "hostkit/StandardClient.h"
#include "hostkit/StandardShellServices.h"
#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/lists/StoredList.h"
#include "hostkit/tracing/CallTrace.h"
#include "hostkit/tracing/TracingClient.h"
#include "hostkit/tracing/TracingLibrary.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QBuffer>
#include <QCheckBox>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

namespace Orvane::Testing {
namespace {

const QString Main = QStringLiteral("Main");
const QString ViewState = QStringLiteral("DrawStyleEditor::Main");

/// The example host, with the component as a plug-in and the actions of a user.
class MinimalHost : public HostKitTest
{
protected:
    MinimalHost()
    {
        m_client.SetSettingsFile(m_folder.filePath(QStringLiteral("settings.ini")));
        AddLayer(16, QStringLiteral("Rivers"), 1);
        AddLayer(17, QStringLiteral("Roads"), 2);
        Set(17, "Visible", false);
        QObject::connect(&m_client.Notifications(), &HostNotifications::EditorShown, [this](QWidget* form) {
            m_form = form;
        });
    }

    IStyleEditorClient& Client() { return m_client; }

    void ClickLayer(const QString& name)
    {
        auto* tree = m_form->findChild<QTreeView*>(QStringLiteral("tvLayers2"));
        ASSERT_TRUE(tree);
        const QModelIndexList found
            = tree->model()->match(tree->model()->index(0, 0), Qt::DisplayRole, name, 1, Qt::MatchExactly);
        ASSERT_EQ(found.size(), 1) << qPrintable(name);
        QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualRect(found[0]).center());
    }

    QWidget* Control(const char* name) { return m_form->findChild<QWidget*>(QLatin1String(name)); }

    QTemporaryDir m_folder;
    StandardShellServices m_services;
    StandardClient m_client{Database(), m_services};
    QWidget* m_form = nullptr;
};

// True when the lines occur in this order, possibly with others between them.
void ExpectInOrder(const QStringList& lines, const QStringList& expected)
{
    qsizetype from = 0;
    for (const QString& line : expected) {
        const qsizetype at = lines.indexOf(line, from);
        ASSERT_GE(at, 0) << "not found, or not in this order: " << qPrintable(line) << "\nin:\n"
                         << qPrintable(lines.join(u'\n'));
        from = at + 1;
    }
}

TEST_F(MinimalHost, ShowsTheLayerControlOfTheComponent)
{
    StyleEditorPlugin component;
    component.Library().Initialise(&m_client);
    IStyleEditor* editor = component.Library().NewStyleEditor(Main);
    editor->Visible(true);
    ASSERT_TRUE(m_form);
    EXPECT_TRUE(m_form->isVisible());
    EXPECT_EQ(m_form->windowTitle(), QStringLiteral("Layer Control"));
    editor->Visible(false);
    EXPECT_EQ(component.Library().GetStyleEditor(Main), nullptr);
}

TEST_F(MinimalHost, ItsTraceTellsTheStoryOfASession)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    CallTrace trace(buffer);
    TracingClient tracedClient(m_client, trace);
    StyleEditorPlugin component;
    TracingLibrary library(component.Library(), trace);
    Client().WriteSetting(nullptr, ViewState, QStringLiteral("9000:7000:LAYERS:EXPANDED"));
    QSignalSpy redrawn(&m_client.Notifications(), &HostNotifications::LayersChanged);

    static_cast<IStyleEditorLibrary&>(library).Initialise(&tracedClient);
    IStyleEditor* editor = static_cast<IStyleEditorLibrary&>(library).NewStyleEditor(Main);
    editor->Visible(true);
    ASSERT_TRUE(m_form);
    ClickLayer(QStringLiteral("Roads"));
    QTest::mouseClick(Control("chkVisible")->findChild<QCheckBox*>(), Qt::LeftButton);
    QTest::mouseClick(Control("cmdApply"), Qt::LeftButton);
    editor->Visible(false);

    EXPECT_THAT(Get(17, "Visible"), IsFlag(true));
    EXPECT_EQ(redrawn.count(), 1);
    ExpectInOrder(
        QString::fromUtf8(buffer.data()).split(u'\n'),
        {QStringLiteral("library.Initialise(client)"), QStringLiteral("client.GetShellServices()"),
         QStringLiteral("library.NewStyleEditor(\"Main\")"), QStringLiteral("editor.Visible(true)"),
         QStringLiteral("client.ReadSetting(\"DrawStyleEditor::Main\") -> \"9000:7000:LAYERS:EXPANDED\""),
         QStringLiteral("client.ShowEditor(form)"), QStringLiteral("recordset.Index(\"LayerIDIDX\")"),
         QStringLiteral("recordset.Seek(\"=\", 17) -> found"), QStringLiteral("recordset.Edit()"),
         QStringLiteral("recordset.SetField(\"Visible\", True)"), QStringLiteral("client.LayerChanged(17)"),
         QStringLiteral("recordset.Update()"), QStringLiteral("client.RedrawMap()"),
         QStringLiteral("editor.Visible(false)"), QStringLiteral("client.EditorClosed(form)"),
         QStringLiteral("client.WriteSetting(\"DrawStyleEditor::Main\", \"9000:7000:LAYERS:EXPANDED\")")});
    EXPECT_TRUE(buffer.data().contains(
        "database.OpenRecordset(\"SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name\")"));
}

TEST_F(MinimalHost, EndingTheProgramWithAnOpenEditorKeepsItsViewState)
{
    {
        StyleEditorPlugin component;
        component.Library().Initialise(&m_client);
        component.Library().NewStyleEditor(Main)->Visible(true);
    }
    EXPECT_TRUE(Client().ReadSetting(nullptr, ViewState).endsWith(QStringLiteral(":LAYERS:EXPANDED")));
}

TEST(MinimalHostProgram, SaysWhatIsWrongWithAFileThatIsNoMap)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("list.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("a shopping list");
    file.close();
    QProcess program;
    program.start(QStringLiteral(MINIMAL_HOST), {file.fileName()});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_EQ(program.exitCode(), 1);
    EXPECT_TRUE(program.readAllStandardError().contains("list.txt"));
}

TEST(MinimalHostProgram, MakesAMapThatIsMissing)
{
    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("map.ovl"));
    QProcess program;
    program.start(QStringLiteral(MINIMAL_HOST), {path});
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return QFileInfo(path).size() > 0 || program.state() == QProcess::NotRunning; }, 60000));
    program.kill();
    program.waitForFinished();
    const auto map = LayerStores::Open(path);
    EXPECT_EQ(StoredList::Layers(*map).size(), 3U);
    ASSERT_EQ(StoredList::Groups(*map).size(), 1U);
    EXPECT_EQ(StoredList::Groups(*map)[0].layers, (std::vector<qint32>{1, 2, 3}));
}

} // namespace
} // namespace Orvane::Testing
