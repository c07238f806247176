// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "mapkit/output/MapPage.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QPrinter;

namespace Orvane {

class MapCanvas;
class MapSession;

/// The commands that output a map: Export Map and Print, each with its dialogs.
class OutputActions : public QObject
{
    Q_OBJECT
public:
    /// Both outlive this object.
    OutputActions(QMainWindow& window, MapCanvas& canvas);

    /// The commands work on this map from now on; not owned.
    void Use(MapSession& session) { m_session = &session; }

    /// Adds the commands to the menu, before that action.
    void AddTo(QMenu& menu, QAction* before);

    /// Asks for the page and the file, and writes the map as it is shown. Raises errors.
    void ExportMap();
    /// Asks for the page, and shows the preview from which the map is printed. Raises errors.
    void PrintMap();

private:
    QAction*
    NewAction(const QString& text, const QString& tip, const char* name, void (OutputActions::*command)());
    MapPage PageFor(const PageSettings& settings) const;
    QString MapName() const;
    QString AskForFile() const;
    void Paint(QPrinter& printer, PageSettings settings) const;

    QMainWindow& m_window;
    MapCanvas& m_canvas;
    MapSession* m_session = nullptr;
    StandardShellServices m_services;
};

} // namespace Orvane
