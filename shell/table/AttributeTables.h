// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <vector>

class QMenu;
class QWidget;

namespace Orvane {

class AttributeTable;
class FeatureSelection;
class FeatureSet;
class MapCanvas;
class MapSession;
struct MapLayer;
struct TableLayer;

/// The attribute tables of a window: the command that opens them, here and in the layer control's menu. Each
/// layer has at most one, which follows the layer: its name, its data, and its end.
class AttributeTables : public QObject
{
    Q_OBJECT
public:
    /// window: the parent of the tables. menu: gets the command at its end. None is owned; all outlive this
    /// object.
    AttributeTables(QWidget& window, MapCanvas& canvas, FeatureSelection& selection, QMenu& menu);
    ~AttributeTables() override;

    /// The tables are those of this map from now on; those of the previous map are closed. session: not
    /// owned; outlives this object, or another one is used before it ends.
    void Use(MapSession& session);
    /// Opens the layer's table, or brings it to the front. Raises RunTimeError if the layer has no data.
    void Show(qint32 layerID);

private:
    struct Entry {
        QPointer<AttributeTable> window; ///< owned by the main window; deletes itself when it is closed
        std::shared_ptr<const FeatureSet> features; ///< what the map has drawn when it was read
    };

    void Ask();
    QString WhyNot(const std::vector<qint32>& layerIDs) const;
    // Empty if it has some.
    QString WhyNoAttributes(qint32 layerID) const;
    std::vector<const MapLayer*> LayersWithData() const;
    std::optional<qint32> SelectedLayer() const;
    const MapLayer* Layer(qint32 layerID) const;
    std::optional<TableLayer> TableLayerOf(const MapLayer& layer) const;
    void Follow();
    void Follow(Entry& entry, const MapLayer& layer) const;
    void ZoomTo(qint32 layerID, const std::set<qint64>& featureIDs);
    void CloseAll();

    QWidget& m_window;
    MapCanvas& m_canvas;
    FeatureSelection& m_selection;
    MapSession* m_session = nullptr;
    std::map<qint32, Entry> m_tables; // by layer ID
};

} // namespace Orvane
