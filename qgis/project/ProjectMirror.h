// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerIDs.h"
#include "qgis/layers/LayerNodes.h"
#include "qgis/layers/LayerValues.h"
#include "qgis/project/GroupMirror.h"
#include "qgis/project/KnownRows.h"
#include "qgis/project/ProjectStyles.h"
#include "qgis/project/RefusedChanges.h"
#include "qgis/project/StyleEdits.h"

#include <QCoreApplication>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <qgsmaplayer.h>

#include <functional>
#include <optional>
#include <utility>
#include <vector>

class QgsLayerTreeModel;
class QgsProject;

namespace Orvane {

class ILayerStore;
class SignalBatch;
struct WrittenLayer;

/// What has changed in a store.
struct MirrorChanges {
    QSet<qint32> layers; ///< rows with other values
    bool isList = false; ///< rows or groups came, went, or are others
    QStringList removed; ///< the names of the layers that have lost their rows

    explicit operator bool() const { return isList || !layers.isEmpty(); }
    void Add(const MirrorChanges& others);
};

/// Keeps a layer store equal to a QGIS project. The store has one row for each layer of the project and one
/// group for each of its groups. A layer's row stays as long as the layer does: only columns that differ are
/// stored, and only columns that differ are written to the project.
///
/// All functions raise errors of the store.
class ProjectMirror
{
    Q_DECLARE_TR_FUNCTIONS(ProjectMirror)

public:
    /// Neither is owned; both outlive this object. store: holds nothing but this project.
    ProjectMirror(QgsProject& project, ILayerStore& store);

    /// QGIS's panel of layers, refreshed by Write; nullptr for none. Not owned.
    void SetPanel(QgsLayerTreeModel* panel) { m_panel = panel; }
    /// What Write runs inside. layers: how many change. write: to be called once.
    using Around = std::function<void(size_t layers, const std::function<void()>& write)>;
    void SetAround(Around around);
    /// Called at the end of a Write that could not set everything, with the layers that did not take it.
    using Refused = std::function<void(const std::vector<RefusedColumns>& layers)>;
    void SetRefused(Refused refused);
    /// What is told, for the user, when layers do not have the style that was stored.
    void SetTeller(std::function<void(const QString& message)> tell) { m_tell = std::move(tell); }

    /// The numbers of the layers' named styles.
    ProjectStyles& Styles() { return m_styles; }

    /// The layer with that row; nullptr if the project has none.
    QgsMapLayer* Layer(qint32 layerID) const { return m_ids.Layer(layerID); }
    /// The row of a layer of the project.
    qint32 IDOf(QgsMapLayer& layer) { return m_ids.Of(layer); }

    /// The ID in QGIS of the layer with that row, which may have left the project.
    QString TextOf(qint32 layerID) const { return m_ids.TextOf(layerID); }

    /// Reads everything. Returns what has changed in the store, as ReadLayers and ReadTree do.
    MirrorChanges ReadAll();
    /// Reads these layers, by their IDs in QGIS. Those that have left the project lose their rows.
    MirrorChanges ReadLayers(const QSet<QString>& layers);
    /// Reads the groups, and of all layers the snapping and the priority.
    MirrorChanges ReadTree();
    /// Removes all rows and starts again, for another project.
    void Forget();

    /// Whether the columns that are as before are meant as well, when a layer gets another named style: those
    /// of a scheme and of a step that is undone are, those together with an edit are not.
    enum class Meant { Changes, WholeRows };

    /// Writes what the store has changed in these rows to the layers, all or nothing, and stores what the
    /// layers have taken: a raster, for example, takes no colour, and a column that is Null because the
    /// classes of a layer differ stays as it is. A named style is made current before the other columns are
    /// written. Layers that have left the project are skipped. Returns the rows that then differ from what
    /// they were. Passes on what writing a layer raises; the description then names the layer.
    MirrorChanges Write(const QSet<qint32>& layerIDs, Meant meant = Meant::WholeRows);
    /// Does nothing if the layer has left the project, as WriteGroupName does for a group.
    void WriteName(qint32 layerID, const QString& name);
    void WriteGroupName(qint32 groupID, const QString& name);

private:
    struct Change {
        QPointer<QgsMapLayer> layer; // whoever hears of a change may remove it
        qint32 layerID;
        LayerValues before; // as the project has it
        LayerValues after; // as it is to be
        LayerValues stored;
        Meant meant;
    };

    MirrorChanges Read(const std::function<void(MirrorChanges& changes)>& read);
    LayerNodes NodesFor(size_t layers) const;
    Value KnownPriority(QgsMapLayer& layer);
    void ReadPriorities(MirrorChanges& changes);
    void ReadGroups(MirrorChanges& changes);
    void DeleteMissing(MirrorChanges& changes);
    void Delete(qint32 layerID, MirrorChanges& changes);
    LayerValues RowOf(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority);
    LayerValues RestoredRow(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority);
    void
    StoreLayer(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority, MirrorChanges& changes);
    void Store(const LayerValues& row, MirrorChanges& changes);
    std::vector<Change> ChangesOf(const QSet<qint32>& layerIDs, Meant meant);
    RefusedChanges WriteChanges(const std::vector<Change>& changes);
    RefusedChanges WriteLooks(const std::vector<Change>& changes);
    WrittenLayer WriteLook(const Change& change, const LayerNodes& nodes, SignalBatch& batch);
    std::optional<Change> Restyled(const Change& change, const LayerNodes& nodes, SignalBatch& batch);
    void TellMissingStyles(const std::vector<Change>& changes);
    void WriteSnapping(const std::vector<Change>& changes);
    void WritePriorities(const std::vector<Change>& changes);
    void TakeBack(const std::vector<Change>& changes);
    MirrorChanges StoreTaken(const std::vector<Change>& changes);

    QgsProject& m_project;
    ILayerStore& m_store;
    LayerIDs m_ids;
    GroupMirror m_groups;
    ProjectStyles m_styles;
    StyleEdits m_styleEdits;
    KnownRows m_rows;
    QgsLayerTreeModel* m_panel = nullptr;
    Around m_around;
    Refused m_refused;
    std::function<void(const QString&)> m_tell;
};

} // namespace Orvane
