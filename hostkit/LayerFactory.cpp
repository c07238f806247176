// SPDX-License-Identifier: MIT
#include "hostkit/LayerFactory.h"

#include "hostkit/LayerDeletion.h"
#include "hostkit/common/FillPatterns.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/LayerRow.h"
#include "hostkit/common/NextNumbers.h"
#include "hostkit/common/StoredScale.h"
#include "hostkit/schemes/SchemeTables.h"
#include "store/ILayerStore.h"
#include "store/KeyLists.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QLocale>

#include <algorithm>
#include <optional>
#include <unordered_set>
#include <utility>

namespace Orvane {

namespace {

constexpr int FewNames = 8; // at first; nearly always the first ones are free
constexpr int ManyNames = 512; // in one query at most

bool HasRow(ILayerDatabase& database, const QString& query)
{
    return !database.OpenRecordset(query)->AtEOF();
}

QStringList NamesOf(ILayerStore& database, const QString& query, qint32 layerID)
{
    QStringList names;
    const auto rows = database.OpenQuery(query, {layerID});
    for (; !rows->AtEOF(); rows->MoveNext())
        names << ToTextOrNone(rows->Field("Name"));
    return names;
}

// Of each group or scheme once: its rows follow each other. Foreign files may hold IDs beyond 32 bits.
QStringList
NamesOfAny(ILayerStore& database, const QString& query, const std::unordered_set<double>& layerIDs)
{
    QStringList names;
    std::optional<double> last;
    const auto rows = database.OpenQuery(query, {});
    for (; !rows->AtEOF(); rows->MoveNext()) {
        const Value layerID = rows->Field("LayerID");
        const Value ownerID = rows->Field("ID");
        const bool isWanted = layerID.IsNumber() && layerIDs.count(ToDouble(layerID)) > 0;
        if (isWanted && ownerID.IsNumber() && std::exchange(last, ToDouble(ownerID)) != ToDouble(ownerID))
            names << ToTextOrNone(rows->Field("Name"));
    }
    return names;
}

// Those of the names that layers have, and perhaps others that the store counts as equal.
QSet<QString> TakenOf(ILayerStore& database, const QStringList& names)
{
    QStringList parameters;
    std::vector<Value> values;
    values.reserve(size_t(names.size()));
    for (const QString& name : names) {
        values.emplace_back(name);
        parameters << u'?' + QString::number(values.size());
    }
    QSet<QString> taken;
    const auto layers = database.OpenQuery(
        QStringLiteral("SELECT Name FROM Layers WHERE Name IN (%1)")
            .arg(parameters.join(QLatin1String(", "))),
        values);
    for (; !layers->AtEOF(); layers->MoveNext())
        taken.insert(ToTextOrNone(layers->Field("Name")));
    return taken;
}

void DeleteRows(ILayerStore& database, const std::vector<qint32>& layerIDs)
{
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        database.Send(QStringLiteral("DELETE FROM LayerGroupMembers WHERE LayerID IN ") + list, values);
        // The layers' values in schemes refer to these rows and are removed with them.
        database.Send(QStringLiteral("DELETE FROM Layers WHERE LayerID IN ") + list, values);
    });
}

} // namespace

qint32 LayerFactory::Create()
{
    return StoreWithNextNumbers(
        [this] { return LayerRow::FreeIDs(m_database, 1).front(); },
        [this](qint32 layerID) {
            const QString name = UnusedName();
            Transaction transaction(m_database);
            Insert(layerID, name);
            transaction.Commit();
            m_names.Set(layerID, name);
            return layerID;
        });
}

void LayerFactory::Delete(qint32 layerID)
{
    Delete(std::vector{layerID});
}

LayerDeletion LayerFactory::WhatGoes(qint32 layerID)
{
    LayerDeletion deletion;
    deletion.layer = m_names.NameOfOne(layerID);
    deletion.groups = NamesOf(
        m_database,
        QStringLiteral("SELECT Name FROM LayerGroups JOIN LayerGroupMembers ON GroupID = ID"
                       " WHERE LayerID = ?1 ORDER BY GroupOrdering, ID"),
        layerID);
    if (SchemeTables(m_database).HaveSchemes()) {
        deletion.schemes = NamesOf(
            m_database,
            QStringLiteral("SELECT Name FROM LayerSchemes JOIN LayerSchemeValues USING (SchemeID)"
                           " WHERE LayerID = ?1 ORDER BY SchemeID"),
            layerID);
    }
    return deletion;
}

void LayerFactory::Delete(const std::vector<qint32>& layerIDs)
{
    Transaction transaction(m_database);
    DeleteRows(m_database, layerIDs);
    transaction.Commit();
    for (const qint32 layerID : layerIDs)
        m_names.Remove(layerID);
}

LayerDeletion LayerFactory::WhatGoes(const std::vector<qint32>& layerIDs)
{
    if (layerIDs.size() == 1)
        return WhatGoes(layerIDs.front());
    const std::unordered_set<double> wanted(layerIDs.begin(), layerIDs.end());
    LayerDeletion deletion;
    deletion.layers = qsizetype(layerIDs.size());
    deletion.layer = tr("%1 layers").arg(QLocale().toString(deletion.layers));
    deletion.groups = NamesOfAny(
        m_database,
        QStringLiteral("SELECT ID, Name, LayerID FROM LayerGroups JOIN LayerGroupMembers ON GroupID = ID"
                       " ORDER BY GroupOrdering, ID"),
        wanted);
    if (SchemeTables(m_database).HaveSchemes()) {
        deletion.schemes = NamesOfAny(
            m_database,
            QStringLiteral("SELECT SchemeID AS ID, Name, LayerID FROM LayerSchemes"
                           " JOIN LayerSchemeValues USING (SchemeID) ORDER BY SchemeID"),
            wanted);
    }
    return deletion;
}

bool LayerFactory::CanDelete(qint32 layerID)
{
    return HasRow(
        m_database,
        QStringLiteral("SELECT LayerID FROM Layers WHERE LayerID = %1 AND SystemLayer IS NOT TRUE")
            .arg(layerID));
}

std::vector<qint32> LayerFactory::Deletable(const std::vector<qint32>& layerIDs)
{
    std::unordered_set<qint32> found;
    KeyLists::ForEachBlock(layerIDs, {}, [&](const QString& list, const std::vector<Value>& values) {
        const auto rows = m_database.OpenQuery(
            QStringLiteral("SELECT LayerID FROM Layers WHERE SystemLayer IS NOT TRUE AND LayerID IN ") + list,
            values);
        for (; !rows->AtEOF(); rows->MoveNext())
            found.insert(ToInt32(rows->Field("LayerID")));
    });
    std::vector<qint32> deletable = layerIDs;
    std::erase_if(deletable, [&](qint32 layerID) { return found.count(layerID) == 0; });
    return deletable;
}

bool LayerFactory::IsCodeAssigned(qint16 code)
{
    return HasRow(m_database, QStringLiteral("SELECT LayerID FROM Layers WHERE Code = %1 LIMIT 1").arg(code));
}

// Names are looked up in blocks, so that many new layers take few queries and the names of others none.
QString LayerFactory::UnusedName()
{
    int next = 1;
    for (int count = FewNames;; count = std::min(2 * count, ManyNames)) {
        QStringList names;
        for (const int end = next + count; next < end; ++next)
            names << NewName(next);
        const QSet<QString> taken = TakenOf(m_database, names);
        for (const QString& name : names) {
            if (!taken.contains(name))
                return name;
        }
    }
}

QString LayerFactory::NewName(int number)
{
    const QString first = tr("New layer");
    return number == 1 ? first : tr("%1 %2", "a new layer's name and its number").arg(first).arg(number);
}

void LayerFactory::Insert(qint32 layerID, const QString& name)
{
    LayerRow layer;
    layer.Set("Name", name);
    layer.Set("Code", LayerRow::LowestFreeCode(m_database));
    layer.Set("FillBackColor", TransparentColour);
    layer.Set("FillStyle", HollowFill);
    layer.Set("Priority", DefaultPriority);
    layer.StoreAs(layerID, m_database);
}

} // namespace Orvane
