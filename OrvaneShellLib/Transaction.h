// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/ILayerDatabase.h>

namespace Orvane {

/// A transaction of a layer database that is rolled back unless it is committed.
///
///     Transaction transaction(database);
///     ... change rows, any of which may raise ...
///     transaction.Commit();
///
/// The database must outlive it. Works with any layer database, and nests. Declare it before the cursors that
/// work inside it, so that they are closed when it is rolled back.
class Transaction
{
public:
    /// Begins the transaction. Raises what BeginTrans raises.
    explicit Transaction(ILayerDatabase& database) : m_database(database) { m_database.BeginTrans(); }

    /// Rolls back unless Commit has returned. Never raises: a failing rollback must not hide the error that
    /// led to it, and a database itself undoes what was not committed.
    ~Transaction()
    {
        if (!m_open)
            return;
        try {
            m_database.Rollback();
        } catch (...) { // the error that led here is the one to report
        }
    }

    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Commits the changes. If it raises, the transaction is still open and the destructor rolls it back.
    void Commit()
    {
        m_database.CommitTrans();
        m_open = false;
    }

private:
    ILayerDatabase& m_database;
    bool m_open = true;
};

} // namespace Orvane
