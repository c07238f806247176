// SPDX-License-Identifier: MIT
#include "hostkit/lists/LayerGroups.h"

#include "hostkit/common/NextNumbers.h"
#include "hostkit/lists/ListedIDs.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Orvane {

namespace {

std::vector<qint32>
NumbersIn(ILayerStore& store, const QString& query, const char* column, const std::vector<Value>& values)
{
    std::vector<qint32> numbers;
    const auto rows = store.OpenQuery(query, values);
    for (; !rows->AtEOF(); rows->MoveNext()) {
        if (const std::optional<qint32> number = Int32In(rows->Field(column)))
            numbers.push_back(*number);
    }
    return numbers;
}

qint32 NumberAfter(ILayerStore& store, const QString& query, const std::vector<Value>& values = {})
{
    const auto highest = store.OpenQuery(query, values);
    return ToInt32(ToDouble(highest->Field("Highest")) + 1);
}

QSet<qint32>
Found(ILayerStore& store, const QString& query, const char* column, const std::vector<qint32>& ids)
{
    QSet<qint32> found;
    KeyLists::ForEachBlock(ids, {}, [&](const QString& list, const std::vector<Value>& values) {
        const std::vector<qint32> block = NumbersIn(store, query + list, column, values);
        found.unite({block.begin(), block.end()});
    });
    return found;
}

void RequireGroups(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    const QSet<qint32> found
        = Found(store, QStringLiteral("SELECT ID FROM LayerGroups WHERE ID IN "), "ID", groupIDs);
    for (const qint32 groupID : groupIDs) {
        if (!found.contains(groupID))
            ListedIDs::RaiseUnknownGroup(groupID);
    }
}

void RequireGroup(ILayerStore& store, qint32 groupID)
{
    RequireGroups(store, {groupID});
}

void RequireLayers(ILayerStore& store, const std::vector<qint32>& layerIDs)
{
    const QSet<qint32> found
        = Found(store, QStringLiteral("SELECT LayerID FROM Layers WHERE LayerID IN "), "LayerID", layerIDs);
    for (const qint32 layerID : layerIDs) {
        if (!found.contains(layerID))
            ListedIDs::RaiseUnknownLayer(layerID);
    }
}

using Orderings = QHash<qint32, double>; // of layers

QHash<qint32, Orderings> StoredOrderings(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    QHash<qint32, Orderings> orderings;
    KeyLists::ForEachBlock(groupIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto members = store.OpenQuery(
            QStringLiteral("SELECT GroupID, LayerID, Ordering FROM LayerGroupMembers WHERE GroupID IN ")
                + list,
            values);
        for (; !members->AtEOF(); members->MoveNext()) {
            const double ordering = NumberIn(members->Field("Ordering")).value_or(-1);
            orderings[ToInt32(members->Field("GroupID"))].insert(
                ToInt32(members->Field("LayerID")), ordering);
        }
    });
    return orderings;
}

void StoreMember(ILayerStore& store, qint32 groupID, qint32 layerID, qint32 ordering)
{
    store.Send(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) VALUES (?1, ?2, ?3)"
                       " ON CONFLICT (GroupID, LayerID) DO UPDATE SET Ordering = excluded.Ordering"),
        {groupID, layerID, ordering});
}

void RemoveMembers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    KeyLists::ForEachBlock(layerIDs, {groupID}, [&](const QString& list, const std::vector<Value>& values) {
        store.Send(
            QStringLiteral("DELETE FROM LayerGroupMembers WHERE GroupID = ?1 AND LayerID IN ") + list,
            values);
    });
}

void NumberMembers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs, Orderings stored)
{
    qint32 ordering = 0;
    for (const qint32 layerID : layerIDs) {
        ++ordering;
        const auto known = stored.constFind(layerID);
        if (known == stored.constEnd() || *known != ordering)
            StoreMember(store, groupID, layerID, ordering);
        stored.remove(layerID);
    }
    RemoveMembers(store, groupID, {stored.keyBegin(), stored.keyEnd()});
}

void NumberGroups(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    qint32 ordering = 0;
    for (const qint32 groupID : groupIDs) {
        store.Send(
            QStringLiteral("UPDATE LayerGroups SET GroupOrdering = ?2"
                           " WHERE ID = ?1 AND (GroupOrdering IS NULL OR GroupOrdering <> ?2)"),
            {groupID, ++ordering});
    }
}

} // namespace

qint32 LayerGroups::Create(ILayerStore& store, const QString& name, const std::vector<qint32>& layerIDs)
{
    const auto nextID = [&] {
        return NumberAfter(store, QStringLiteral("SELECT COALESCE(MAX(ID), 0) AS Highest FROM LayerGroups"));
    };
    return StoreWithNextNumbers(nextID, [&](qint32 groupID) {
        Transaction transaction(store);
        ListedIDs::RequireOnceEach(layerIDs);
        RequireLayers(store, layerIDs);
        const qint32 ordering = NumberAfter(
            store, QStringLiteral("SELECT COALESCE(MAX(GroupOrdering), 0) AS Highest FROM LayerGroups"));
        store.Execute(
            QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering) VALUES (?1, ?2, ?3)"),
            {groupID, name, ordering});
        NumberMembers(store, groupID, layerIDs, {});
        transaction.Commit();
        return groupID;
    });
}

void LayerGroups::Rename(ILayerStore& store, qint32 groupID, const QString& name)
{
    if (store.Execute(QStringLiteral("UPDATE LayerGroups SET Name = ?2 WHERE ID = ?1"), {groupID, name}) == 0)
        ListedIDs::RaiseUnknownGroup(groupID);
}

void LayerGroups::Delete(ILayerStore& store, qint32 groupID)
{
    Delete(store, std::vector{groupID});
}

void LayerGroups::Delete(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    Transaction transaction(store);
    RequireGroups(store, groupIDs);
    KeyLists::ForEachBlock(groupIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        store.Send(QStringLiteral("DELETE FROM LayerGroupMembers WHERE GroupID IN ") + list, values);
        store.Send(QStringLiteral("DELETE FROM LayerGroups WHERE ID IN ") + list, values);
    });
    transaction.Commit();
}

void LayerGroups::AddLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    Transaction transaction(store);
    RequireGroup(store, groupID);
    ListedIDs::RequireOnceEach(layerIDs);
    RequireLayers(store, layerIDs);
    const Orderings stored = StoredOrderings(store, {groupID}).value(groupID);
    qint32 ordering = NumberAfter(
        store,
        QStringLiteral("SELECT COALESCE(MAX(Ordering), 0) AS Highest FROM LayerGroupMembers"
                       " WHERE GroupID = ?1"),
        {groupID});
    for (const qint32 layerID : layerIDs) {
        if (!stored.contains(layerID))
            StoreMember(store, groupID, layerID, ordering++);
    }
    transaction.Commit();
}

void LayerGroups::RemoveLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    Transaction transaction(store);
    RequireGroup(store, groupID);
    RemoveMembers(store, groupID, layerIDs);
    transaction.Commit();
}

std::vector<qint32> LayerGroups::Layers(ILayerStore& store, qint32 groupID)
{
    RequireGroup(store, groupID);
    return NumbersIn(
        store,
        QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID = ?1"
                       " ORDER BY Ordering, LayerID"),
        "LayerID", {groupID});
}

void LayerGroups::SetLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    SetLayers(store, {{groupID, layerIDs}});
}

void LayerGroups::SetLayers(ILayerStore& store, const std::map<qint32, std::vector<qint32>>& groups)
{
    Transaction transaction(store);
    std::vector<qint32> groupIDs;
    std::vector<qint32> layerIDs;
    groupIDs.reserve(groups.size());
    for (const auto& [groupID, layers] : groups) {
        ListedIDs::RequireOnceEach(layers);
        groupIDs.push_back(groupID);
        layerIDs.insert(layerIDs.end(), layers.begin(), layers.end());
    }
    RequireGroups(store, groupIDs);
    RequireLayers(store, layerIDs);
    const QHash<qint32, Orderings> stored = StoredOrderings(store, groupIDs);
    for (const auto& [groupID, layers] : groups)
        NumberMembers(store, groupID, layers, stored.value(groupID));
    transaction.Commit();
}

std::vector<qint32> LayerGroups::Order(ILayerStore& store)
{
    return NumbersIn(
        store, QStringLiteral("SELECT ID FROM LayerGroups ORDER BY GroupOrdering, ID"), "ID", {});
}

void LayerGroups::SetOrder(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    Transaction transaction(store);
    ListedIDs::RequireOnceEach(groupIDs);
    std::vector<qint32> order = groupIDs;
    const std::vector<qint32> stored = Order(store);
    const QSet<qint32> known(stored.begin(), stored.end());
    for (const qint32 groupID : groupIDs) {
        if (!known.contains(groupID))
            ListedIDs::RaiseUnknownGroup(groupID);
    }
    const QSet<qint32> first(groupIDs.begin(), groupIDs.end());
    std::copy_if(stored.begin(), stored.end(), std::back_inserter(order), [&](qint32 groupID) {
        return !first.contains(groupID);
    });
    NumberGroups(store, order);
    transaction.Commit();
}

} // namespace Orvane
