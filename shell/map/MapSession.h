// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "hostkit/tracing/TracingClient.h"
#include "mapkit/coordinates/Box.h"
#include "shell/map/AttributeLoader.h"
#include "shell/map/LayerCreation.h"
#include "shell/map/LayerStates.h"
#include "shell/map/MapLayers.h"
#include "shell/map/ShellClient.h"
#include "shell/map/SourceFollower.h"

#include <QObject>
#include <QSet>
#include <QStringList>
#include <QTimer>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace Orvane {

class MapCanvas;
class MapDocument;
class CallTrace;

/// One open map: its file, its layers, its client for the component, and the canvas that shows it. The
/// component's changes are drawn at once; data files that reappear or change are shown again; and the layer
/// control shows which layers are not drawn because of the scale or a missing source.
class MapSession : public QObject
{
    Q_OBJECT
public:
    /// canvas and mainWindow outlive this object; so does the trace, nullptr for no trace.
    MapSession(
        std::unique_ptr<MapDocument> document, MapCanvas& canvas, QWidget& mainWindow, CallTrace* trace);
    ~MapSession() override;

    MapDocument& Document() { return *m_document; }
    /// The layers as they are drawn.
    const std::vector<MapLayer>& Layers() const { return m_layers.All(); }
    /// The same for a page, with the rasters that are not drawn because of damage: painting these raises.
    std::vector<MapLayer> LayersForPage() const { return m_layers.WithDamaged(); }
    /// The client itself.
    ShellClient& Shell() { return m_client; }
    /// What to pass to the component: the client, traced when there is a trace.
    IStyleEditorClient& Client();

    /// Makes the schemes of a map that has its first layers: those of the startup database, the current one
    /// of which is loaded into the layers that it contains, or else one scheme of the layers as they are.
    /// Call before ReadAndShow.
    void BeginSchemes();

    /// Loads the scheme that the user has chosen for the opening of this map; call it before ReadAndShow.
    /// Returns the scheme; nothing if the map was not changed. Raises errors of the database.
    std::optional<QString> ApplySchemeAtOpening();

    /// True if the map has features or a raster of these layers; those that are hidden count too.
    bool HasFeatures(const std::vector<qint32>& layerIDs) const { return !BoundsOf(layerIDs).IsEmpty(); }
    /// Shows all data of these layers; does nothing if there are none.
    void ZoomTo(const std::vector<qint32>& layerIDs);

    /// Which part of the map is shown after reading.
    enum class View { Stays, All };

    /// Reads all rows, and the data of layers that have none yet, with progress; then draws. Returns why
    /// layers could not be read, empty when all could. Raises errors of the database. known: what was read
    /// already, and failures. If the map has another coordinate system than before, all layers are
    /// read, and the view stays at its place on the ground.
    QString ReadAndShow(View view = View::Stays, const SourceContents& known = {});
    /// Reads these layers' rows again and draws them.
    void DrawAgain(const QSet<qint32>& layerIDs);
    /// Follows somebody else who has changed the rows of these layers: draws them again, and has the open
    /// editors show them; edits that are not applied stay. False if some of them are new or gone: then the
    /// whole map is to be read again. Raises errors of the database.
    bool FollowOthers(const QSet<qint32>& layerIDs);
    /// Draws the layers again whose renderings were changed in the map.
    void FollowRenderings();

    /// The names of the layers that are not shown completely, because the map's coordinate system has no
    /// place for some of their positions.
    QStringList LayersWithoutPlace() const;
    /// Shows these data instead of those that the layers had.
    void TakeFeatures(const SourceContents& contents);

    /// What the user is asked and told when a new layer takes the data of a file; nothing at first.
    void SetImportQuestions(ImportQuestions questions) { m_questions = std::move(questions); }

signals:
    /// The map's file is no longer at its path; the open map can still be saved under another name.
    void MapFileGone();
    /// Data that were shown cannot be read any more, as lines of text. Each damaged raster is named once.
    void DataFailed(const QString& reason);
    /// A change was stored, but cannot be undone.
    void StepNotRecorded(const QString& reason);
    /// All layers were read again.
    void LayersRead();
    /// FollowOthers has shown the changes of somebody else.
    void OthersFollowed();
    /// The user has chosen other layers: ShellClient::ChosenLayers.
    void ChosenLayersChanged();

private:
    void Connect();
    void AddCommands();
    void ConnectLayerNews(const HostNotifications& events);
    void ReadNews();
    void FollowSystems();
    void ConnectPicture();
    void TakeFailures();
    void ReadRows();
    // Reads what contents lacks. Returns why the reading was given up; empty if it was not.
    QString ReadMissing(SourceContents& contents) const;
    void Show();
    void ShowAll();
    void ShowInSystem(const QString& before);
    void FollowLayers();
    void MarkNames();
    bool HasRowsOf(const QSet<qint32>& layerIDs) const;
    // Of the data of these layers that were read; hidden ones count too.
    Box BoundsOf(const std::vector<qint32>& layerIDs) const;

    MapCanvas& m_canvas;
    QWidget& m_mainWindow;
    StandardShellServices m_services;
    std::unique_ptr<MapDocument> m_document;
    MapLayers m_layers;
    LayerStates m_states;
    ImportQuestions m_questions;
    AttributeLoader m_attributes;
    ShellClient m_client;
    std::unique_ptr<TracingClient> m_traced;
    SourceFollower m_follower;
    bool m_isRead = false; // at least once
    bool m_isShown = false; // the canvas has the layers of this map
    std::map<qint32, QString> m_failures; // of rasters, that the picture has found since the last were told
    std::set<std::pair<QString, QString>> m_damaged; // path and layer of those that were told
    QString m_system; // that the map is shown in
    std::map<qint32, QString> m_chosenReadings; // of the layers, as they are shown
    std::map<qint32, LayerRendering> m_renderings; // the same
    QTimer m_followSoon; // gathers the many changes of the history
    QTimer m_failSoon; // gathers the rasters of one picture
    QTimer m_markSoon; // gathers the many steps of a zoom
    QTimer m_readSoon; // gathers the many layers of a step
    QSet<qint32> m_newsOf; // layers that were renamed or deleted since they were read
    bool m_hasNewLayers = false;
};

} // namespace Orvane
