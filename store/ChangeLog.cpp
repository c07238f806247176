// SPDX-License-Identifier: MIT
#include "store/ChangeLog.h"

#include "store/ChangeMerger.h"
#include "store/ChangesetReader.h"
#include "store/SpooledBytes.h"

#include <algorithm>

namespace Orvane {

ChangeLog::ChangeLog() : m_rows(std::make_unique<SpooledBytes>())
{
}

ChangeLog::~ChangeLog() = default;

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
    m_row.clear();
    ChangedRows::AppendHead(m_row, size_t(m_table), m_kind, m_key, size_t(m_columnCount));
    m_row += m_columns;
    m_rows->Append(m_row);
}

void ChangeLog::Add(const ChangedRow& row)
{
    m_row.clear();
    ChangedRows::Append(m_row, row);
    m_rows->Append(m_row);
}

size_t ChangeLog::Size() const
{
    return size_t(m_rows->Size());
}

void ChangeLog::GoBackTo(size_t size)
{
    if (size < m_rows->Size())
        m_rows->ShrinkTo(size);
}

void ChangeLog::Clear()
{
    m_tables.clear();
    m_rows->ShrinkTo(0);
}

Changeset ChangeLog::ChangesSince(size_t size) const
{
    return ChangeMerger(*m_rows, m_tables).ChangesSince(size);
}

} // namespace Orvane
