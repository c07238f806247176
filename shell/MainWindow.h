// SPDX-License-Identifier: MIT
#pragma once

#include "shell/MapFiles.h"
#include "shell/actions/LayerControl.h"
#include "shell/map/MapSession.h"

#include <QMainWindow>
#include <QStringList>

#include <memory>

namespace Ui {
class MainWindow;
}

namespace Orvane {

class AttributeTables;
class CallTrace;
class DataActions;
class DockChoice;
class EditActions;
class EmptyMapHint;
class HelpActions;
class LayerPropertiesActions;
class MapCanvas;
class MapMenu;
class MapDocument;
class MapNotice;
class MapSharing;
class MapStatus;
class MapSystemActions;
class OutputActions;
class RenderingActions;
class RecentMapsMenu;
class ToolActions;
class SchemeActions;
class ServerActions;
class ThemeActions;
class ViewActions;
struct FoundData;
struct ImportPlan;

/// Orvane's window: one map, its menus and tools, and the layer control beside it.
///
///     MainWindow window;
///     window.show();
///     window.OpenMap(path);
///
/// OpenMap, AddData and ShowLayerControl raise errors; the menu commands show them.
class MainWindow : public QMainWindow
{
    Q_OBJECT
public:
    /// trace: writes each call between the map and the layer control; not owned, nullptr for none.
    explicit MainWindow(CallTrace* trace = nullptr);
    ~MainWindow() override;

    /// Opens another map file, unless the user keeps the current map, or does not want a file that is open
    /// elsewhere. The current map stays open when the file cannot be opened, or when the user cancels the
    /// reading of its data, which raises Cancelled.
    void OpenMap(const QString& path);
    /// Adds every layer of these files to the map. Files that cannot be read are named in one message. When
    /// the user cancels, the map is as before, and Cancelled or UserCancelled is raised.
    void AddData(const QStringList& paths);
    /// Opens the layer control, or brings it to the front.
    void ShowLayerControl();
    /// The same if it was open in its dock when the last run ended, and in the first run.
    void ShowLayerControlAgain();

    MapCanvas& Canvas();
    MapDocument& Document();
    MapSession& Session() { return *m_session; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ConnectActions();
    void ShareKeys();
    void SetIcons();
    void SwitchLayerControl();
    void ConnectFiles();
    void ConnectServers();
    void ConnectSystems();
    void ShowSystem();
    void AddTables();
    void AddPlanned(ImportPlan plan);
    void AddFound(const FoundData& found, const SourceContents& contents);
    void
    Use(std::unique_ptr<MapDocument> document, const SourceContents& contents = {},
        MapFiles::Opening opening = MapFiles::Opening::Other);
    bool LeaveMap();
    void ShowMapAgain();
    void ReadMap(MapSession::View view, const SourceContents& known = {});

    std::unique_ptr<Ui::MainWindow> m_ui;
    CallTrace* m_trace;
    std::unique_ptr<EmptyMapHint> m_hint;
    std::unique_ptr<EditActions> m_edits;
    std::unique_ptr<ToolActions> m_tools;
    std::unique_ptr<ViewActions> m_views;
    std::unique_ptr<MapMenu> m_mapMenu;
    std::unique_ptr<SchemeActions> m_schemes;
    std::unique_ptr<ThemeActions> m_themes;
    std::unique_ptr<MapSharing> m_sharing;
    std::unique_ptr<ServerActions> m_servers; // asks for passwords as long as the map is open
    std::unique_ptr<MapFiles> m_files;
    std::unique_ptr<MapSession> m_session;
    std::unique_ptr<DataActions> m_data;
    std::unique_ptr<RecentMapsMenu> m_recent;
    LayerControl m_layerControl; // ends before the session, whose client it uses
    std::unique_ptr<RenderingActions> m_renderings;
    std::unique_ptr<MapSystemActions> m_system;
    std::unique_ptr<LayerPropertiesActions> m_properties;
    std::unique_ptr<DockChoice> m_dock;
    std::unique_ptr<HelpActions> m_help;
    std::unique_ptr<AttributeTables> m_tables; // end before the selection, which they use
    OutputActions* m_output = nullptr; // owned by this window
    MapStatus* m_status = nullptr; // owned by the status bar
};

} // namespace Orvane
