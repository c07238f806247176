// SPDX-License-Identifier: MIT
#include "benchmarks/layers/BareLoops.h"

#include <sqlite3.h>

namespace Orvane::Benchmarks {

BareLoops::BareLoops(const QString& mapPath)
    : m_sql(mapPath), m_flatList(m_sql.Prepared("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name")),
      m_groupedTree(m_sql.Prepared(
          "SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
          " FROM LayerGroupMembers, LayerGroups, Layers WHERE LayerGroupMembers.LayerID=Layers.LayerID"
          " AND LayerGroupMembers.GroupID=LayerGroups.ID AND LayerGroups.Pseudo = False"
          " ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID")),
      m_members(m_sql.Prepared("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=?1")),
      m_layer(m_sql.Prepared(
          "SELECT Name, Code, Visible, Selectable, locked, Hitable, SnapRequired, Enquirable, Color,"
          " FillForeColor, FillBackColor, OutlineStyle, FillStyle, LineThickness, MinVisScale,"
          " MaxVisScale, Priority, Style FROM Layers WHERE LayerID = ?1")),
      m_update(
          m_sql.Prepared("UPDATE Layers SET OverrideMode = ?2, Visible = ?3, Selectable = ?4, locked = ?5,"
                         " Hitable = ?6, SnapRequired = ?7, Enquirable = ?8, FillForeColor = ?9,"
                         " FillBackColor = ?10, Color = ?11, OutlineStyle = ?12, FillStyle = ?13,"
                         " LineThickness = ?14, MinVisScale = ?15, MaxVisScale = ?16, Priority = ?17,"
                         " Style = ?18 WHERE LayerID = ?1"))
{
}

void BareLoops::ReadFlatList()
{
    ReadAll(m_flatList.get());
}

void BareLoops::ReadGroupedTree()
{
    ReadAll(m_groupedTree.get());
}

void BareLoops::ReadAll(sqlite3_stmt* statement)
{
    while (sqlite3_step(statement) == SQLITE_ROW)
        ReadRow(statement);
    sqlite3_reset(statement);
}

void BareLoops::ReadRow(sqlite3_stmt* statement)
{
    const int count = sqlite3_column_count(statement);
    for (int i = 0; i < count; ++i) {
        switch (sqlite3_column_type(statement, i)) {
        case SQLITE_INTEGER:
            m_checksum += sqlite3_column_int64(statement, i);
            break;
        case SQLITE_FLOAT:
            m_checksum += qint64(sqlite3_column_double(statement, i));
            break;
        case SQLITE_TEXT:
            m_checksum += sqlite3_column_text(statement, i)[0] + sqlite3_column_bytes(statement, i);
            break;
        default:
            break;
        }
    }
}

std::vector<int> BareLoops::MembersOf(qint32 groupID) const
{
    std::vector<int> layerIDs;
    sqlite3_bind_int(m_members.get(), 1, groupID);
    while (sqlite3_step(m_members.get()) == SQLITE_ROW)
        layerIDs.push_back(sqlite3_column_int(m_members.get(), 0));
    sqlite3_reset(m_members.get());
    return layerIDs;
}

void BareLoops::ReadMembers(qint32 groupID)
{
    m_sql.Execute("BEGIN");
    for (const int layerID : MembersOf(groupID)) {
        sqlite3_bind_int(m_layer.get(), 1, layerID);
        ReadAll(m_layer.get());
    }
    m_sql.Execute("COMMIT");
}

void BareLoops::WriteMembers(qint32 groupID, bool visible)
{
    m_sql.Execute("BEGIN");
    sqlite3_stmt* update = m_update.get();
    for (const int layerID : MembersOf(groupID)) {
        sqlite3_bind_int(update, 1, layerID);
        for (int number = 2; number <= 18; ++number)
            sqlite3_bind_int(update, number, number);
        sqlite3_bind_int(update, 3, visible);
        sqlite3_bind_double(update, 15, 500.5);
        m_sql.Run(update);
    }
    m_sql.Execute("COMMIT");
}

} // namespace Orvane::Benchmarks
