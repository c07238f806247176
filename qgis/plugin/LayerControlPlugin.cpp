// SPDX-License-Identifier: MIT
#include "qgis/plugin/LayerControlPlugin.h"

#include "hostkit/StyleEditorPlugin.h"
#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/UndoHistory.h"
#include "hostkit/windows/EditorDock.h"
#include "qgis/plugin/ComponentFile.h"
#include "qgis/plugin/LateEnd.h"
#include "qgis/plugin/ProjectSession.h"
#include "qgis/plugin/QgisTexts.h"
#include "qgis/plugin/QgisWindow.h"
#include "qgis/plugin/SchemeCommands.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorLibrary.h>

#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QMainWindow>
#include <QScopeGuard>
#include <QThread>
#include <qgisinterface.h>
#include <qgsapplication.h>
#include <qgsmessagebar.h>
#include <qgsproject.h>

#include <utility>

namespace Orvane {

namespace {

const QString EditorID = QStringLiteral("Main");
constexpr int PendingEditsInterval = 500; // milliseconds
constexpr int SettlingTime = 300; // milliseconds; the window system maximises the window meanwhile

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

// Of the user's profile.
QString StartupFile()
{
    return QDir(QgsApplication::qgisSettingsDirPath())
        .absoluteFilePath(QStringLiteral("orvane/startup.orvane"));
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
    m_isShown = true;
    Guard([this] {
        InstallTexts();
        AddActions();
        AddDock();
    });
}

void LayerControlPlugin::unload()
{
    if (!m_isShown)
        return;
    m_isShown = false;
    m_pendingEdits.stop();
    m_settling.stop();
    if (m_dock)
        QgisWindow::SaveSize(m_qgis, *m_dock);
    Guard([this] { EndSession(); });
    RemoveActions();
    delete m_dock;
    QgisTexts::Remove();
}

void LayerControlPlugin::EndSession()
{
    if (!m_session)
        return;
    const bool isQuitting = QThread::currentThread()->loopLevel() == 0; // QGIS has asked the user
    if (!isQuitting && m_session->Client().HasPendingEdits())
        Tell(tr("Changes in the layer control that were not applied have been dropped."));
    m_session->Client().SetDock(nullptr);
    m_session->Client().History().disconnect(this);
    m_session->Mirror().SetPanel(nullptr);
    auto parts = std::make_unique<LateEnd::Parts>();
    parts->session = std::move(m_session);
    parts->schemes = std::move(m_schemes);
    parts->component = std::move(m_component);
    LateEnd::Of(std::move(parts));
}

void LayerControlPlugin::RemoveActions()
{
    for (QAction* action : {&m_show, &m_undo, &m_redo})
        m_qgis.removePluginMenu(tr("Layer Control"), action);
    for (const auto& action : m_schemeActions)
        m_qgis.removePluginMenu(tr("Layer Control"), action.get());
    m_schemeActions.clear();
    m_qgis.removeToolBarIcon(&m_show);
}

void LayerControlPlugin::AddDock()
{
    m_dock = new EditorDock(EditorID, m_qgis.mainWindow());
    m_dock->setWindowTitle(tr("Layer Control"));
    connect(m_dock, &EditorDock::EditorWanted, this, &LayerControlPlugin::ShowRestored);
    QgisWindow::AddDock(m_qgis, *m_dock);
    if (!m_qgis.mainWindow()->isVisible())
        ShowWhenSettled();
}

void LayerControlPlugin::ShowRestored()
{
    if (!m_settling.isActive() && !m_isStarting)
        ShowFromMenu();
}

// QGIS starts, and restores its panels before its window has the size of the last time: an editor in the
// dock would now take the room of the others.
void LayerControlPlugin::ShowWhenSettled()
{
    m_isStarting = true;
    m_settling.setSingleShot(true);
    m_settling.setInterval(SettlingTime);
    connect(&m_qgis, &QgisInterface::initializationCompleted, this, [this] {
        m_isStarting = false;
        m_settling.start();
    });
    connect(&m_settling, &QTimer::timeout, this, [this] {
        if (!m_dock || !m_dock->isVisible() || m_dock->widget())
            return;
        ShowFromMenu();
        QgisWindow::RestoreSize(m_qgis, *m_dock);
    });
}

void LayerControlPlugin::AddActions()
{
    AddAction(m_show, tr("Layer Control"), &LayerControlPlugin::ShowFromMenu);
    AddAction(m_undo, tr("Undo Layer Change"), &LayerControlPlugin::Undo);
    AddAction(m_redo, tr("Redo Layer Change"), &LayerControlPlugin::Redo);
    AddSchemeActions();
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

void LayerControlPlugin::AddSchemeActions()
{
    AddSchemeAction("OrvaneImportScheme", tr("Import Scheme..."), &SchemeCommands::ImportFile);
    AddSchemeAction("OrvaneExportScheme", tr("Export Scheme..."), &SchemeCommands::ExportFile);
    AddSchemeAction("OrvaneImportThemes", tr("Import Map Themes..."), &SchemeCommands::ImportThemes);
    AddSchemeAction("OrvaneExportTheme", tr("Export Scheme as Map Theme..."), &SchemeCommands::ExportTheme);
}

void LayerControlPlugin::AddSchemeAction(const char* objectName, const QString& text, SchemeCommand command)
{
    auto action = std::make_unique<QAction>(text);
    action->setObjectName(QLatin1String(objectName));
    connect(action.get(), &QAction::triggered, this, [this, command] {
        Guard([this, command] {
            Start();
            m_session->Guard([&] { (*m_schemes.*command)(); });
        });
    });
    m_qgis.addPluginToMenu(tr("Layer Control"), action.get());
    m_schemeActions.push_back(std::move(action));
}

void LayerControlPlugin::ShowFromMenu()
{
    if (!Guard([this] { ShowEditor(); }) && m_dock)
        m_dock->hide();
}

IStyleEditor* LayerControlPlugin::Editor() const
{
    return m_component ? m_component->Library().GetStyleEditor(EditorID) : nullptr;
}

void LayerControlPlugin::ShowEditor()
{
    Start();
    IStyleEditor* editor = Editor();
    const bool isNew = !editor;
    if (isNew)
        editor = m_component->Library().NewStyleEditor(EditorID);
    editor->Visible(true);
    m_isEditorOld = m_isEditorOld && !isNew;
    m_dock->show();
    m_pendingEdits.start();
}

void LayerControlPlugin::Start()
{
    if (m_component)
        return;
    std::unique_ptr<StyleEditorPlugin> component = LoadInLanguageOfQgis();
    m_session = std::make_unique<ProjectSession>(*QgsProject::instance());
    m_schemes = std::make_unique<SchemeCommands>(*m_qgis.mainWindow(), *m_session);
    auto unfinished = qScopeGuard([this] {
        m_schemes.reset();
        m_session.reset();
    });
    ConnectSession();
    component->Library().Initialise(&m_session->Client());
    unfinished.dismiss();
    m_component = std::move(component);
}

void LayerControlPlugin::ConnectSession()
{
    QgisClient& client = m_session->Client();
    connect(m_session.get(), &ProjectSession::Failed, this, &LayerControlPlugin::Tell);
    connect(m_session.get(), &ProjectSession::Done, this, &LayerControlPlugin::TellDone);
    connect(m_schemes.get(), &SchemeCommands::Done, this, &LayerControlPlugin::TellDone);
    connect(&client.Notifications(), &HostNotifications::SchemesSavedToStartup, this, [this] {
        TellDone(tr("All schemes of this project were saved for new projects."));
    });
    connect(m_session.get(), &ProjectSession::RendererStylesChanged, this, [this] { m_isEditorOld = true; });
    connect(&client.History(), &UndoHistory::Changed, this, &LayerControlPlugin::ShowSteps);
    m_session->SetBeforeSaving([this](QDomDocument& file) { AskAboutEdits(file); });
    client.SetMainWindow(m_qgis.mainWindow());
    client.SetDock(m_dock);
    m_session->SetStartupFile(StartupFile());
    client.SetCommands(QgisWindow::Commands(m_qgis));
    QgisWindow::ConnectPanel(m_qgis, *m_session);
    m_session->ReadSchemes();
    ShowSteps();
}

void LayerControlPlugin::Undo()
{
    if (m_session)
        m_session->Undo();
}

void LayerControlPlugin::Redo()
{
    if (m_session)
        m_session->Redo();
}

void LayerControlPlugin::ShowSteps()
{
    const UndoHistory* history = m_session ? &m_session->Client().History() : nullptr;
    m_undo.setEnabled(history && history->CanUndo());
    m_redo.setEnabled(history && history->CanRedo());
    m_undo.setText(m_undo.isEnabled() ? history->UndoText() : tr("Undo Layer Change"));
    m_redo.setText(m_redo.isEnabled() ? history->RedoText() : tr("Redo Layer Change"));
}

void LayerControlPlugin::Tell(const QString& message)
{
    ShowMessage(message, Qgis::MessageLevel::Warning);
}

void LayerControlPlugin::TellDone(const QString& message)
{
    ShowMessage(message, Qgis::MessageLevel::Success);
}

// QGIS shows messages as rich text; names in them are anybody's.
void LayerControlPlugin::ShowMessage(const QString& message, Qgis::MessageLevel level)
{
    m_qgis.messageBar()->pushMessage(tr("Layer Control"), message.toHtmlEscaped(), level);
}

// Without a component there is no session that could guard this.
bool LayerControlPlugin::Guard(const std::function<void()>& act) noexcept
{
    try {
        act();
        return true;
    } catch (const std::exception& error) {
        Tell(QString::fromUtf8(error.what()));
    } catch (...) {
        Tell(tr("An unknown error has occurred."));
    }
    return false;
}

} // namespace Orvane
