// SPDX-License-Identifier: MIT
#include "store/sqlite/TableAccess.h"

namespace Orvane {

namespace {

constexpr size_t MaxUpdates = 32;

QString SeekText(const char* columns, const char* table, const char* key)
{
    return QStringLiteral("SELECT %1 FROM %2 WHERE %3 = ?1")
        .arg(QLatin1String(columns), QLatin1String(table), QLatin1String(key));
}

QString NextKeyText(const char* table, const char* key)
{
    return QStringLiteral("SELECT %2 FROM %1 WHERE %2 > ?1 ORDER BY %2 LIMIT 1")
        .arg(QLatin1String(table), QLatin1String(key));
}

bool HasColumns(const std::vector<int>& positions, const PendingEdit& edit)
{
    return std::equal(
        positions.begin(), positions.end(), edit.Columns().begin(), edit.Columns().end(),
        [](int position, const PendingEdit::SetColumn& column) { return position == column.position; });
}

std::vector<int> PositionsOf(const PendingEdit& edit)
{
    std::vector<int> positions;
    for (const auto& column : edit.Columns())
        positions.push_back(column.position);
    return positions;
}

} // namespace

TableAccess::TableAccess(
    SqliteConnection& connection, const char* table, const char* indexName, const char* keyColumn)
    : m_connection(connection), m_table(table), m_indexName(indexName), m_keyColumn(keyColumn),
      m_seek(connection, SeekText("*", table, keyColumn)),
      m_probe(connection, SeekText(keyColumn, table, keyColumn)),
      m_nextKey(connection, NextKeyText(table, keyColumn))
{
}

SqliteStatement& TableAccess::UpdateOf(const PendingEdit& edit, const SqliteStatement& row)
{
    if (m_lastUpdate < m_updates.size() && HasColumns(m_updates[m_lastUpdate].positions, edit))
        return *m_updates[m_lastUpdate].statement;
    for (m_lastUpdate = 0; m_lastUpdate < m_updates.size(); ++m_lastUpdate) {
        if (HasColumns(m_updates[m_lastUpdate].positions, edit))
            return *m_updates[m_lastUpdate].statement;
    }
    auto statement = std::make_unique<SqliteStatement>(m_connection, UpdateText(edit, row));
    if (m_updates.size() == MaxUpdates)
        m_updates.clear();
    m_lastUpdate = m_updates.size();
    m_updates.push_back({PositionsOf(edit), std::move(statement)});
    return *m_updates.back().statement;
}

QString TableAccess::UpdateText(const PendingEdit& edit, const SqliteStatement& row) const
{
    std::string text = "UPDATE " + std::string(m_table) + " SET ";
    int number = 0;
    for (const auto& column : edit.Columns()) {
        if (number > 0)
            text += ", ";
        text += '"' + row.ColumnName(column.position) + "\" = ?" + std::to_string(++number);
    }
    text += " WHERE " + std::string(m_keyColumn) + " = ?" + std::to_string(number + 1);
    return QString::fromStdString(text);
}

} // namespace Orvane
