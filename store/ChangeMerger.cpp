// SPDX-License-Identifier: MIT
#include "store/ChangeMerger.h"

#include "store/ChangesetMaker.h"
#include "store/ChangesetReader.h"

#include <algorithm>
#include <deque>
#include <functional>
#include <iterator>
#include <utility>

namespace Orvane {

namespace {

constexpr size_t HashStep = 0x9e3779b9; // keys of different tables are different rows

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

// Several changes of one row as one.
class MergedRow
{
public:
    explicit MergedRow(const std::vector<ChangedTable>& tables) : m_tables(tables) { }

    void Add(const ChangedRow& next)
    {
        if (std::exchange(m_isGone, false))
            m_row = next;
        else if (next.kind == ChangeKind::Deleted)
            Delete(next);
        else
            Change(next);
        TakeOver();
    }
    // Whether the row is as it was before all changes, or nothing was added.
    bool IsGone() const { return m_isGone; }
    bool IsOf(const ChangedRow& row) const { return row.table == m_row.table && row.key == m_row.key; }
    std::string_view Bytes() const { return m_bytes; }

private:
    void Delete(const ChangedRow& next)
    {
        m_isGone = m_row.kind == ChangeKind::Inserted;
        if (m_isGone)
            m_row.columns.clear(); // a deletion needs values before, which it has not
        else if (m_row.kind == ChangeKind::Updated)
            m_row.columns = DeletedAfterUpdate(next.columns, m_row.columns);
        m_row.kind = ChangeKind::Deleted;
    }
    void Change(const ChangedRow& next)
    {
        if (m_row.kind == ChangeKind::Deleted)
            m_row.kind = ChangeKind::Updated; // the row exists again
        OverlayAfter(m_row.columns, next.columns);
        if (m_row.kind == ChangeKind::Inserted)
            return;
        DropUnchanged(m_row.columns);
        m_isGone = m_row.columns.empty();
    }
    // The row points into bytes of its own afterwards.
    void TakeOver()
    {
        std::string bytes;
        ChangedRows::Append(bytes, m_row);
        m_bytes.swap(bytes);
        ChangeBytes reader(m_bytes);
        ChangedRows::Read(reader, m_tables, m_row);
    }

    const std::vector<ChangedTable>& m_tables;
    std::string m_bytes;
    ChangedRow m_row;
    bool m_isGone = true;
};

} // namespace

Changeset ChangeMerger::ChangesSince(quint64 start)
{
    Changes changes = Read(start);
    const auto byHash = [](const Change& a, const Change& b) {
        return a.hash != b.hash ? a.hash < b.hash : a.place < b.place;
    };
    std::sort(changes.begin(), changes.end(), byHash);
    const auto again = std::adjacent_find(
        changes.begin(), changes.end(), [](const Change& a, const Change& b) { return a.hash == b.hash; });
    return again == changes.end() ? AsTheyAre(start) : Merged(changes);
}

ChangeMerger::Changes ChangeMerger::Read(quint64 start)
{
    Changes changes;
    ChangedRow row;
    for (quint64 next = start; next < m_log.Size();) {
        const quint64 place = next;
        ChangeBytes bytes(m_log.Read(next, m_buffer));
        ChangedRows::ReadHead(bytes, m_tables, row);
        changes.push_back({place, std::hash<std::string_view>()(row.key) ^ (row.table * HashStep)});
    }
    return changes;
}

Changeset ChangeMerger::AsTheyAre(quint64 start)
{
    ChangesetMaker maker(m_tables);
    while (start < m_log.Size())
        maker.Add(m_log.Read(start, m_buffer));
    return maker.Finish();
}

// changes: ordered by their hashes.
Changeset ChangeMerger::Merged(Changes& changes)
{
    std::vector<Changes::const_iterator> rows; // the first change of each
    rows.reserve(changes.size());
    for (auto change = changes.cbegin(); change != changes.cend(); ++change) {
        if (change == changes.cbegin() || change->hash != std::prev(change)->hash)
            rows.push_back(change);
    }
    std::sort(rows.begin(), rows.end(), [](const auto& a, const auto& b) { return a->place < b->place; });
    ChangesetMaker maker(m_tables);
    for (const Changes::const_iterator& row : rows)
        AddRow(maker, row, changes.cend());
    return maker.Finish();
}

bool ChangeMerger::IsAlone(Changes::const_iterator change, Changes::const_iterator end)
{
    const auto next = std::next(change);
    return next == end || next->hash != change->hash;
}

// Adds the row that first changed there; or several, if their hashes are the same.
void ChangeMerger::AddRow(ChangesetMaker& maker, Changes::const_iterator first, Changes::const_iterator end)
{
    if (IsAlone(first, end)) {
        quint64 place = first->place;
        return maker.Add(m_log.Read(place, m_buffer));
    }
    std::deque<MergedRow> merged; // which are not moved
    ChangedRow row;
    for (auto change = first; change != end && change->hash == first->hash; ++change) {
        quint64 place = change->place;
        ChangeBytes bytes(m_log.Read(place, m_buffer));
        ChangedRows::Read(bytes, m_tables, row);
        const auto known = std::find_if(
            merged.begin(), merged.end(), [&](const MergedRow& other) { return other.IsOf(row); });
        (known == merged.end() ? merged.emplace_back(m_tables) : *known).Add(row);
    }
    for (const MergedRow& one : merged) {
        if (!one.IsGone())
            maker.Add(one.Bytes());
    }
}

} // namespace Orvane
