// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

class OpenRows;
class SqliteConnection;
class SqliteStatement;

/// The transactions of one connection: the outermost is a transaction of SQLite, inner ones are savepoints.
///
/// A transaction begins as a reading one, which no other program can hold up. Its first write takes the write
/// lock and waits for it like any other; when another program has written in the meantime, the transaction is
/// begun anew on the current state, which loses nothing as long as it only read.
class TransactionStack
{
public:
    TransactionStack(SqliteConnection& connection, OpenRows& openRows)
        : m_connection(connection), m_openRows(openRows)
    {
    }

    void Begin();
    /// Raises without a transaction, and when the database has undone it after an error.
    void Commit();
    /// Without a transaction it does nothing.
    void Rollback();

    /// Makes sure that the next write can be done: raises when the database is read-only or when the
    /// transaction was undone, and takes the write lock inside a transaction. Cursors may lose their rows'
    /// statements by it, not their rows.
    void PrepareWrite();
    /// Runs a writing statement to its end and resets it.
    void RunWrite(SqliteStatement& statement);

private:
    bool IsLost() const;
    void TakeWriteLock();
    void Restart();

    SqliteConnection& m_connection;
    OpenRows& m_openRows;
    int m_depth = 0;
    bool m_writing = false;
};

} // namespace Orvane
