// SPDX-License-Identifier: MIT
#pragma once

#include "store/sqlite/engine/SqliteStatement.h"

#include <QByteArray>

#include <cstddef>
#include <vector>

namespace Orvane {

class ChangeWatch;
class OpenRows;
class SqliteConnection;

/// The transactions of one connection: the outermost is an SQLite transaction, inner ones are savepoints.
///
/// A transaction begins as a read transaction, which no other program can block. Its first write takes the
/// write lock, waiting for it like any other write. If another program has written in the meantime, the
/// transaction is restarted on the current state, which loses nothing because so far it has only read.
///
/// After an error SQLite may have fewer or more levels open than were begun here. A transaction that SQLite
/// has ended, or whose levels are not certain, is lost: it stores nothing more, and each attempt raises until
/// its outermost level is rolled back. What remains open after that is rolled back before anything else runs.
class TransactionStack
{
public:
    TransactionStack(SqliteConnection& connection, OpenRows& openRows, ChangeWatch& changes);

    void Begin();
    /// Raises if no transaction is open, or if it is lost.
    void Commit();
    /// Does nothing if no transaction is open. Raises if SQLite refuses; the level is ended nevertheless.
    void Rollback();

    /// Makes sure that outside a transaction SQLite has none open either: otherwise a write would succeed
    /// and never be stored. Rolls back what is open; raises DatabaseFailure if that is not possible.
    void Settle();
    /// As Settle; raises also if a transaction is lost.
    void RequireIntact();
    /// Makes sure that the next write is possible: raises if the database is read-only or as RequireIntact,
    /// and takes the write lock inside a transaction. Cursors may lose the statements of their rows, but not
    /// the rows themselves.
    void PrepareWrite();
    /// Runs a writing statement to its end and resets it.
    void RunWrite(SqliteStatement& statement);

private:
    bool IsLost() const;
    void BeginLevel();
    void RollBackAll();
    void RollBackLevel();
    void RunInside(const QByteArray& sql);
    void TakeWriteLock();
    void Restart();
    int StepWaiting(SqliteStatement& statement);

    SqliteConnection& m_connection;
    OpenRows& m_openRows;
    ChangeWatch& m_changes;
    SqliteStatement m_rollback; // prepared, because it must run even when there is no memory
    std::vector<size_t> m_places; // in the log of changes, where each transaction began
    int m_depth = 0;
    bool m_writing = false;
    bool m_isUncertain = false; // a savepoint failed: SQLite's levels may differ from ours
};

} // namespace Orvane
