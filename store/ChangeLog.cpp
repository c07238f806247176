// SPDX-License-Identifier: MIT
#include "store/ChangeLog.h"

#include "store/ChangeMerger.h"
#include "store/ChangesetReader.h"

#include <algorithm>
#include <unordered_set>

namespace Orvane {

namespace {

using KeySet = std::unordered_set<std::string_view>;

// True when no row occurs twice; then there is nothing to merge.
bool AreAllDifferent(std::string_view rows, const std::vector<ChangedTable>& tables)
{
    std::vector<KeySet> keys(tables.size());
    ChangeBytes bytes(rows);
    ChangedRow row;
    while (!bytes.AtEnd()) {
        ChangedRows::Read(bytes, tables, row);
        if (!keys[row.table].insert(row.key).second)
            return false;
    }
    return true;
}

std::string Merged(std::string_view rows, const std::vector<ChangedTable>& tables)
{
    ChangeMerger merger;
    ChangeBytes bytes(rows);
    ChangedRow row;
    while (!bytes.AtEnd()) {
        ChangedRows::Read(bytes, tables, row);
        merger.Add(row);
    }
    return merger.Rows();
}

} // namespace

int ChangeLog::FindTable(std::string_view name) const
{
    const auto found = std::find_if(
        m_tables.rbegin(), m_tables.rend(), [&](const ChangedTable& table) { return table.name == name; });
    return int(m_tables.rend() - found) - 1;
}

int ChangeLog::AddTable(ChangedTable table)
{
    m_tables.push_back(std::move(table));
    return int(m_tables.size()) - 1;
}

void ChangeLog::BeginRow(int table, ChangeKind kind, std::string_view key)
{
    m_table = table;
    m_kind = kind;
    m_key = key;
    m_columns.clear();
    m_columnCount = 0;
}

void ChangeLog::AddColumn(int position, std::string_view before, std::string_view after)
{
    ChangedRows::AppendColumn(m_columns, m_kind, {position, before, after});
    ++m_columnCount;
}

void ChangeLog::FinishRow()
{
    if (m_columnCount == 0)
        return;
    ChangedRows::AppendHead(m_rows, size_t(m_table), m_kind, m_key, size_t(m_columnCount));
    m_rows += m_columns;
}

void ChangeLog::Clear()
{
    m_tables.clear();
    m_rows.clear();
}

Changeset ChangeLog::ChangesSince(size_t size) const
{
    const std::string_view rows = std::string_view(m_rows).substr(std::min(size, m_rows.size()));
    if (AreAllDifferent(rows, m_tables))
        return Changeset(m_tables, rows);
    return Changeset(m_tables, Merged(rows, m_tables));
}

} // namespace Orvane
