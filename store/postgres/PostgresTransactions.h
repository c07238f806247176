// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/TransactionRunner.h"
#include "store/postgres/link/ServerRows.h"
#include "store/postgres/link/ServerValue.h"
#include "store/postgres/link/TransactionToken.h"

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <functional>
#include <optional>

namespace Orvane {

class ServerChangeLog;
class ServerConnection;

/// Runs the statements of one session, in the transactions that its caller opens: the outermost is a
/// transaction of the server, inner ones are savepoints. The transaction begins on the server with its first
/// statement, an inner level with its first write.
///
/// All statements of a transaction read one state. Its first write begins the transaction again on the
/// current state, which loses nothing because so far it has only read; so it does not collide with what
/// others stored in the meantime. A statement that the server refuses leaves the transaction as it was.
///
/// Updates of rows and sent statements are kept, and go to the server together with the next statement or
/// with the commit. If another transaction is in the way of updates that are the first writes, the
/// transaction begins again and stores them, unless the other one has changed the same columns of the same
/// rows: then DatabaseLocked is raised.
///
/// If the server ends a transaction or refuses what was kept, or the connection breaks, the transaction is
/// lost: it stores nothing more, and each attempt raises until its outermost level is rolled back. Outside of
/// a transaction a broken connection is made again; one that cannot be prepared for the session counts as
/// broken, and tells why. It is made again too if it breaks while a transaction is committed, to find out
/// whether the server has stored it.
class PostgresTransactions
{
public:
    /// Prepares a new connection for the session. If it raises, it gives the connection up.
    using Starter = std::function<void()>;

    /// The connection, and the log of what it changes, outlive this object. start: called for each connection
    /// that replaces a broken one.
    PostgresTransactions(
        ServerConnection& connection, ServerChangeLog& log, std::chrono::milliseconds busyTimeout,
        Starter start);

    void Begin();
    /// Raises if no transaction is open, or if it is lost.
    void Commit();
    /// Does nothing if no transaction is open. The level is ended in any case.
    void Rollback();
    /// True between Begin and the end of the outermost level.
    bool IsOpen() const { return m_depth > 0; }

    /// How many statements have only read since the outermost level began.
    int Reads() const { return m_reads; }

    /// True if the server has got writes of the open transaction.
    bool HasWritten() const { return m_depth > 0 && m_runner.HasWritten(); }

    /// Raises while the watcher runs, if a transaction is lost, or if the server cannot be reached.
    void RequireIntact();
    /// Makes sure that the next write is possible: raises as RequireIntact, and lets the transaction begin
    /// again if it has only read.
    void PrepareWrite();
    /// Runs a statement that only reads. Like all that follows, it raises UserCancelled if the watcher says
    /// so while the server works, even if the server was faster.
    ServerRows Read(const QByteArray& sql, const ServerValues& values = {});
    /// As Read, for rows that Update was not called for since State() changed.
    ServerRows ReadBeside(const QByteArray& sql, const ServerValues& values);
    /// Runs a statement that changes rows or tables, after PrepareWrite.
    ServerRows Write(const QByteArray& sql, const ServerValues& values = {});

    /// As Write, but within a transaction the statement is kept, and sent together with what comes next. If
    /// the server refuses it then, the transaction is lost.
    void Send(const QByteArray& sql, const ServerValues& values);
    /// As Send, for one row; the columns take the values, and the row was read in this state. False if there
    /// is no such row, outside of a transaction. State() stays.
    bool Update(const RowUpdate& update);
    /// Sends what is kept.
    void Flush();
    /// Runs what sends its statements itself. Call it within a transaction whose innermost level is rolled
    /// back if this raises.
    void WriteTogether(const std::function<void()>& act);

    /// Prepares a connection that was made again while no transaction is open. If that fails, the connection
    /// is given up, and this raises why.
    void UseNewConnection();
    /// To be called when others have changed rows, while no transaction is open.
    void NoteForeignChange() { ++m_state; }

    /// The token of the present transaction, or of the next.
    const TransactionToken& Token() const { return m_token; }

    /// A number that grows when rows that were read before may be different now.
    quint64 State() const { return m_state + m_runner.Restarts(); }

private:
    using Kind = TransactionRunner::Kind;

    bool IsLost() const { return m_depth > 0 && m_server.IsLost(); }
    void ConnectAgain();
    void JoinLevel();
    void CommitChanges();
    void CommitUnchanged();
    std::optional<bool> WasCommitted() noexcept;
    ServerRows WriteNow(const QByteArray& sql, const ServerValues& values);
    ServerRows WriteAlone(const QByteArray& sql, const ServerValues& values);
    ServerRows WriteWatched(const QByteArray& sql, const ServerValues& values);
    void RequireWanted();

    ServerConnection& m_connection;
    ServerChangeLog& m_log;
    TransactionRunner m_runner;
    ServerTransaction& m_server = m_runner.Server();
    PendingWrites& m_pending = m_runner.Pending();
    Starter m_start;
    TransactionToken m_token;
    std::optional<std::chrono::steady_clock::time_point> m_lastFailure; // to connect again
    quint64 m_state = 0;
    quint64 m_pendingState = 0; // when the first pending write came
    int m_reads = 0;
    int m_depth = 0; // levels that the caller has open
    bool m_isPrepared = false; // PrepareWrite was called in the transaction
};

} // namespace Orvane
