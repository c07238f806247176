// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/layers/LayerReader.h"
#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/LayerWriter.h"
#include "qgis/layers/OverrideMode.h"
#include "qgis/project/LayerOrder.h"
#include "qgis/project/SignalBatch.h"
#include "qgis/project/StoredRows.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <qgsmaplayer.h>
#include <qgsproject.h>
#include <qgsrenderer.h>
#include <qgsvectorlayer.h>

#include <utility>

namespace Orvane {

namespace {

constexpr size_t FewLayers = 10; // are found in the tree sooner one by one

Value PriorityIn(const QHash<QString, qint32>& priorities, const QgsMapLayer& layer)
{
    const auto found = priorities.constFind(layer.id());
    return found == priorities.constEnd() ? Value::Null() : Value(*found);
}

// Whether a group is unfolded is left to the editor.
bool AreAlike(std::vector<ListedGroup> stored, std::vector<ListedGroup> wanted)
{
    for (std::vector<ListedGroup>* groups : {&stored, &wanted}) {
        for (ListedGroup& group : *groups)
            group.expanded = false;
    }
    return stored == wanted;
}

// What is unknown cannot be written: a colour for all would flatten the classes of a layer.
LayerValues Writable(const LayerValues& known, LayerValues wanted)
{
    for (size_t column = 0; column < known.size(); ++column) {
        if (known.at(column).IsNull())
            wanted.at(column) = Value::Null();
    }
    return wanted;
}

// The user may have hundreds of layers.
template <typename Act> auto NamingTheLayer(const QString& name, const Act& act)
{
    try {
        return act();
    } catch (const RunTimeError& error) {
        throw RunTimeError(
            error.Number(), ProjectMirror::tr("Layer \"%1\": %2").arg(name, error.Description()),
            error.Source());
    }
}

} // namespace

void MirrorChanges::Add(const MirrorChanges& others)
{
    layers += others.layers;
    isList = isList || others.isList;
}

ProjectMirror::ProjectMirror(QgsProject& project, ILayerStore& store)
    : m_project(project), m_store(store), m_ids(project), m_groups(project),
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
            StoreLayer(*layer, nodes, PriorityIn(priorities, *layer), changes);
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
}

MirrorChanges ProjectMirror::Write(const QSet<qint32>& layerIDs)
{
    const std::vector<Change> changes = ChangesOf(layerIDs);
    MirrorChanges taken;
    if (changes.empty())
        return taken;
    RefusedChanges refused;
    m_around(changes.size(), [&] {
        try {
            refused = WriteChanges(changes);
        } catch (...) {
            TakeBack(changes);
            StoreTaken(changes);
            throw;
        }
        taken = StoreTaken(changes);
    });
    if (const std::vector<RefusedColumns> layers = refused.All(); !layers.empty())
        m_refused(layers);
    return taken;
}

void ProjectMirror::WriteName(qint32 layerID, const QString& name)
{
    QgsMapLayer* layer = Layer(layerID);
    if (!layer)
        return;
    layer->setName(name);
    m_project.setDirty(true);
    if (const LayerValues* known = m_rows.Find(layerID)) {
        LayerValues row = *known;
        SetValue(row, "Name", name);
        m_rows.Set(layerID, row);
    }
}

void ProjectMirror::WriteGroupName(qint32 groupID, const QString& name)
{
    m_groups.Rename(groupID, name);
    m_project.setDirty(true);
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
        SetValue(row, "Priority", PriorityIn(priorities, *layer));
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
    if (!m_rows.Find(layerID))
        return;
    StoredRows::Delete(m_store, layerID);
    m_rows.Remove(layerID);
    changes.isList = true;
}

LayerValues ProjectMirror::RowOf(QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority)
{
    ForgetEndedMode(layer, nodes);
    LayerValues row = Orvane::ReadLayer(layer, nodes);
    SetValue(row, "LayerID", m_ids.Of(layer));
    SetValue(row, "Name", layer.name());
    SetValue(row, "Priority", priority);
    SetValue(row, "SystemLayer", false);
    SetValue(row, "Pseudo", false);
    return row;
}

void ProjectMirror::StoreLayer(
    QgsMapLayer& layer, const LayerNodes& nodes, const Value& priority, MirrorChanges& changes)
{
    NamingTheLayer(layer.name(), [&] { Store(RowOf(layer, nodes, priority), changes); });
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

std::vector<ProjectMirror::Change> ProjectMirror::ChangesOf(const QSet<qint32>& layerIDs)
{
    std::vector<Change> changes;
    changes.reserve(size_t(layerIDs.size()));
    for (const qint32 layerID : layerIDs) {
        QgsMapLayer* layer = Layer(layerID);
        const LayerValues* known = m_rows.Find(layerID);
        const auto stored = StoredRows::Read(m_store, layerID);
        if (layer && stored && known && StoredRows::AreDifferent(*known, *stored))
            changes.push_back({layer, layerID, *known, Writable(*known, *stored), *stored});
    }
    return changes;
}

RefusedChanges ProjectMirror::WriteChanges(const std::vector<Change>& changes)
{
    RefusedChanges refused = WriteLooks(changes);
    WriteSnapping(changes);
    WritePriorities(changes);
    return refused;
}

RefusedChanges ProjectMirror::WriteLooks(const std::vector<Change>& changes)
{
    RefusedChanges refused;
    SignalBatch batch(m_project, m_panel);
    const LayerNodes nodes = NodesFor(changes.size());
    const auto setRenderer = [&batch](QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer) {
        batch.SetRenderer(layer, std::move(renderer));
    };
    for (const Change& change : changes) {
        if (!change.layer)
            continue;
        const QString name = change.layer->name();
        const WrittenLayer written = NamingTheLayer(name, [&] {
            return WriteLayer(*change.layer, nodes, change.before, change.after, setRenderer);
        });
        refused.Add(name, written.refused, change.before, change.stored);
        if (change.layer)
            batch.Add(*change.layer);
    }
    return refused;
}

void ProjectMirror::WriteSnapping(const std::vector<Change>& changes)
{
    QHash<QgsMapLayer*, bool> layers;
    for (const Change& change : changes) {
        const Value& snap = ValueOf(change.after, "SnapRequired");
        if (change.layer && !snap.IsNull() && Differs(change.before, change.after, "SnapRequired"))
            layers.insert(change.layer, ToBoolean(snap));
    }
    if (!layers.isEmpty())
        WriteSnap(m_project, layers);
}

void ProjectMirror::WritePriorities(const std::vector<Change>& changes)
{
    QHash<QString, qint32> priorities;
    for (const Change& change : changes) {
        const Value& priority = ValueOf(change.after, "Priority");
        if (change.layer && !priority.IsNull() && Differs(change.before, change.after, "Priority"))
            priorities.insert(change.layer->id(), ToInt32(priority));
    }
    if (!priorities.isEmpty())
        LayerOrder::Write(m_project, priorities);
}

void ProjectMirror::TakeBack(const std::vector<Change>& changes)
{
    std::vector<Change> reversed = changes;
    std::erase_if(reversed, [](const Change& change) { return !change.layer; });
    const LayerNodes nodes = NodesFor(reversed.size());
    for (Change& change : reversed) {
        change.after = RowOf(*change.layer, nodes, ValueOf(change.before, "Priority"));
        std::swap(change.before, change.after);
    }
    WriteChanges(reversed);
}

MirrorChanges ProjectMirror::StoreTaken(const std::vector<Change>& changes)
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    const LayerNodes nodes = NodesFor(changes.size());
    return Read([&](MirrorChanges& differing) {
        for (const Change& change : changes) {
            if (!change.layer)
                continue;
            m_rows.Set(change.layerID, change.stored);
            Store(RowOf(*change.layer, nodes, PriorityIn(priorities, *change.layer)), differing);
        }
    });
}

} // namespace Orvane
