// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/plugin/QgisClient.h"

class QgisInterface;

namespace Orvane {

class EditorDock;
class ProjectSession;

/// What the plug-in needs of QGIS's main window, as far as QGIS's interface for plug-ins lacks it.
namespace QgisWindow {

/// Puts the dock where it was when QGIS ended, otherwise to the right and hidden; and into the menu of
/// panels.
void AddDock(QgisInterface& qgis, EditorDock& dock);

/// Keeps the size of a dock that is in the main window for the next start of QGIS, which restores the sizes
/// of panels before its window has its own size.
void SaveSize(QgisInterface& qgis, EditorDock& dock);
/// Gives the dock the size that was kept, if it is in the main window.
void RestoreSize(QgisInterface& qgis, EditorDock& dock);

/// QGIS's dialog for temporary scratch layers, and its "Remove Layer", which asks as QGIS does; and the scale
/// of its map.
QgisCommands Commands(QgisInterface& qgis);

/// Has the session refresh the panel of layers, whose columns keep their widths meanwhile: with all entries
/// unfolded, measuring them takes most of the time.
void ConnectPanel(QgisInterface& qgis, ProjectSession& session);

} // namespace QgisWindow

} // namespace Orvane
