// SPDX-License-Identifier: MIT
#include "qgis/project/ProjectMirror.h"

#include "hostkit/lists/StoredList.h"
#include "qgis/layers/LayerReader.h"
#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/LayerWriter.h"
#include "qgis/project/LayerOrder.h"
#include "qgis/project/LayerOwnValues.h"
#include "qgis/project/RowChanges.h"
#include "qgis/project/SignalBatch.h"
#include "qgis/project/StoredRows.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QMap>
#include <QStringList>
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

} // namespace

ProjectMirror::ProjectMirror(QgsProject& project, ILayerStore& store)
    : m_project(project), m_store(store), m_ids(project), m_groups(project), m_styles(project),
      m_around([](size_t, const std::function<void()>& write) { write(); })
{
}

void ProjectMirror::SetAround(Around around)
{
    m_around = std::move(around);
}

bool ProjectMirror::ReadAll()
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    return Read([&] {
        bool differs = DeleteMissing();
        for (QgsMapLayer* layer : m_project.mapLayers())
            differs |= Store(RestoredRow(*layer, PriorityIn(priorities, *layer)));
        return ReadGroups() || differs;
    });
}

bool ProjectMirror::ReadLayers(const QSet<QString>& layers)
{
    return Read([&] {
        bool differs = DeleteMissing();
        for (const QString& id : layers) {
            if (QgsMapLayer* layer = m_project.mapLayer(id))
                differs |= Store(RestoredRow(*layer, ValueOf(KnownRow(*layer), "Priority")));
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
    m_styles.Reset();
    m_styleEdits.Forget();
}

bool ProjectMirror::Write(const QSet<qint32>& layerIDs, Meant meant)
{
    const std::vector<Change> changes = ChangesOf(layerIDs, meant);
    bool differs = false;
    if (changes.empty())
        return differs;
    m_around(changes.size(), [&] {
        try {
            WriteChanges(changes);
        } catch (...) {
            TakeBack(changes);
            StoreTaken(changes);
            throw;
        }
        differs = StoreTaken(changes);
    });
    TellRefusals(changes);
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
        m_rows.remove(layerID);
    }
    return !missing.empty();
}

LayerValues ProjectMirror::RowOf(QgsMapLayer& layer, const Value& priority)
{
    LayerValues row = Orvane::ReadLayer(layer, m_project);
    SetValue(row, "LayerID", m_ids.Of(layer));
    SetValue(row, "Name", layer.name());
    SetValue(row, "Priority", priority);
    SetValue(row, "Style", m_styles.Of(layer));
    SetValue(row, "SystemLayer", false);
    SetValue(row, "Pseudo", false);
    return row;
}

// QGIS may have replaced the layer's style, with all that was kept in it.
LayerValues ProjectMirror::RestoredRow(QgsMapLayer& layer, const Value& priority)
{
    const auto known = m_rows.constFind(m_ids.Of(layer));
    if (known != m_rows.constEnd())
        LayerOwnValues::Restore(layer, m_project, *known);
    return RowOf(layer, priority);
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

std::vector<ProjectMirror::Change> ProjectMirror::ChangesOf(const QSet<qint32>& layerIDs, Meant meant)
{
    std::vector<Change> changes;
    changes.reserve(size_t(layerIDs.size()));
    for (const qint32 layerID : layerIDs) {
        QgsMapLayer* layer = Layer(layerID);
        const auto known = m_rows.constFind(layerID);
        const auto stored = StoredRows::Read(m_store, layerID);
        if (layer && stored && known != m_rows.constEnd() && StoredRows::AreDifferent(*known, *stored))
            changes.push_back(
                {layer, layerID, *known, RowChanges::Writable(*known, *stored), *stored, meant});
    }
    return changes;
}

void ProjectMirror::WriteChanges(const std::vector<Change>& changes)
{
    WriteLooks(changes);
    WriteSnapping(changes);
    WritePriorities(changes);
}

void ProjectMirror::WriteLooks(const std::vector<Change>& changes)
{
    SignalBatch batch(m_project, m_panel);
    for (const Change& change : changes) {
        const std::optional<Change> restyled = Restyled(change, batch);
        WriteLook(restyled ? *restyled : change, batch);
        batch.Add(*change.layer);
    }
}

void ProjectMirror::WriteLook(const Change& change, SignalBatch& batch)
{
    WriteLayer(
        *change.layer, m_project, change.before, change.after,
        [&](QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer) {
            batch.SetRenderer(layer, std::move(renderer));
        });
}

// With another style current, other columns differ from those that are wanted.
std::optional<ProjectMirror::Change> ProjectMirror::Restyled(const Change& change, SignalBatch& batch)
{
    const Value& number = ValueOf(change.after, "Style");
    if (number.IsNull() || !Differs(change.before, change.after, "Style"))
        return std::nullopt;
    const QString style = m_styles.NameIn(*change.layer, ToInt32(number));
    if (style.isEmpty())
        return std::nullopt;
    if (const auto before = m_styleEdits.Before(change.layerID, change.before, change.stored))
        WriteLook({change.layer, change.layerID, change.before, *before, *before, change.meant}, batch);
    batch.Restyle(*change.layer, [&] { LayerOwnValues::SwitchStyle(*change.layer, m_project, style); });
    Change restyled = change;
    restyled.before = RowOf(*change.layer, ValueOf(change.before, "Priority"));
    if (change.meant == Meant::Changes) {
        m_styleEdits.Begin(change.layerID, change.before, restyled.before);
        restyled.after = RowChanges::OnlyChanges(change.before, change.stored, restyled.before);
    }
    restyled.after = RowChanges::Writable(restyled.before, restyled.after);
    return restyled;
}

void ProjectMirror::TellRefusals(const std::vector<Change>& changes)
{
    QMap<qint32, QStringList> refusals; // layers by styles that they lack
    for (const Change& change : changes) {
        const Value& style = ValueOf(change.stored, "Style");
        if (!style.IsNull() && Differs(m_rows.value(change.layerID), change.stored, "Style"))
            refusals[ToInt32(style)] << change.layer->name();
    }
    for (auto refusal = refusals.begin(); m_tell && refusal != refusals.end(); ++refusal)
        m_tell(m_styles.RefusalText(refusal.key(), refusal.value()));
}

void ProjectMirror::WriteSnapping(const std::vector<Change>& changes)
{
    QHash<QgsMapLayer*, bool> layers;
    for (const Change& change : changes) {
        const Value& snap = ValueOf(change.after, "SnapRequired");
        if (!snap.IsNull() && Differs(change.before, change.after, "SnapRequired"))
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
        if (!priority.IsNull() && Differs(change.before, change.after, "Priority"))
            priorities.insert(change.layer->id(), ToInt32(priority));
    }
    if (!priorities.isEmpty())
        LayerOrder::Write(m_project, priorities);
}

void ProjectMirror::TakeBack(const std::vector<Change>& changes)
{
    std::vector<Change> reversed = changes;
    for (Change& change : reversed) {
        change.after = RowOf(*change.layer, ValueOf(change.before, "Priority"));
        std::swap(change.before, change.after);
        change.meant = Meant::WholeRows;
    }
    WriteChanges(reversed);
}

bool ProjectMirror::StoreTaken(const std::vector<Change>& changes)
{
    const QHash<QString, qint32> priorities = LayerOrder::Read(m_project);
    return Read([&] {
        bool differs = false;
        for (const Change& change : changes) {
            m_rows[change.layerID] = change.stored;
            differs |= Store(RowOf(*change.layer, PriorityIn(priorities, *change.layer)));
            m_styleEdits.End(change.layerID, m_rows[change.layerID]);
        }
        return differs;
    });
}

} // namespace Orvane
