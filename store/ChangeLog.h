// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/Changeset.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

class SpooledBytes;

/// Changed rows in the order in which they changed, possibly with several changes of one row. A store writes
/// it while changes are recorded. A long log is in a temporary file; what writes or reads it raises
/// DatabaseFailure when there is no room for that.
class ChangeLog
{
public:
    ChangeLog();
    ~ChangeLog();
    ChangeLog(const ChangeLog&) = delete;
    ChangeLog& operator=(const ChangeLog&) = delete;

    /// The position of the table in the log, or -1. A table that got more columns may have been added again;
    /// the last position is returned.
    int FindTable(std::string_view name) const;
    /// Adds a table and returns its position. Tables without keys may be added too; they get no rows.
    int AddTable(ChangedTable table);
    const ChangedTable& Table(int position) const { return m_tables[size_t(position)]; }

    /// Starts a row; columns are added to it, then it is finished. key: the coded values of the key.
    void BeginRow(int table, ChangeKind kind, std::string_view key);
    /// before, after: coded values; for an insertion only after is kept, for a deletion only before.
    void AddColumn(int position, std::string_view before, std::string_view after);
    /// An update without changed columns adds no row.
    void FinishRow();
    /// Adds a whole row.
    void Add(const ChangedRow& row);

    /// How much was written so far, for GoBackTo and ChangesSince.
    size_t Size() const;
    /// Forgets the rows that were written after that size was reached. Raises nothing.
    void GoBackTo(size_t size);
    void Clear();

    /// All changes since that size was reached, once per row.
    Changeset ChangesSince(size_t size) const;

private:
    std::vector<ChangedTable> m_tables;
    std::unique_ptr<SpooledBytes> m_rows;
    std::string m_row; // coded
    std::string m_key; // of the row that was begun
    std::string m_columns;
    int m_table = 0;
    ChangeKind m_kind = ChangeKind::Updated;
    int m_columnCount = 0;
};

} // namespace Orvane
