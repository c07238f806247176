// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

namespace Orvane {

class ChangeWatch;
class OpenRows;
class SqliteConnection;
class SqliteStatement;

/// The transactions of one connection: the outermost is an SQLite transaction, inner ones are savepoints.
///
/// A transaction begins as a read transaction, which no other program can block. Its first write takes the
/// write lock, waiting for it like any other write. If another program has written in the meantime, the
/// transaction is restarted on the current state, which loses nothing because so far it has only read.
class TransactionStack
{
public:
    TransactionStack(SqliteConnection& connection, OpenRows& openRows, ChangeWatch& changes)
        : m_connection(connection), m_openRows(openRows), m_changes(changes)
    {
    }

    void Begin();
    /// Raises if no transaction is open, or if the database has rolled it back after an error.
    void Commit();
    /// Does nothing if no transaction is open.
    void Rollback();

    /// Makes sure that the next write is possible: raises if the database is read-only or the transaction was
    /// rolled back, and takes the write lock inside a transaction. Cursors may lose the statements of their
    /// rows, but not the rows themselves.
    void PrepareWrite();
    /// Runs a writing statement to its end and resets it.
    void RunWrite(SqliteStatement& statement);

private:
    bool IsLost() const;
    void TakeWriteLock();
    void Restart();

    SqliteConnection& m_connection;
    OpenRows& m_openRows;
    ChangeWatch& m_changes;
    std::vector<size_t> m_places; // in the log of changes, where each transaction began
    int m_depth = 0;
    bool m_writing = false;
};

} // namespace Orvane
