// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/layers/LayerFlags.h"
#include "qgis/layers/LayerReader.h"
#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/OverrideMode.h"
#include "qgis/project/LayerOrder.h"
#include "qgis/project/LayerOwnValues.h"
#include "qgis/project/NamingTheLayer.h"
#include "qgis/project/StoredRows.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <qgsmaplayer.h>
#include <qgsproject.h>

#include <utility>

namespace Orvane {

namespace {

constexpr size_t FewLayers = 10; // are found in the tree sooner one by one

// Whether a group is unfolded is left to the editor.
bool AreAlike(std::vector<ListedGroup> stored, std::vector<ListedGroup> wanted)
{
    for (std::vector<ListedGroup>* groups : {&stored, &wanted}) {
        for (ListedGroup& group : *groups)
            group.expanded = false;
    }
    return stored == wanted;
}

} // namespace

void MirrorChanges::Add(const MirrorChanges& others)
{
    layers += others.layers;
    isList = isList || others.isList;
    removed += others.removed;
}

ProjectMirror::ProjectMirror(QgsProject& project, ILayerStore& store)
    : m_project(project), m_store(store), m_ids(project), m_groups(project), m_styles(project),
      m_around([](size_t, const std::function<void()>& write) { write(); }),
      m_refused([](const std::vector<RefusedColumns>&) {})
{
}

void ProjectMirror::SetAround(Around around)
{
    m_around = std::move(around);
}

void ProjectMirror::SetRefused(Refused refused)
{
    m_refused = std::move(refused);
}

MirrorChanges ProjectMirror::ReadAll()
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    const LayerNodes nodes = LayerNodes::Indexed(m_project);
    return Read([&](MirrorChanges& changes) {
        DeleteMissing(changes);
        for (QgsMapLayer* layer : m_project.mapLayers())
            StoreLayer(*layer, nodes, LayerOrder::PriorityIn(priorities, *layer), changes);
        ReadGroups(changes);
    });
}

MirrorChanges ProjectMirror::ReadLayers(const QSet<QString>& layers)
{
    const LayerNodes nodes = NodesFor(size_t(layers.size()));
    return Read([&](MirrorChanges& changes) {
        for (const QString& id : layers) {
            if (QgsMapLayer* layer = m_project.mapLayer(id))
                StoreLayer(*layer, nodes, KnownPriority(*layer), changes);
            else
                Delete(m_ids.Known(id), changes);
        }
    });
}

MirrorChanges ProjectMirror::ReadTree()
{
    return Read([&](MirrorChanges& changes) {
        ReadPriorities(changes);
        ReadGroups(changes);
    });
}

void ProjectMirror::Forget()
{
    Transaction transaction(m_store);
    for (const char* table : {"LayerGroupMembers", "LayerGroups", "Layers"})
        m_store.Execute(QStringLiteral("DELETE FROM ") + QLatin1String(table));
    transaction.Commit();
    m_rows.Clear();
    m_ids.Reset();
    m_styles.Reset();
    m_styleEdits.Forget();
}

MirrorChanges ProjectMirror::Read(const std::function<void(MirrorChanges& changes)>& read)
{
    const QgsProjectDirtyBlocker unchanged(&m_project); // reading gives layers their numbers
    MirrorChanges changes;
    m_rows.Begin();
    try {
        Transaction transaction(m_store);
        read(changes);
        transaction.Commit();
    } catch (...) {
        m_rows.TakeBack();
        throw;
    }
    m_rows.Begin();
    return changes;
}

LayerNodes ProjectMirror::NodesFor(size_t layers) const
{
    return layers > FewLayers ? LayerNodes::Indexed(m_project) : LayerNodes(m_project);
}

Value ProjectMirror::KnownPriority(QgsMapLayer& layer)
{
    const LayerValues* known = m_rows.Find(m_ids.Of(layer));
    return known ? ValueOf(*known, "Priority") : Value::Null();
}

void ProjectMirror::ReadPriorities(MirrorChanges& changes)
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    for (QgsMapLayer* layer : m_project.mapLayers()) {
        const LayerValues* known = m_rows.Find(m_ids.Known(layer->id()));
        if (!known)
            continue;
        LayerValues row = *known;
        SetValue(row, "Priority", LayerOrder::PriorityIn(priorities, *layer));
        SetValue(row, "SnapRequired", ReadSnap(*layer, m_project));
        if (Differs(*known, row, "Priority") || Differs(*known, row, "SnapRequired"))
            Store(row, changes);
    }
}

void ProjectMirror::ReadGroups(MirrorChanges& changes)
{
    QHash<QString, qint32> ids;
    for (QgsMapLayer* layer : m_project.mapLayers()) {
        const qint32 known = m_ids.Known(layer->id());
        ids.insert(layer->id(), known != 0 ? known : m_ids.Of(*layer));
    }
    const std::vector<ListedGroup> groups = m_groups.Read(ids);
    if (AreAlike(StoredList::Groups(m_store), groups))
        return; // comparing all layers takes longer
    if (StoredList::Update(m_store, StoredList::Layers(m_store), groups))
        changes.isList = true;
}

void ProjectMirror::DeleteMissing(MirrorChanges& changes)
{
    for (const qint32 layerID : m_rows.LayerIDs()) {
        if (!Layer(layerID))
            Delete(layerID, changes);
    }
}

void ProjectMirror::Delete(qint32 layerID, MirrorChanges& changes)
{
    const LayerValues* known = m_rows.Find(layerID);
    if (!known)
        return;
    changes.removed << ToTextOrNone(ValueOf(*known, "Name"));
    StoredRows::Delete(m_store, layerID);
    m_rows.Remove(layerID);
    changes.isList = true;
}

LayerValues ProjectMirror::RowOf(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority)
{
    ForgetEndedMode(layer, nodes);
    ForgetEndedPointing(layer);
    LayerValues row = Orvane::ReadLayer(layer, nodes);
    SetValue(row, "LayerID", m_ids.Of(layer));
    SetValue(row, "Name", layer.name());
    SetValue(row, "Priority", priority);
    SetValue(row, "Style", m_styles.Of(layer));
    SetValue(row, "SystemLayer", false);
    SetValue(row, "Pseudo", false);
    return row;
}

// QGIS may have replaced the layer's style, with all that was kept in it.
LayerValues ProjectMirror::RestoredRow(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority)
{
    if (const LayerValues* known = m_rows.Find(m_ids.Of(layer)))
        LayerOwnValues::Restore(layer, nodes, *known);
    return RowOf(layer, nodes, priority);
}

void ProjectMirror::StoreLayer(
    QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority, MirrorChanges& changes)
{
    NamingTheLayer(layer.name(), [&] { Store(RestoredRow(layer, nodes, priority), changes); });
}

void ProjectMirror::Store(const LayerValues& row, MirrorChanges& changes)
{
    const qint32 layerID = *row.front().Get<qint32>();
    if (const LayerValues* known = m_rows.Find(layerID)) {
        if (!StoredRows::Update(m_store, *known, row))
            return;
        changes.layers.insert(layerID);
    } else {
        StoredRows::Insert(m_store, row);
        changes.isList = true;
    }
    m_rows.Set(layerID, row);
}

} // namespace Orvane
