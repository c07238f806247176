// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointF>
#include <QPointer>

#include <vector>

class QAction;
class QMenu;
class QWidget;

namespace Orvane {

class MapCanvas;
class MapSession;
struct MapLayer;

/// The menu of the map: the commands for the layers whose features are at that place, topmost first, and
/// those for the map. Commands that are not possible are grey; their tool tips say why.
class MapMenu : public QObject
{
    Q_OBJECT
public:
    /// Commands of the window that the menu has too; not owned.
    struct Shared {
        QAction& showAll;
        QAction& previousView;
    };

    /// None is owned; all outlive this object. Errors are shown over the window.
    MapMenu(MapCanvas& canvas, QWidget& window, const Shared& shared);

    /// The menu works on this map from now on; not owned, and may end before this object. Adds "Open Folder"
    /// to the map's commands for layers.
    void Use(MapSession& session);

private:
    void Open(QPointF pixel);
    std::vector<const MapLayer*> LayersAt(QPointF pixel) const;
    void AddLayer(QMenu& menu, qint32 layerID);
    void AddMap(QMenu& menu, QPointF map);
    void AddCopies(QMenu& menu, QPointF map);
    void AddCopy(QMenu& menu, const QString& position, const QString& text);
    void Remove(qint32 layerID);

    MapCanvas& m_canvas;
    QWidget& m_window;
    Shared m_shared;
    QPointer<MapSession> m_session;
};

} // namespace Orvane
