// SPDX-License-Identifier: MIT
#include "shell/MainWindow.h"

#include "hostkit/windows/LongWork.h"
#include "mapkit/canvas/MapCanvas.h"
#include "mapkit/common/Guard.h"
#include "mapkit/document/MapDocument.h"
#include "shell/actions/DataActions.h"
#include "shell/actions/DockChoice.h"
#include "shell/actions/EditActions.h"
#include "shell/actions/LayerPropertiesActions.h"
#include "shell/actions/MapSystemActions.h"
#include "shell/actions/RenderingActions.h"
#include "shell/actions/SchemeActions.h"
#include "shell/actions/ThemeActions.h"
#include "shell/help/HelpActions.h"
#include "shell/map/ImportPlan.h"
#include "shell/map/MapSession.h"
#include "shell/map/MapSharing.h"
#include "shell/map/TableImport.h"
#include "shell/map/TableQuestions.h"
#include "shell/output/OutputActions.h"
#include "shell/servers/ServerActions.h"
#include "shell/table/AttributeTables.h"
#include "shell/tools/ToolActions.h"
#include "shell/view/MapMenu.h"
#include "shell/view/ViewActions.h"
#include "shell/window/DroppedFiles.h"
#include "shell/window/EmptyMapHint.h"
#include "shell/window/Icons.h"
#include "shell/window/MapNotice.h"
#include "shell/window/MapStatus.h"
#include "shell/window/RecentMapsMenu.h"
#include "shell/window/RunWithProgress.h"
#include "shell/window/WindowPlace.h"
#include "ui_MainWindow.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTimer>

#include <exception>

namespace Orvane {

namespace {

bool IsMapFile(const QString& path)
{
    return QFileInfo(path).suffix() == QLatin1String("orvane");
}

} // namespace

MainWindow::MainWindow(CallTrace* trace)
    : m_ui(std::make_unique<Ui::MainWindow>()), m_trace(trace), m_layerControl(trace)
{
    m_ui->setupUi(this);
    setWindowIcon(ProgramIcon());
    setCentralWidget(m_ui->canvas);
    SetIcons();
    m_status = new MapStatus(*statusBar(), Canvas());
    m_hint = std::make_unique<EmptyMapHint>(Canvas());
    m_edits = std::make_unique<EditActions>(
        EditActions::Actions{m_ui->actUndo, m_ui->actRedo, m_ui->actUndoOpening}, *this);
    m_data = std::make_unique<DataActions>(*m_ui->menuFile, m_ui->actOpenData, *this);
    m_recent = std::make_unique<RecentMapsMenu>(*m_ui->menuRecent, *this);
    m_tools = std::make_unique<ToolActions>(*this, Canvas(), *m_ui->menuTools, *m_ui->toolBarMap);
    m_views = std::make_unique<ViewActions>(
        *this, Canvas(), m_tools->Selection(),
        ViewActions::Place{*m_ui->menuView, *m_ui->toolBar, *m_ui->actZoomAll});
    m_mapMenu
        = std::make_unique<MapMenu>(Canvas(), *this, MapMenu::Shared{*m_ui->actZoomAll, m_views->Previous()});
    m_schemes = std::make_unique<SchemeActions>(*m_ui->menuSchemes, *statusBar(), m_layerControl, *this);
    m_sharing = std::make_unique<MapSharing>(*this, [this] { ShowMapAgain(); });
    m_servers = std::make_unique<ServerActions>(*m_ui->menuFile, m_ui->actSaveMapAs, *this);
    m_sharing->ShowIn(*statusBar());
    m_files = std::make_unique<MapFiles>(MapFiles::Window{
        *this, m_layerControl, *m_sharing, *m_servers, [this]() -> MapDocument& { return Document(); },
        [this](auto document, const SourceContents& contents, MapFiles::Opening opening) {
            Use(std::move(document), contents, opening);
        }});
    m_themes = std::make_unique<ThemeActions>(*m_ui->menuThemes, m_layerControl, *this);
    m_dock = std::make_unique<DockChoice>(*m_ui->actDockLayerControl, *this);
    m_dock->AddSwitchTo(*m_ui->menuView, *m_ui->toolBar, *m_ui->actLayerControl);
    ConnectActions();
    m_output = new OutputActions(*this, Canvas());
    m_output->AddTo(*m_ui->menuFile, m_ui->actQuit);
    m_renderings = std::make_unique<RenderingActions>(*this, *m_ui->menuLayers);
    m_system
        = std::make_unique<MapSystemActions>(*this, *m_ui->menuView, *statusBar(), *new MapNotice(Canvas()));
    m_properties = std::make_unique<LayerPropertiesActions>(*this, *m_ui->menuLayers, m_system->Catalogue());
    ConnectSystems();
    m_help = std::make_unique<HelpActions>(*this, *m_ui->menuHelp, *m_ui->actAbout);
    m_tables = std::make_unique<AttributeTables>(*this, Canvas(), m_tools->Selection(), *m_ui->menuLayers);
    ShareKeys();
    using WindowPlace::Beside;
    WindowPlace::Restore(*this, m_dock->IsChosen() ? Beside::Nothing : Beside::LayerControl);
    m_dock->NoteRestored();
    Use(MapDocument::Untitled());
}

MainWindow::~MainWindow() = default;

MapCanvas& MainWindow::Canvas()
{
    return *m_ui->canvas;
}

MapDocument& MainWindow::Document()
{
    return m_session->Document();
}

void MainWindow::OpenMap(const QString& path)
{
    m_files->Open(path);
}

void MainWindow::AddData(const QStringList& paths)
{
    ImportPlan plan = ReadOrGiveUp(
        this, tr("Opening map data"),
        [data = TableQuestions::FindData(paths, *this), target = TargetOf(*m_session)](Progress& progress) {
            return PlanImport(data, target, progress);
        });
    AddPlanned(std::move(plan));
}

void MainWindow::AddTables()
{
    const QStringList tables = m_servers->AskForTables();
    if (tables.isEmpty())
        return;
    AddPlanned(ReadOrGiveUp(
        this, tr("Opening map data"),
        [tables, server = Document().Tables(), target = TargetOf(*m_session)](Progress& progress) {
            return PlanImport(LookIntoTables(server, tables, progress), target, progress);
        }));
}

void MainWindow::AddPlanned(ImportPlan plan)
{
    m_system->Settle(plan, this);
    const FoundData& found = plan.data;
    const SourceContents contents = ReadOrGiveUp(
        this, tr("Reading map data"), [found, system = SystemFor(Document(), found)](Progress& progress) {
            return ReadFound(found, system, progress);
        });
    if (!m_layerControl.WithEditorsClosed([&] { AddFound(found, contents); }))
        return;
    m_system->Tell(plan);
    m_data->ShowProblems(found.ProblemText());
}

void MainWindow::AddFound(const FoundData& found, const SourceContents& contents)
{
    const bool first = !Document().HasLayers();
    std::vector<qint32> layerIDs;
    m_session->Shell().RecordStep([&] {
        const LongWork work(Document().Database(), tr("Adding layers to the map"), this);
        layerIDs = AddToMap(Document(), found);
        return tr("Open Map Data");
    });
    if (first)
        m_session->BeginSchemes();
    ReadMap(first ? MapSession::View::All : MapSession::View::Stays, WithIDs(contents, layerIDs));
}

void MainWindow::ShowLayerControl()
{
    m_layerControl.Show();
    m_session->Shell().RaiseEditor(QStringLiteral("Main"));
}

void MainWindow::ShowLayerControlAgain()
{
    if (m_dock->WasOpen())
        ShowLayerControl();
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    const WindowPlace::Place place = WindowPlace::Of(*this); // with the dock, which closes with the map
    bool left = false;
    Guard(this, [&] { left = LeaveMap(); });
    event->setAccepted(left);
    if (left) {
        WindowPlace::Store(place);
        m_dock->Store();
    }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event)
{
    TakeAsCopy(*event);
}

void MainWindow::dropEvent(QDropEvent* event)
{
    const QStringList paths = LocalFiles(*event->mimeData());
    if (!TakeAsCopy(*event))
        return;
    // The program that the files come from waits until the drop has ended.
    QTimer::singleShot(0, this, [this, paths] {
        const bool isMap = paths.size() == 1 && IsMapFile(paths.first());
        Guard(this, [&] { isMap ? OpenMap(paths.first()) : AddData(paths); });
    });
}

void MainWindow::ConnectActions()
{
    const auto run = [this](QAction* action, void (MainWindow::*command)()) {
        connect(
            action, &QAction::triggered, this, [this, command] { Guard(this, [&] { (this->*command)(); }); });
    };
    run(m_ui->actLayerControl, &MainWindow::SwitchLayerControl);
    ConnectFiles();
    connect(m_ui->actQuit, &QAction::triggered, this, &QWidget::close);
    connect(m_ui->actZoomIn, &QAction::triggered, m_ui->canvas, &MapCanvas::ZoomIn);
    connect(m_ui->actZoomOut, &QAction::triggered, m_ui->canvas, &MapCanvas::ZoomOut);
    connect(m_ui->actZoomAll, &QAction::triggered, m_ui->canvas, &MapCanvas::ZoomToAll);
    connect(m_dock.get(), &DockChoice::EditorWanted, this, [this] {
        Guard(this, [this] { ShowLayerControl(); });
    });
    connect(m_recent.get(), &RecentMapsMenu::Chosen, this, &MainWindow::OpenMap);
    connect(m_data.get(), &DataActions::DataChosen, this, [this](const QStringList& paths) {
        Guard(this, [&] { AddData(paths); });
    });
    connect(m_data.get(), &DataActions::SaveAsWanted, m_ui->actSaveMapAs, &QAction::trigger);
    connect(m_data.get(), &DataActions::Told, this, [this](const QString& message) {
        statusBar()->showMessage(message, ShortMessageTime);
    });
    connect(m_data.get(), &DataActions::DataChanged, this, &MainWindow::ShowSystem);
}

void MainWindow::ConnectFiles()
{
    const auto run = [this](QAction* action, void (MapFiles::*command)()) {
        connect(action, &QAction::triggered, this, [this, command] {
            Guard(this, [&] { ((*m_files).*command)(); });
        });
    };
    run(m_ui->actNewMap, &MapFiles::New);
    run(m_ui->actOpenMap, &MapFiles::AskAndOpen);
    run(m_ui->actSaveMapAs, &MapFiles::SaveAs);
    ConnectServers();
}

void MainWindow::ConnectServers()
{
    const auto run = [this](void (ServerActions::*wanted)(), void (MapFiles::*command)()) {
        connect(m_servers.get(), wanted, this, [this, command] {
            Guard(this, [&] { ((*m_files).*command)(); });
        });
    };
    run(&ServerActions::OpenWanted, &MapFiles::AskAndOpenFromServer);
    run(&ServerActions::SaveWanted, &MapFiles::SaveOnServer);
    run(&ServerActions::DataFolderChanged, &MapFiles::OpenAgain);
    connect(m_servers.get(), &ServerActions::TablesWanted, this, [this] {
        Guard(this, [this] { AddTables(); });
    });
}

void MainWindow::ConnectSystems()
{
    const auto readAgain = [this] { ReadMap(MapSession::View::Stays); };
    connect(m_system.get(), &MapSystemActions::SystemChosen, this, readAgain);
    connect(m_system.get(), &MapSystemActions::SystemShown, this, &MainWindow::ShowSystem);
    connect(m_properties.get(), &LayerPropertiesActions::SystemsChosen, this, readAgain);
}

void MainWindow::ShowSystem()
{
    m_tools->SetSystem(Document().System());
    m_status->SetSystem(Document().System());
    m_system->ShowSystem();
}

// The keys of the commands work in the layer control too, except those that its lists use.
void MainWindow::ShareKeys()
{
    for (QAction* action : findChildren<QAction*>()) {
        const QKeySequence keys = action->shortcut();
        const bool isCommand = !keys.isEmpty() && keys[0].keyboardModifiers().testFlag(Qt::ControlModifier);
        if (isCommand && action->shortcutContext() == Qt::WindowShortcut)
            action->setShortcutContext(Qt::ApplicationShortcut);
    }
}

void MainWindow::SetIcons()
{
    m_ui->actNewMap->setIcon(ShellIcon(IconName::NewMap, palette()));
    m_ui->actOpenMap->setIcon(ShellIcon(IconName::OpenMap, palette()));
    m_ui->actOpenData->setIcon(ShellIcon(IconName::OpenData, palette()));
    m_ui->actUndo->setIcon(ShellIcon(IconName::Undo, palette()));
    m_ui->actRedo->setIcon(ShellIcon(IconName::Redo, palette()));
    m_ui->actZoomIn->setIcon(ShellIcon(IconName::ZoomIn, palette()));
    m_ui->actZoomOut->setIcon(ShellIcon(IconName::ZoomOut, palette()));
    m_ui->actZoomAll->setIcon(ShellIcon(IconName::ZoomAll, palette()));
    m_ui->actLayerControl->setIcon(ShellIcon(IconName::LayerControl, palette()));
}

// From within the dock there is nothing to open or to go to.
void MainWindow::SwitchLayerControl()
{
    if (m_dock->HasFocus())
        m_layerControl.Close(QStringLiteral("Main"));
    else
        ShowLayerControl();
}

// Nothing keeps the session that ends, even if one of its users cannot use the new one.
void MainWindow::Use(
    std::unique_ptr<MapDocument> document, const SourceContents& contents, MapFiles::Opening opening)
{
    auto session = std::make_unique<MapSession>(std::move(document), Canvas(), *this, m_trace);
    m_layerControl.Use(*session); // first: it still uses the client of the old session
    m_session = std::move(session);
    std::exception_ptr failure;
    const auto handOne = [&](auto& user, auto& used) {
        try {
            user.Use(used);
        } catch (...) {
            failure = failure ? failure : std::current_exception();
        }
    };
    const auto handOver = [&](auto&... users) { (handOne(users, *m_session), ...); };
    handOver(
        *m_edits, *m_data, *m_tools, *m_views, *m_schemes, *m_themes, *m_tables, *m_renderings, *m_properties,
        *m_mapMenu, *m_output, *m_sharing, *m_dock, *m_system);
    handOne(*m_servers, Document());
    const QString name = Document().Name();
    setWindowFilePath(Document().FilePath());
    setWindowTitle(name.isEmpty() ? tr("New map - Orvane") : tr("%1 - Orvane").arg(m_servers->TitleOfMap()));
    if (opening == MapFiles::Opening::ByUser && !failure && !m_sharing->IsShared())
        m_schemes->ApplyAtOpening(); // it would take back what others are doing
    ReadMap(MapSession::View::All, contents);
    if (failure)
        std::rethrow_exception(failure);
}

bool MainWindow::LeaveMap()
{
    return m_layerControl.Close() && m_files->KeepUntitledMap();
}

void MainWindow::ShowMapAgain()
{
    using View = MapSession::View;
    ReadMap(Canvas().Layers().empty() ? View::All : View::Stays);
    m_session->Shell().RefreshEditors();
    statusBar()->showMessage(
        tr("The map was changed in another window and has been reloaded."), ShortMessageTime);
}

void MainWindow::ReadMap(MapSession::View view, const SourceContents& known)
{
    const QString problems = m_session->ReadAndShow(view, known);
    ShowSystem();
    m_data->ShowProblems(problems);
}

} // namespace Orvane
