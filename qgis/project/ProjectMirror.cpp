// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/layers/LayerFlags.h"
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

bool ProjectMirror::ReadAll()
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    return Read([&] {
        bool differs = DeleteMissing();
        for (QgsMapLayer* layer : m_project.mapLayers())
            differs |= StoreLayer(*layer, PriorityIn(priorities, *layer));
        return ReadGroups() || differs;
    });
}

bool ProjectMirror::ReadLayers(const QSet<QString>& layers)
{
    return Read([&] {
        bool differs = DeleteMissing();
        for (const QString& id : layers) {
            if (QgsMapLayer* layer = m_project.mapLayer(id))
                differs |= StoreLayer(*layer, ValueOf(KnownRow(*layer), "Priority"));
        }
        return differs;
    });
}

bool ProjectMirror::ReadTree()
{
    return Read([&] {
        const bool layersDiffer = ReadPriorities();
        return ReadGroups() || layersDiffer;
    });
}

void ProjectMirror::Forget()
{
    Transaction transaction(m_store);
    for (const char* table : {"LayerGroupMembers", "LayerGroups", "Layers"})
        m_store.Execute(QStringLiteral("DELETE FROM ") + QLatin1String(table));
    transaction.Commit();
    m_rows.clear();
    m_ids.Reset();
}

bool ProjectMirror::Write(const QSet<qint32>& layerIDs)
{
    const std::vector<Change> changes = ChangesOf(layerIDs);
    bool differs = false;
    if (changes.empty())
        return differs;
    RefusedChanges refused;
    m_around(changes.size(), [&] {
        try {
            refused = WriteChanges(changes);
        } catch (...) {
            TakeBack(changes);
            StoreTaken(changes);
            throw;
        }
        differs = StoreTaken(changes);
    });
    if (const std::vector<RefusedColumns> layers = refused.All(); !layers.empty())
        m_refused(layers);
    return differs;
}

void ProjectMirror::WriteName(qint32 layerID, const QString& name)
{
    QgsMapLayer* layer = Layer(layerID);
    if (!layer)
        return;
    layer->setName(name);
    m_project.setDirty(true);
    if (m_rows.contains(layerID))
        SetValue(m_rows[layerID], "Name", name);
}

void ProjectMirror::WriteGroupName(qint32 groupID, const QString& name)
{
    m_groups.Rename(groupID, name);
    m_project.setDirty(true);
}

bool ProjectMirror::Read(const std::function<bool()>& read)
{
    const QgsProjectDirtyBlocker unchanged(&m_project); // reading gives layers their numbers
    const QHash<qint32, LayerValues> before = m_rows;
    try {
        Transaction transaction(m_store);
        const bool differs = read();
        transaction.Commit();
        return differs;
    } catch (...) {
        m_rows = before;
        throw;
    }
}

LayerValues ProjectMirror::KnownRow(QgsMapLayer& layer)
{
    const auto known = m_rows.constFind(m_ids.Of(layer));
    return known == m_rows.constEnd() ? UnknownLayerValues() : *known;
}

bool ProjectMirror::ReadPriorities()
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    bool differs = false;
    for (QgsMapLayer* layer : m_project.mapLayers()) {
        const auto known = m_rows.constFind(m_ids.Of(*layer));
        if (known == m_rows.constEnd())
            continue;
        LayerValues row = *known;
        SetValue(row, "Priority", PriorityIn(priorities, *layer));
        SetValue(row, "SnapRequired", ReadSnap(*layer, m_project));
        if (Differs(*known, row, "Priority") || Differs(*known, row, "SnapRequired"))
            differs |= Store(row);
    }
    return differs;
}

bool ProjectMirror::ReadGroups()
{
    QHash<QString, qint32> ids;
    for (QgsMapLayer* layer : m_project.mapLayers())
        ids.insert(layer->id(), m_ids.Of(*layer));
    const std::vector<ListedGroup> groups = m_groups.Read(ids);
    if (AreAlike(StoredList::Groups(m_store), groups))
        return false; // comparing all layers takes longer
    return StoredList::Update(m_store, StoredList::Layers(m_store), groups);
}

bool ProjectMirror::DeleteMissing()
{
    std::vector<qint32> missing;
    missing.reserve(size_t(m_rows.size()));
    for (auto row = m_rows.keyBegin(); row != m_rows.keyEnd(); ++row) {
        if (!Layer(*row))
            missing.push_back(*row);
    }
    for (const qint32 layerID : missing) {
        StoredRows::Delete(m_store, layerID);
        m_removed << ToTextOrNone(ValueOf(m_rows.take(layerID), "Name"));
    }
    return !missing.empty();
}

LayerValues ProjectMirror::RowOf(QgsMapLayer& layer, const Value& priority)
{
    ForgetEndedMode(layer, m_project);
    ForgetEndedPointing(layer);
    LayerValues row = Orvane::ReadLayer(layer, m_project);
    SetValue(row, "LayerID", m_ids.Of(layer));
    SetValue(row, "Name", layer.name());
    SetValue(row, "Priority", priority);
    SetValue(row, "SystemLayer", false);
    SetValue(row, "Pseudo", false);
    return row;
}

bool ProjectMirror::StoreLayer(QgsMapLayer& layer, const Value& priority)
{
    return NamingTheLayer(layer.name(), [&] { return Store(RowOf(layer, priority)); });
}

bool ProjectMirror::Store(const LayerValues& row)
{
    const qint32 layerID = *row.front().Get<qint32>();
    const auto known = m_rows.constFind(layerID);
    if (known == m_rows.constEnd()) {
        StoredRows::Insert(m_store, row);
        m_rows.insert(layerID, row);
        return true;
    }
    const bool differs = StoredRows::Update(m_store, *known, row);
    if (differs)
        m_rows[layerID] = row;
    return differs;
}

std::vector<ProjectMirror::Change> ProjectMirror::ChangesOf(const QSet<qint32>& layerIDs)
{
    std::vector<Change> changes;
    changes.reserve(size_t(layerIDs.size()));
    for (const qint32 layerID : layerIDs) {
        QgsMapLayer* layer = Layer(layerID);
        const auto known = m_rows.constFind(layerID);
        const auto stored = StoredRows::Read(m_store, layerID);
        if (layer && stored && known != m_rows.constEnd() && StoredRows::AreDifferent(*known, *stored))
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
    const auto setRenderer = [&batch](QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer) {
        batch.SetRenderer(layer, std::move(renderer));
    };
    for (const Change& change : changes) {
        if (!change.layer)
            continue;
        const QString name = change.layer->name();
        const WrittenLayer written = NamingTheLayer(name, [&] {
            return WriteLayer(*change.layer, m_project, change.before, change.after, setRenderer);
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
    for (Change& change : reversed) {
        change.after = RowOf(*change.layer, ValueOf(change.before, "Priority"));
        std::swap(change.before, change.after);
    }
    WriteChanges(reversed);
}

bool ProjectMirror::StoreTaken(const std::vector<Change>& changes)
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    return Read([&] {
        bool differs = false;
        for (const Change& change : changes) {
            if (!change.layer)
                continue;
            m_rows[change.layerID] = change.stored;
            differs |= Store(RowOf(*change.layer, PriorityIn(priorities, *change.layer)));
        }
        return differs;
    });
}

} // namespace Orvane
