// SPDX-License-Identifier: MIT
#include "hostkit/lists/StoredList.h"

#include "hostkit/common/LayerRow.h"
#include "hostkit/lists/LayerGroups.h"
#include "hostkit/lists/ListedFields.h"
#include "hostkit/lists/ListedIDs.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>
#include <QStringList>

#include <algorithm>
#include <map>

namespace Orvane {

namespace {

using ListedFields::ColumnValue;

template <typename Entry> std::vector<qint32> IDsOf(const std::vector<Entry>& entries)
{
    std::vector<qint32> ids(entries.size());
    std::transform(entries.begin(), entries.end(), ids.begin(), [](const Entry& entry) { return entry.id; });
    return ids;
}

template <typename Entry> QHash<qint32, Entry> ByID(const std::vector<Entry>& entries)
{
    QHash<qint32, Entry> byID;
    byID.reserve(int(entries.size()));
    for (const Entry& entry : entries)
        byID.insert(entry.id, entry);
    return byID;
}

void AddListedLayer(ILayerStore& store, const ListedLayer& layer)
{
    LayerRow row;
    for (const ColumnValue& column : ListedFields::Columns(layer))
        row.Set(column.column, column.value);
    row.StoreAs(layer.id, store);
}

void StoreColumns(ILayerStore& store, qint32 layerID, const std::vector<ColumnValue>& columns)
{
    QStringList assignments;
    std::vector<Value> values{layerID};
    values.reserve(columns.size() + 1);
    for (const ColumnValue& column : columns) {
        values.push_back(column.value);
        assignments << QStringLiteral("%1 = ?%2").arg(QLatin1String(column.column)).arg(values.size());
    }
    store.Send(
        QStringLiteral("UPDATE Layers SET %1 WHERE LayerID = ?1").arg(assignments.join(QLatin1String(", "))),
        values);
}

void DeleteListedLayers(ILayerStore& store, const std::vector<qint32>& layerIDs)
{
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        store.Send(QStringLiteral("DELETE FROM LayerGroupMembers WHERE LayerID IN ") + list, values);
        store.Send(QStringLiteral("DELETE FROM Layers WHERE LayerID IN ") + list, values);
    });
}

bool UpdateLayers(ILayerStore& store, const std::vector<ListedLayer>& layers)
{
    ListedIDs::RequireOnceEach(IDsOf(layers));
    QHash<qint32, ListedLayer> stored = ByID(StoredList::Layers(store));
    bool differs = false;
    for (const ListedLayer& layer : layers) {
        const auto known = stored.constFind(layer.id);
        if (known == stored.constEnd()) {
            AddListedLayer(store, layer);
            differs = true;
            continue;
        }
        const std::vector<ColumnValue> columns = ListedFields::Differences(*known, layer);
        if (!columns.empty())
            StoreColumns(store, layer.id, columns);
        differs |= !columns.empty();
        stored.remove(layer.id);
    }
    DeleteListedLayers(store, {stored.keyBegin(), stored.keyEnd()});
    return differs || !stored.isEmpty();
}

void AddListedGroup(ILayerStore& store, const ListedGroup& group)
{
    store.Send(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, Pseudo, Expanded) VALUES (?1, ?2, ?3, ?4)"),
        {group.id, group.name, group.pseudo, group.expanded});
}

void StoreListedGroup(ILayerStore& store, const ListedGroup& group)
{
    store.Send(
        QStringLiteral("UPDATE LayerGroups SET Name = ?2, Pseudo = ?3 WHERE ID = ?1"),
        {group.id, group.name, group.pseudo});
}

// known: as it is stored; nullptr for a new group.
bool UpdateName(ILayerStore& store, const ListedGroup& group, const ListedGroup* known)
{
    if (known && known->name == group.name && known->pseudo == group.pseudo)
        return false;
    if (known)
        StoreListedGroup(store, group);
    else
        AddListedGroup(store, group);
    return true;
}

bool UpdateGroups(ILayerStore& store, const std::vector<ListedGroup>& groups)
{
    const std::vector<qint32> wanted = IDsOf(groups);
    ListedIDs::RequireOnceEach(wanted);
    const std::vector<ListedGroup> before = StoredList::Groups(store);
    QHash<qint32, ListedGroup> stored = ByID(before);
    std::map<qint32, std::vector<qint32>> otherLayers;
    bool differs = IDsOf(before) != wanted;
    for (const ListedGroup& group : groups) {
        const auto found = stored.constFind(group.id);
        const ListedGroup* known = found == stored.constEnd() ? nullptr : &*found;
        differs |= UpdateName(store, group, known);
        if (!known || known->layers != group.layers)
            otherLayers.emplace(group.id, group.layers);
        stored.remove(group.id);
    }
    LayerGroups::SetLayers(store, otherLayers);
    LayerGroups::Delete(store, std::vector<qint32>(stored.keyBegin(), stored.keyEnd()));
    if (IDsOf(before) != wanted)
        LayerGroups::SetOrder(store, wanted);
    return differs || !otherLayers.empty();
}

void ReadMembers(ILayerStore& store, std::vector<ListedGroup>& groups)
{
    QHash<qint32, std::vector<qint32>> layers;
    const auto rows = store.OpenRecordset(QStringLiteral("SELECT GroupID, LayerID FROM LayerGroupMembers"
                                                         " ORDER BY GroupID, Ordering, LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const std::optional<qint32> layerID = Int32In(rows->Field("LayerID"));
        if (layerID)
            layers[Int32In(rows->Field("GroupID")).value_or(0)].push_back(*layerID);
    }
    for (ListedGroup& group : groups)
        group.layers = layers.value(group.id);
}

bool IsSet(const IRecordset& row, const char* column)
{
    return NumberIn(row.Field(column)).value_or(0) != 0;
}

} // namespace

std::vector<ListedLayer> StoredList::Layers(ILayerStore& store)
{
    std::vector<ListedLayer> layers;
    const auto rows = store.OpenRecordset(QStringLiteral("SELECT * FROM Layers ORDER BY LayerID"));
    for (; !rows->AtEOF(); rows->MoveNext())
        layers.push_back(ListedFields::Read(*rows));
    std::erase_if(layers, [](const ListedLayer& layer) { return layer.id == 0; });
    return layers;
}

std::optional<ListedLayer> StoredList::Layer(ILayerStore& store, qint32 layerID)
{
    const auto row = store.OpenQuery(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID});
    return row->AtEOF() ? std::nullopt : std::optional(ListedFields::Read(*row));
}

std::vector<ListedGroup> StoredList::Groups(ILayerStore& store)
{
    std::vector<ListedGroup> groups;
    {
        const auto rows
            = store.OpenRecordset(QStringLiteral("SELECT ID, Name, Pseudo, Expanded FROM LayerGroups"
                                                 " ORDER BY GroupOrdering, ID"));
        for (; !rows->AtEOF(); rows->MoveNext()) {
            groups.push_back(
                {Int32In(rows->Field("ID")).value_or(0),
                 ToTextOrNone(rows->Field("Name")),
                 {},
                 IsSet(*rows, "Pseudo"),
                 IsSet(*rows, "Expanded")});
        }
    }
    std::erase_if(groups, [](const ListedGroup& group) { return group.id == 0; });
    ReadMembers(store, groups);
    return groups;
}

bool StoredList::Update(ILayerStore& store, const std::vector<ListedLayer>& layers)
{
    Transaction transaction(store);
    const bool differs = UpdateLayers(store, layers);
    transaction.Commit();
    return differs;
}

bool StoredList::Update(
    ILayerStore& store, const std::vector<ListedLayer>& layers, const std::vector<ListedGroup>& groups)
{
    Transaction transaction(store);
    const bool layersDiffer = UpdateLayers(store, layers);
    const bool groupsDiffer = UpdateGroups(store, groups);
    transaction.Commit();
    return layersDiffer || groupsDiffer;
}

} // namespace Orvane
