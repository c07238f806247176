// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/PendingWrites.h"
#include "store/postgres/ServerTransaction.h"
#include "store/postgres/link/ServerErrors.h"
#include "store/postgres/link/ServerRows.h"
#include "store/postgres/link/ServerValue.h"
#include "store/shared/ActionPatience.h"

#include <QByteArray>
#include <QtGlobal>

#include <chrono>

namespace Orvane {

class ServerChangeLog;
class ServerConnection;
class ServerPipeline;

/// Runs the statements of one session in its server, each together with the writes that are pending.
///
/// If another transaction is in the way, and the server has got no writes so far but pending updates, the
/// transaction begins again and the updates are sent again, if the rows still hold what they held. Otherwise
/// DatabaseLocked is raised. If a pending write is refused, the transaction is lost.
class TransactionRunner
{
public:
    enum class Kind {
        Read, ///< shows what is pending
        ReadBeside, ///< need not show it: it stays pending
        Write,
    };

    /// The connection, and the log of what it changes, outlive this object.
    TransactionRunner(
        ServerConnection& connection, ServerChangeLog& log, std::chrono::milliseconds busyTimeout);

    ServerTransaction& Server() { return m_server; }
    const ServerTransaction& Server() const { return m_server; }
    PendingWrites& Pending() { return m_pending; }

    /// Runs one statement. level: of the transaction, to which a write belongs; 0 outside of one, where it is
    /// stored at once. One that the server refuses leaves the transaction as it was.
    ServerRows Run(const QByteArray& sql, const ServerValues& values, Kind kind, int level);
    /// Stores the transaction, which has changed something or has pending writes. If it raises, the
    /// transaction is lost.
    void Commit();

    /// True if the server has got writes of the transaction.
    bool HasWritten() const { return m_hasWritten; }
    void SetHasWritten(bool hasWritten) { m_hasWritten = hasWritten; }
    /// To be called when nothing that was read so far is used any more.
    void ForgetReads() { m_hasRead = false; }
    /// To be called when the server has refused a statement: perhaps it has waited for a lock.
    void NoteWaiting(const ServerError& error);
    /// To be called after each write that was stored.
    void NoteStored() { m_patience.NoteSuccess(); }
    /// How often a transaction has begun again: rows that were read before may be different then.
    quint64 Restarts() const { return m_restarts; }

private:
    ServerRows RunPrepared(const QByteArray& sql, const ServerValues& values, Kind kind);
    ServerRows RunOnce(const QByteArray& sql, const ServerValues& values, Kind kind);
    void CommitOnce();
    void AddPending(ServerPipeline& pipeline, Kind kind);
    void NoteAnswer(bool isBegun, Kind kind);
    void NoteRefusal(const ServerError& error);
    bool MayBeginAgain() const;
    void BeginAgain();
    [[noreturn]] void RaiseRefusal(const ServerError& error) const;
    void TakeChanges(const ServerRows& changes);

    ServerConnection& m_connection;
    ServerChangeLog& m_log;
    ServerTransaction m_server;
    PendingWrites m_pending;
    ActionPatience m_patience;
    quint64 m_restarts = 0;
    int m_level = 0; // of what runs
    bool m_hasWritten = false;
    bool m_hasRead = false; // since the transaction is prepared to write
};

} // namespace Orvane
