// SPDX-License-Identifier: MIT
#include "hostkit/lists/LayerGroups.h"

#include "hostkit/lists/ListedIDs.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QHash>
#include <QSet>

#include <algorithm>

namespace Orvane {

namespace {

bool HasID(ILayerStore& store, const QString& query, qint32 id)
{
    return !store.OpenQuery(query, {id})->AtEOF();
}

void RequireGroup(ILayerStore& store, qint32 groupID)
{
    if (!HasID(store, QStringLiteral("SELECT ID FROM LayerGroups WHERE ID = ?1"), groupID))
        ListedIDs::RaiseUnknownGroup(groupID);
}

void RequireLayers(ILayerStore& store, const std::vector<qint32>& layerIDs)
{
    ListedIDs::RequireOnceEach(layerIDs);
    const auto query = QStringLiteral("SELECT LayerID FROM Layers WHERE LayerID = ?1");
    for (const qint32 layerID : layerIDs) {
        if (!HasID(store, query, layerID))
            ListedIDs::RaiseUnknownLayer(layerID);
    }
}

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

QHash<qint32, double> Orderings(ILayerStore& store, qint32 groupID)
{
    QHash<qint32, double> orderings;
    const auto members = store.OpenQuery(
        QStringLiteral("SELECT LayerID, Ordering FROM LayerGroupMembers WHERE GroupID = ?1"), {groupID});
    for (; !members->AtEOF(); members->MoveNext()) {
        const double ordering = NumberIn(members->Field("Ordering")).value_or(-1);
        orderings.insert(ToInt32(members->Field("LayerID")), ordering);
    }
    return orderings;
}

void StoreMember(ILayerStore& store, qint32 groupID, qint32 layerID, qint32 ordering)
{
    store.Execute(
        QStringLiteral("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering) VALUES (?1, ?2, ?3)"
                       " ON CONFLICT (GroupID, LayerID) DO UPDATE SET Ordering = excluded.Ordering"),
        {groupID, layerID, ordering});
}

void RemoveMember(ILayerStore& store, qint32 groupID, qint32 layerID)
{
    store.Execute(
        QStringLiteral("DELETE FROM LayerGroupMembers WHERE GroupID = ?1 AND LayerID = ?2"),
        {groupID, layerID});
}

void NumberMembers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    QHash<qint32, double> stored = Orderings(store, groupID);
    qint32 ordering = 0;
    for (const qint32 layerID : layerIDs) {
        ++ordering;
        const auto known = stored.constFind(layerID);
        if (known == stored.constEnd() || *known != ordering)
            StoreMember(store, groupID, layerID, ordering);
        stored.remove(layerID);
    }
    for (auto left = stored.keyBegin(); left != stored.keyEnd(); ++left)
        RemoveMember(store, groupID, *left);
}

void NumberGroups(ILayerStore& store, const std::vector<qint32>& groupIDs)
{
    qint32 ordering = 0;
    for (const qint32 groupID : groupIDs) {
        store.Execute(
            QStringLiteral("UPDATE LayerGroups SET GroupOrdering = ?2"
                           " WHERE ID = ?1 AND (GroupOrdering IS NULL OR GroupOrdering <> ?2)"),
            {groupID, ++ordering});
    }
}

} // namespace

qint32 LayerGroups::Create(ILayerStore& store, const QString& name, const std::vector<qint32>& layerIDs)
{
    Transaction transaction(store);
    RequireLayers(store, layerIDs);
    const qint32 groupID
        = NumberAfter(store, QStringLiteral("SELECT COALESCE(MAX(ID), 0) AS Highest FROM LayerGroups"));
    const qint32 ordering = NumberAfter(
        store, QStringLiteral("SELECT COALESCE(MAX(GroupOrdering), 0) AS Highest FROM LayerGroups"));
    store.Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, Name, GroupOrdering) VALUES (?1, ?2, ?3)"),
        {groupID, name, ordering});
    NumberMembers(store, groupID, layerIDs);
    transaction.Commit();
    return groupID;
}

void LayerGroups::Rename(ILayerStore& store, qint32 groupID, const QString& name)
{
    if (store.Execute(QStringLiteral("UPDATE LayerGroups SET Name = ?2 WHERE ID = ?1"), {groupID, name}) == 0)
        ListedIDs::RaiseUnknownGroup(groupID);
}

void LayerGroups::Delete(ILayerStore& store, qint32 groupID)
{
    Transaction transaction(store);
    store.Execute(QStringLiteral("DELETE FROM LayerGroupMembers WHERE GroupID = ?1"), {groupID});
    if (store.Execute(QStringLiteral("DELETE FROM LayerGroups WHERE ID = ?1"), {groupID}) == 0)
        ListedIDs::RaiseUnknownGroup(groupID);
    transaction.Commit();
}

void LayerGroups::AddLayers(ILayerStore& store, qint32 groupID, const std::vector<qint32>& layerIDs)
{
    Transaction transaction(store);
    RequireGroup(store, groupID);
    RequireLayers(store, layerIDs);
    const QHash<qint32, double> stored = Orderings(store, groupID);
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
    for (const qint32 layerID : layerIDs)
        RemoveMember(store, groupID, layerID);
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
    Transaction transaction(store);
    RequireGroup(store, groupID);
    RequireLayers(store, layerIDs);
    NumberMembers(store, groupID, layerIDs);
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
