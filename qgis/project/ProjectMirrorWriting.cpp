// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerSnap.h"
#include "qgis/layers/LayerWriter.h"
#include "qgis/project/LayerOrder.h"
#include "qgis/project/LayerOwnValues.h"
#include "qgis/project/NamingTheLayer.h"
#include "qgis/project/ProjectMirror.h"
#include "qgis/project/RowChanges.h"
#include "qgis/project/SignalBatch.h"
#include "qgis/project/StoredRows.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <QMap>
#include <QStringList>
#include <qgsmaplayer.h>
#include <qgsproject.h>
#include <qgsrenderer.h>
#include <qgsvectorlayer.h>

#include <utility>

namespace Orvane {

MirrorChanges ProjectMirror::Write(const QSet<qint32>& layerIDs, Meant meant)
{
    const std::vector<Change> changes = ChangesOf(layerIDs, meant);
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
    TellMissingStyles(changes);
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

std::vector<ProjectMirror::Change> ProjectMirror::ChangesOf(const QSet<qint32>& layerIDs, Meant meant)
{
    std::vector<Change> changes;
    changes.reserve(size_t(layerIDs.size()));
    for (const qint32 layerID : layerIDs) {
        QgsMapLayer* layer = Layer(layerID);
        const LayerValues* known = m_rows.Find(layerID);
        const auto stored = StoredRows::Read(m_store, layerID);
        if (layer && stored && known && StoredRows::AreDifferent(*known, *stored))
            changes.push_back(
                {layer, layerID, *known, RowChanges::Writable(*known, *stored), *stored, meant});
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
    for (const Change& change : changes) {
        if (!change.layer)
            continue;
        const QString name = change.layer->name();
        const WrittenLayer written = NamingTheLayer(name, [&] {
            const std::optional<Change> restyled = Restyled(change, nodes, batch);
            return WriteLook(restyled ? *restyled : change, nodes, batch);
        });
        refused.Add(name, written.refused, change.before, change.stored);
        if (change.layer)
            batch.Add(*change.layer);
    }
    return refused;
}

WrittenLayer ProjectMirror::WriteLook(const Change& change, const LayerNodes& nodes, SignalBatch& batch)
{
    return WriteLayer(
        *change.layer, nodes, change.before, change.after,
        [&batch](QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer) {
            batch.SetRenderer(layer, std::move(renderer));
        });
}

// With another style current, other columns differ from those that are wanted.
std::optional<ProjectMirror::Change>
ProjectMirror::Restyled(const Change& change, const LayerNodes& nodes, SignalBatch& batch)
{
    const Value& number = ValueOf(change.after, "Style");
    if (!change.layer->isValid() || number.IsNull() || !Differs(change.before, change.after, "Style"))
        return std::nullopt; // what is lost is saved as it was read
    const QString style = m_styles.NameIn(*change.layer, ToInt32(number));
    if (style.isEmpty())
        return std::nullopt;
    if (const auto before = m_styleEdits.Before(change.layerID, change.before, change.stored))
        WriteLook(
            {change.layer, change.layerID, change.before, *before, *before, change.meant}, nodes, batch);
    batch.Restyle(*change.layer, [&] { LayerOwnValues::SwitchStyle(*change.layer, nodes, style); });
    Change restyled = change;
    restyled.before = RowOf(*change.layer, nodes, ValueOf(change.before, "Priority"));
    if (change.meant == Meant::Changes) {
        m_styleEdits.Begin(change.layerID, change.before, restyled.before);
        restyled.after = RowChanges::OnlyChanges(change.before, change.stored, restyled.before);
    }
    restyled.after = RowChanges::Writable(restyled.before, restyled.after);
    return restyled;
}

void ProjectMirror::TellMissingStyles(const std::vector<Change>& changes)
{
    QMap<qint32, QStringList> refusals; // layers by styles that they lack
    for (const Change& change : changes) {
        const Value& style = ValueOf(change.stored, "Style");
        const LayerValues* taken = m_rows.Find(change.layerID);
        if (change.layer && change.layer->isValid() && taken && !style.IsNull()
            && Differs(*taken, change.stored, "Style"))
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
        m_styleEdits.End(change.layerID, change.before);
        change.stored = change.after;
        change.meant = Meant::WholeRows;
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
            Store(RowOf(*change.layer, nodes, LayerOrder::PriorityIn(priorities, *change.layer)), differing);
            m_styleEdits.End(change.layerID, *m_rows.Find(change.layerID));
        }
    });
}

} // namespace Orvane
