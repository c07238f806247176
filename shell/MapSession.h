// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "hostkit/tracing/TracingClient.h"
#include "shell/MapLayers.h"
#include "shell/ShellClient.h"

#include <QObject>

#include <memory>

namespace Orvane {

class MapCanvas;
class MapDocument;
class CallTrace;

/// One open map: its file, its layers, its client for the component, and the canvas that shows it. What the
/// component changes is drawn at once.
class MapSession : public QObject
{
    Q_OBJECT
public:
    /// canvas and mainWindow outlive this object; so does the trace, nullptr for no trace.
    MapSession(
        std::unique_ptr<MapDocument> document, MapCanvas& canvas, QWidget& mainWindow, CallTrace* trace);
    ~MapSession() override;

    MapDocument& Document() { return *m_document; }
    /// The client itself.
    ShellClient& Shell() { return m_client; }
    /// What to hand to the component: the client, traced when there is a trace.
    IStyleEditorClient& Client();

    /// Reads all rows, and the features of layers that have none yet, with progress; then draws. Returns why
    /// layers could not be read, empty when all could. Raises errors of the database.
    QString ReadAndShow();

private:
    void Connect();
    void DrawAgain(const QSet<qint32>& layerIDs);
    void Show();

    MapCanvas& m_canvas;
    QWidget& m_mainWindow;
    StandardShellServices m_services;
    std::unique_ptr<MapDocument> m_document;
    MapLayers m_layers;
    ShellClient m_client;
    std::unique_ptr<TracingClient> m_traced;
};

} // namespace Orvane
