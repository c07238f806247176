// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/canvas/ZoomTool.h"
#include "shell/features/FeatureSelection.h"
#include "shell/features/Highlight.h"
#include "shell/tools/HoverHighlight.h"
#include "shell/tools/IdentifyTool.h"
#include "shell/tools/MeasureTool.h"
#include "shell/tools/MoveTool.h"
#include "shell/tools/SelectTool.h"
#include "shell/window/Icons.h"

#include <QObject>

class QAction;
class QActionGroup;
class QMainWindow;
class QMenu;
class QToolBar;

namespace Orvane {

class IdentifyPanel;
class MapSession;
class StatusText;

/// The map tools of a window: their commands, their panel and their status text.
///
///     ToolActions tools(window, canvas, *menuTools, *toolBar);
///     tools.Use(session);
class ToolActions : public QObject
{
    Q_OBJECT
public:
    /// Fills the menu and the tool bar, and adds a panel and a status text to the window. None is owned; the
    /// window outlives this object.
    ToolActions(QMainWindow& window, MapCanvas& canvas, QMenu& menu, QToolBar& toolBar);
    ~ToolActions() override;

    /// The tools work on this map from now on; what they showed of the previous map is removed. session: not
    /// owned; outlives this object, or another one is used before it ends.
    void Use(MapSession& session);
    /// Sets the map's coordinate system, as in CoordinateSystems.h.
    void SetSystem(const QString& system);

    /// The features that are selected on the map; another part of the window may select others.
    FeatureSelection& Selection() { return m_selection; }

private:
    struct Command;

    QAction* AddCommand(const Command& command);
    void AddTool(const Command& command, MapTool* tool);
    void AddTools();
    void AddToggles();
    void ConnectTools();
    void ShowIdentified(const std::vector<IdentifiedFeature>& features);
    std::vector<std::vector<FeatureAttribute>> ReadAttributes(const std::vector<IdentifyQuestion>& questions);
    void ForgetMove();

    QMainWindow& m_window;
    MapCanvas& m_canvas;
    QMenu& m_menu;
    QToolBar& m_toolBar;
    MapSession* m_session = nullptr;
    FeatureSelection m_selection;
    Highlight m_selected;
    Highlight m_identified;
    HoverHighlight m_hover;
    ZoomTool m_zoom;
    IdentifyTool m_identify;
    SelectTool m_select;
    MeasureTool m_measureLine;
    MeasureTool m_measureArea;
    MoveTool m_move;
    IdentifyPanel* m_panel; // owned by the window, like the status text
    StatusText* m_status;
    QActionGroup* m_group;
};

} // namespace Orvane
