// SPDX-License-Identifier: MIT
#include "hosts/MemoryStore.h"

#include "hosts/LooseStore.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane::Testing {

MemoryStore::MemoryStore() : m_database(NewLooseStore())
{
}

MemoryStore::~MemoryStore() = default;

ILayerDatabase& MemoryStore::Database()
{
    return *m_database;
}

void MemoryStore::Insert(const QString& table, const QStringList& columns, const std::vector<Value>& values)
{
    QStringList places;
    for (std::size_t number = 1; number <= values.size(); ++number)
        places.append(QStringLiteral("?%1").arg(number));
    m_database->Execute(
        QStringLiteral("INSERT INTO %1 (%2) VALUES (%3)")
            .arg(table, columns.join(QStringLiteral(", ")), places.join(QStringLiteral(", "))),
        values);
}

void MemoryStore::AddLayer(const LayerSpec& layer)
{
    Insert(
        QStringLiteral("Layers"),
        {"LayerID",      "Name",         "Code",          "Visible",     "Selectable",    "locked",
         "Hitable",      "SnapRequired", "Enquirable",    "Color",       "FillForeColor", "FillBackColor",
         "OutlineStyle", "FillStyle",    "LineThickness", "MinVisScale", "MaxVisScale",   "Priority",
         "Style",        "OverrideMode", "SystemLayer",   "Pseudo"},
        {layer.id,           layer.name,      layer.code,          layer.visible,
         layer.selectable,   layer.locked,    layer.hitable,       layer.snapRequired,
         layer.enquirable,   layer.color,     layer.fillForeColor, layer.fillBackColor,
         layer.outlineStyle, layer.fillStyle, layer.lineThickness, layer.minVisScale,
         layer.maxVisScale,  layer.priority,  layer.style,         layer.overrideMode,
         layer.systemLayer,  layer.pseudo});
}

void MemoryStore::AddGroup(const GroupSpec& group)
{
    Insert(
        QStringLiteral("LayerGroups"), {"ID", "Name", "GroupOrdering", "Pseudo", "Expanded"},
        {group.id, group.name, group.ordering, group.pseudo, group.expanded});
}

void MemoryStore::AddMember(qint32 groupID, qint32 layerID, qint32 ordering)
{
    Insert(
        QStringLiteral("LayerGroupMembers"), {"GroupID", "LayerID", "Ordering"},
        {groupID, layerID, ordering});
}

void MemoryStore::RemoveRows(const QString& table, const QString& column, qint32 value)
{
    m_database->Execute(QStringLiteral("DELETE FROM %1 WHERE %2 = ?1").arg(table, column), {value});
}

void MemoryStore::SetColumn(
    const QString& table, const QString& key, qint32 id, const char* column, const Value& value)
{
    const QString sql = QStringLiteral("UPDATE %1 SET %2 = ?1 WHERE %3 = ?2");
    m_database->Execute(sql.arg(table, QString::fromLatin1(column), key), {value, id});
}

void MemoryStore::SetLayerColumn(qint32 layerID, const char* column, const Value& value)
{
    SetColumn(QStringLiteral("Layers"), QStringLiteral("LayerID"), layerID, column, value);
}

void MemoryStore::SetGroupColumn(qint32 groupID, const char* column, const Value& value)
{
    SetColumn(QStringLiteral("LayerGroups"), QStringLiteral("ID"), groupID, column, value);
}

Value MemoryStore::FirstValue(const QString& sql, const std::vector<Value>& values, const char* column)
{
    const auto rows = m_database->OpenQuery(sql, values);
    return rows->AtEOF() ? Value() : rows->Field(column);
}

Value MemoryStore::LayerColumn(qint32 layerID, const char* column)
{
    return FirstValue(QStringLiteral("SELECT * FROM Layers WHERE LayerID = ?1"), {layerID}, column);
}

Value MemoryStore::GroupColumn(qint32 groupID, const char* column)
{
    return FirstValue(QStringLiteral("SELECT * FROM LayerGroups WHERE ID = ?1"), {groupID}, column);
}

qint32 MemoryStore::GreatestInLayers(const QString& column)
{
    const QString sql = QStringLiteral("SELECT COALESCE(MAX(%1), 0) AS Greatest FROM Layers").arg(column);
    return ToInt32(FirstValue(sql, {}, "Greatest"));
}

bool MemoryStore::HasCode(qint32 code)
{
    const QString sql = QStringLiteral("SELECT LayerID FROM Layers WHERE Code = ?1");
    return !FirstValue(sql, {code}, "LayerID").IsEmpty();
}

} // namespace Orvane::Testing
