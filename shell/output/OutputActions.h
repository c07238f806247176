// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "mapkit/output/MapPage.h"

#include <QObject>

#include <functional>

class QAction;
class QMainWindow;
class QMenu;
class QPrinter;

namespace Orvane {

class MapCanvas;
class MapDocument;

/// The commands that take a map away: Export Map and Print, each with its questions.
class OutputActions : public QObject
{
    Q_OBJECT
public:
    using CurrentDocument = std::function<MapDocument&()>;

    /// Both outlive this object, which asks for the document whenever a command begins.
    OutputActions(QMainWindow& window, MapCanvas& canvas, CurrentDocument document);

    /// Adds the commands to the menu, before that action.
    void AddTo(QMenu& menu, QAction* before);

    /// Asks how and where to, and writes the map as it is shown. What fails is raised.
    void ExportMap();
    /// Asks how, and shows the preview from which it is printed. What fails is raised.
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
    CurrentDocument m_document;
    StandardShellServices m_services;
};

} // namespace Orvane
