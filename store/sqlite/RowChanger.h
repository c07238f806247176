// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangedRow.h"
#include "store/sqlite/engine/SqliteStatement.h"

#include <memory>
#include <vector>

namespace Orvane {

struct SqliteSession;

/// Applies recorded changes row by row. Each row must be as its change expects it.
class RowChanger
{
public:
    enum class Outcome {
        Done,
        Conflict, ///< the row is not as expected
        Blocked, ///< a constraint forbids the change, perhaps only for now
    };

    /// session: not owned; a write must be possible, see TransactionStack::PrepareWrite.
    explicit RowChanger(SqliteSession& session) : m_session(session) { }

    /// Raises database errors.
    Outcome Change(const ChangedTable& table, const ChangedRow& row);

private:
    // Changes of the same columns of the same table share one statement.
    struct Known {
        size_t table;
        ChangeKind kind;
        std::vector<int> positions;
        std::unique_ptr<SqliteStatement> statement;
    };

    SqliteStatement& StatementFor(const ChangedTable& table, const ChangedRow& row);
    Outcome Run(SqliteStatement& statement, const ChangedTable& table, const ChangedRow& row);
    bool IsThere(const ChangedTable& table, const ChangedRow& row);

    SqliteSession& m_session;
    std::vector<Known> m_known;
    size_t m_last = 0; // the one used last: rows that changed alike follow each other
};

} // namespace Orvane
