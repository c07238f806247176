// SPDX-License-Identifier: MIT
#include "store/ChangeMerger.h"

#include "store/ChangesetReader.h"

#include <algorithm>

namespace Orvane {

namespace {

using Columns = std::vector<ChangedRow::Column>;

ChangedRow::Column* ColumnAt(Columns& columns, int position)
{
    const auto found = std::find_if(
        columns.begin(), columns.end(), [&](const auto& column) { return column.position == position; });
    return found == columns.end() ? nullptr : &*found;
}

// Puts the values after the next change in place of the earlier ones.
void OverlayAfter(Columns& columns, const Columns& next)
{
    for (const ChangedRow::Column& change : next) {
        if (ChangedRow::Column* column = ColumnAt(columns, change.position))
            column->after = change.after;
        else
            columns.push_back(change);
    }
}

void DropUnchanged(Columns& columns)
{
    columns.erase(
        std::remove_if(
            columns.begin(), columns.end(), [](const auto& column) { return column.before == column.after; }),
        columns.end());
}

// The columns of a deleted row as they were before an earlier update.
Columns DeletedAfterUpdate(const Columns& deleted, Columns& updated)
{
    Columns columns = deleted;
    for (ChangedRow::Column& column : columns) {
        if (const ChangedRow::Column* change = ColumnAt(updated, column.position))
            column.before = change->before;
    }
    return columns;
}

} // namespace

void ChangeMerger::Add(const ChangedRow& row)
{
    if (m_places.size() <= row.table)
        m_places.resize(row.table + 1);
    const auto [place, isNew] = m_places[row.table].try_emplace(row.key, m_entries.size());
    if (isNew)
        m_entries.push_back({row, false});
    else
        Merge(m_entries[place->second], row);
}

void ChangeMerger::Merge(Entry& entry, const ChangedRow& next)
{
    ChangedRow& row = entry.row;
    if (entry.isGone) {
        row = next;
    } else if (next.kind == ChangeKind::Deleted) {
        if (row.kind == ChangeKind::Updated)
            row.columns = DeletedAfterUpdate(next.columns, row.columns);
        entry.isGone = row.kind == ChangeKind::Inserted;
        row.kind = ChangeKind::Deleted;
        return;
    } else if (row.kind == ChangeKind::Deleted) {
        row.kind = ChangeKind::Updated; // the row exists again
        OverlayAfter(row.columns, next.columns);
        DropUnchanged(row.columns);
    } else {
        OverlayAfter(row.columns, next.columns);
        if (row.kind == ChangeKind::Updated)
            DropUnchanged(row.columns);
    }
    entry.isGone = row.kind == ChangeKind::Updated && row.columns.empty();
}

std::string ChangeMerger::Rows() const
{
    std::string rows;
    for (const Entry& entry : m_entries) {
        if (!entry.isGone)
            ChangedRows::Append(rows, entry.row);
    }
    return rows;
}

} // namespace Orvane
