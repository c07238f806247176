// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/PendingEdit.h"
#include "store/sqlite/engine/StatementPool.h"

#include <QString>

#include <memory>
#include <string_view>
#include <vector>

namespace Orvane {

/// The names and prepared statements that all cursors over one table share.
class TableAccess
{
public:
    /// indexName: the index over keyColumn, by which rows are looked up.
    TableAccess(
        SqliteConnection& connection, const char* table, const char* indexName, const char* keyColumn);

    std::string_view Name() const { return m_table; }
    std::string_view IndexName() const { return m_indexName; }
    std::string_view KeyColumn() const { return m_keyColumn; }

    /// Reads the row with the key ?1.
    StatementLease LeaseSeek() { return StatementLease(m_seek); }
    /// Only checks whether there is a row with the key ?1, at half the cost.
    StatementLease LeaseProbe() { return StatementLease(m_probe); }
    /// Reads the smallest key above the key ?1.
    StatementLease LeaseNextKey() { return StatementLease(m_nextKey); }
    /// Stores the columns of an edit, in order from ?1 on; the row's key is the parameter after them. row
    /// supplies the column names. Prepared once per set of columns.
    SqliteStatement& UpdateOf(const PendingEdit& edit, const SqliteStatement& row);

    /// True when the last row's columns were read. A loop usually treats all rows the same way: it either
    /// reads columns of every row or only writes to every row.
    bool ExpectsReading() const { return m_expectsReading; }
    void ExpectReading(bool reading) { m_expectsReading = reading; }

private:
    struct Update {
        std::vector<int> positions;
        std::unique_ptr<SqliteStatement> statement;
    };

    QString UpdateText(const PendingEdit& edit, const SqliteStatement& row) const;

    SqliteConnection& m_connection;
    std::string_view m_table;
    std::string_view m_indexName;
    std::string_view m_keyColumn;
    StatementPool m_seek;
    StatementPool m_probe;
    StatementPool m_nextKey;
    std::vector<Update> m_updates;
    size_t m_lastUpdate = 0;
    bool m_expectsReading = true;
};

} // namespace Orvane
