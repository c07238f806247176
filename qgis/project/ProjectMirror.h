// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerIDs.h"
#include "qgis/layers/LayerValues.h"
#include "qgis/project/GroupMirror.h"
#include "qgis/project/ProjectStyles.h"
#include "qgis/project/StyleEdits.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QgsLayerTreeModel;
class QgsMapLayer;
class QgsProject;

namespace Orvane {

class ILayerStore;
class SignalBatch;

/// Keeps a layer store alike with a QGIS project. The store has one row for each layer of the project and one
/// group for each of its groups. A layer's row stays as long as the layer does: only columns that differ are
/// stored, and only columns that differ are written to the project.
///
/// All functions raise errors of the store.
class ProjectMirror
{
public:
    /// Neither is owned; both outlive this object. store: holds nothing but this project.
    ProjectMirror(QgsProject& project, ILayerStore& store);

    /// QGIS's panel of layers, refreshed by Write; nullptr for none. Not owned.
    void SetPanel(QgsLayerTreeModel* panel) { m_panel = panel; }
    /// What Write runs inside. layers: how many change. write: to be called once.
    using Around = std::function<void(size_t layers, const std::function<void()>& write)>;
    void SetAround(Around around);
    /// What is told, for the user, when layers do not take what was stored, e.g. a style that they lack.
    void SetTeller(std::function<void(const QString& message)> tell) { m_tell = std::move(tell); }

    /// The numbers of the layers' named styles.
    ProjectStyles& Styles() { return m_styles; }

    /// The layer with that row; nullptr if the project has none.
    QgsMapLayer* Layer(qint32 layerID) const { return m_ids.Layer(layerID); }
    /// The row of a layer of the project.
    qint32 IDOf(QgsMapLayer& layer) { return m_ids.Of(layer); }

    /// Reads everything. Returns true if the store has changed, as ReadLayers and ReadTree do.
    bool ReadAll();
    /// Reads these layers, by their IDs in QGIS. Those that have left the project lose their rows.
    bool ReadLayers(const QSet<QString>& layers);
    /// Reads the groups, and of all layers the snapping and the priority.
    bool ReadTree();
    /// Removes all rows and starts afresh, for another project.
    void Forget();

    /// Whether the columns that are as before are meant as well, when a layer gets another named style: those
    /// of a scheme and of a step that is undone are, those beside an edit are not.
    enum class Meant { Changes, WholeRows };

    /// Writes what the store has changed in these rows to the layers, all or nothing, and stores what the
    /// layers have taken: a raster, for example, takes no colour, and a column that is Null because the
    /// classes of a layer differ stays as it is. A named style is made current before the other columns are
    /// written. Layers that have left the project are skipped. Returns true if a row then differs from what
    /// it was. Passes on what writing a layer raises.
    bool Write(const QSet<qint32>& layerIDs, Meant meant = Meant::WholeRows);
    /// Does nothing if the layer has left the project, as WriteGroupName does for a group.
    void WriteName(qint32 layerID, const QString& name);
    void WriteGroupName(qint32 groupID, const QString& name);

private:
    struct Change {
        QgsMapLayer* layer;
        qint32 layerID;
        LayerValues before; // as the project has it
        LayerValues after; // as it is to be
        LayerValues stored;
        Meant meant;
    };

    bool Read(const std::function<bool()>& read);
    LayerValues KnownRow(QgsMapLayer& layer);
    bool ReadPriorities();
    bool ReadGroups();
    bool DeleteMissing();
    LayerValues RowOf(QgsMapLayer& layer, const Value& priority);
    LayerValues RestoredRow(QgsMapLayer& layer, const Value& priority);
    bool Store(const LayerValues& row);
    std::vector<Change> ChangesOf(const QSet<qint32>& layerIDs, Meant meant);
    void WriteChanges(const std::vector<Change>& changes);
    void WriteLooks(const std::vector<Change>& changes);
    void WriteLook(const Change& change, SignalBatch& batch);
    std::optional<Change> Restyled(const Change& change, SignalBatch& batch);
    void TellRefusals(const std::vector<Change>& changes);
    void WriteSnapping(const std::vector<Change>& changes);
    void WritePriorities(const std::vector<Change>& changes);
    void TakeBack(const std::vector<Change>& changes);
    bool StoreTaken(const std::vector<Change>& changes);

    QgsProject& m_project;
    ILayerStore& m_store;
    LayerIDs m_ids;
    GroupMirror m_groups;
    ProjectStyles m_styles;
    StyleEdits m_styleEdits;
    QHash<qint32, LayerValues> m_rows; // as the project has them
    QgsLayerTreeModel* m_panel = nullptr;
    Around m_around;
    std::function<void(const QString&)> m_tell;
};

} // namespace Orvane
