// SPDX-License-Identifier: MIT
#include "qgis/plugin/LayerControlPlugin.h"

#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/undo/UndoHistory.h"
#include "hostkit/windows/EditorDock.h"
#include "qgis/plugin/ComponentFile.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/plugin/QgisTexts.h"
#include "qgis/plugin/QgisWindow.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QScopeGuard>
#include <qgisinterface.h>
#include <qgsapplication.h>
#include <qgsmessagebar.h>
#include <qgsproject.h>

namespace Orvane {

namespace {

const QString EditorID = QStringLiteral("Main");
constexpr int PendingEditsInterval = 500; // milliseconds

// The component is not loaded yet when the menus get their texts.
void InstallTexts()
{
    const QFileInfo component(ComponentFile());
    QgisTexts::Install(
        QLocale(QgsApplication::locale()),
        component.isAbsolute() ? component.dir().filePath(QStringLiteral("translations")) : QString());
}

// The component takes the language of the default locale, which QGIS uses for numbers only.
std::unique_ptr<StyleEditorPlugin> LoadInLanguageOfQgis()
{
    const QLocale numbers;
    const auto restore = qScopeGuard([&numbers] { QLocale::setDefault(numbers); });
    QLocale::setDefault(QLocale(QgsApplication::locale()));
    return std::make_unique<StyleEditorPlugin>(ComponentFile());
}

} // namespace

LayerControlPlugin::LayerControlPlugin(QgisInterface& qgis) : m_qgis(qgis)
{
    m_pendingEdits.setInterval(PendingEditsInterval);
    connect(&m_pendingEdits, &QTimer::timeout, this, &LayerControlPlugin::WatchPendingEdits);
}

LayerControlPlugin::~LayerControlPlugin()
{
    unload();
}

void LayerControlPlugin::initGui()
{
    InstallTexts();
    AddActions();
    AddDock();
    m_isShown = true;
}

void LayerControlPlugin::unload()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    m_pendingEdits.stop();
    m_component.reset();
    m_session.reset();
    for (QAction* action : {&m_show, &m_undo, &m_redo})
        m_qgis.removePluginMenu(tr("Layer Control"), action);
    m_qgis.removeToolBarIcon(&m_show);
    delete m_dock;
    QgisTexts::Remove();
}

void LayerControlPlugin::AddDock()
{
    m_dock = new EditorDock(EditorID, m_qgis.mainWindow());
    m_dock->setWindowTitle(tr("Layer Control"));
    connect(m_dock, &EditorDock::EditorWanted, this, &LayerControlPlugin::ShowFromMenu);
    QgisWindow::AddDock(m_qgis, *m_dock);
}

void LayerControlPlugin::AddActions()
{
    AddAction(m_show, tr("Layer Control"), &LayerControlPlugin::ShowFromMenu);
    AddAction(m_undo, tr("Undo Layer Change"), &LayerControlPlugin::Undo);
    AddAction(m_redo, tr("Redo Layer Change"), &LayerControlPlugin::Redo);
    m_show.setIcon(QIcon(QStringLiteral(":/orvane/qgis/orvane.svg")));
    m_show.setObjectName(QStringLiteral("OrvaneLayerControl"));
    m_qgis.addToolBarIcon(&m_show);
    ShowSteps();
}

void LayerControlPlugin::AddAction(QAction& action, const QString& text, void (LayerControlPlugin::*slot)())
{
    action.setText(text);
    connect(&action, &QAction::triggered, this, slot);
    m_qgis.addPluginToMenu(tr("Layer Control"), &action);
}

// Without a component there is no session that could guard this.
void LayerControlPlugin::ShowFromMenu()
{
    try {
        ShowEditor();
    } catch (const std::exception& error) {
        m_dock->hide();
        Tell(QString::fromUtf8(error.what()));
    } catch (...) {
        m_dock->hide();
        Tell(tr("An unknown error has occurred."));
    }
}

void LayerControlPlugin::ShowEditor()
{
    if (!m_component)
        Start();
    IStyleEditorLibrary& library = m_component->Library();
    IStyleEditor* editor = library.GetStyleEditor(EditorID);
    if (!editor)
        editor = library.NewStyleEditor(EditorID);
    editor->Visible(true);
    m_dock->show();
    m_pendingEdits.start();
}

void LayerControlPlugin::Start()
{
    std::unique_ptr<StyleEditorPlugin> component = LoadInLanguageOfQgis();
    m_session = std::make_unique<ProjectSession>(*QgsProject::instance());
    ConnectSession();
    component->Library().Initialise(&m_session->Client());
    m_component = std::move(component);
}

void LayerControlPlugin::ConnectSession()
{
    QgisClient& client = m_session->Client();
    connect(m_session.get(), &ProjectSession::Failed, this, &LayerControlPlugin::Tell);
    connect(&client.History(), &UndoHistory::Changed, this, &LayerControlPlugin::ShowSteps);
    client.SetMainWindow(m_qgis.mainWindow());
    client.SetDock(m_dock);
    client.SetCommands(QgisWindow::Commands(m_qgis));
    QgisWindow::ConnectPanel(m_qgis, *m_session);
    m_session->ReadSchemes();
    ShowSteps();
}

void LayerControlPlugin::Undo()
{
    m_session->Guard([this] { m_session->Client().History().Undo(); });
}

void LayerControlPlugin::Redo()
{
    m_session->Guard([this] { m_session->Client().History().Redo(); });
}

void LayerControlPlugin::ShowSteps()
{
    const UndoHistory* history = m_session ? &m_session->Client().History() : nullptr;
    m_undo.setEnabled(history && history->CanUndo());
    m_redo.setEnabled(history && history->CanRedo());
    m_undo.setText(m_undo.isEnabled() ? history->UndoText() : tr("Undo Layer Change"));
    m_redo.setText(m_redo.isEnabled() ? history->RedoText() : tr("Redo Layer Change"));
}

// QGIS tells nobody that a project is about to be closed, but it asks the user if the project has changed.
void LayerControlPlugin::WatchPendingEdits()
{
    if (!m_session)
        return;
    m_session->Guard([this] {
        QgsProject& project = *QgsProject::instance();
        if (!project.isDirty() && m_session->Client().HasPendingEdits())
            project.setDirty(true);
    });
}

void LayerControlPlugin::Tell(const QString& message)
{
    m_qgis.messageBar()->pushMessage(tr("Layer Control"), message, Qgis::MessageLevel::Warning);
}

} // namespace Orvane
