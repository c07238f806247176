// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/ILayerDatabase.h>
#include <OrvaneShellLib/RunTimeError.h>

namespace Orvane {

/// A scoped transaction: it is rolled back unless committed.
///
///     StoreTransaction transaction(database);
///     ... change rows ...
///     transaction.Commit();
///
/// The database must outlive it. Works with any layer database, and nests.
class StoreTransaction
{
public:
    /// Begins the transaction.
    explicit StoreTransaction(ILayerDatabase& database) : m_database(database) { m_database.BeginTrans(); }

    /// Rolls back unless Commit has returned. Never throws: nobody is left to handle the error, and the
    /// database itself undoes what was not committed.
    ~StoreTransaction()
    {
        if (!m_open)
            return;
        try {
            m_database.Rollback();
        } catch (const RunTimeError&) {
        }
    }

    StoreTransaction(const StoreTransaction&) = delete;
    StoreTransaction& operator=(const StoreTransaction&) = delete;

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
