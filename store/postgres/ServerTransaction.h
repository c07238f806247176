// SPDX-License-Identifier: MIT
#pragma once

#include "store/postgres/link/ServerRows.h"
#include "store/postgres/link/ServerValue.h"

#include <QByteArray>
#include <QtGlobal>

#include <chrono>
#include <cstddef>
#include <optional>

namespace Orvane {

class ServerConnection;
class ServerPipeline;

/// The transaction that a session has open in its server, and the savepoints in it: level 1 is the
/// transaction itself. Levels begin together with the first statement that needs them.
///
///     server.Plan();
///     server.AddLevels(pipeline, 1);
///     pipeline: statements
///     server.NoteAnswer(all that begins levels has succeeded)
class ServerTransaction
{
public:
    /// The connection outlives this object.
    explicit ServerTransaction(ServerConnection& connection) : m_connection(connection) { }

    /// How many levels the server has.
    int Levels() const { return m_levels; }
    /// The server may have fewer levels than that, or cannot be reached.
    bool IsBroken() const;
    /// It is broken, or takes no statement any more.
    bool IsLost() const;

    /// What the transaction leaves in the map's news if it changes rows, see TransactionToken; empty for
    /// nothing. It holds for transactions that begin from now on.
    void SetToken(const QByteArray& token) { m_token = token; }

    /// To be called before anything is added to a pipeline.
    void Plan();
    /// Adds what begins the levels up to that one.
    void AddLevels(ServerPipeline& pipeline, int level);
    /// Adds what gives a statement its token that follows without a transaction.
    void AddToken(ServerPipeline& pipeline) const;
    /// Adds what limits how long statements wait for locks.
    void AddPatience(ServerPipeline& pipeline, std::chrono::milliseconds left);
    /// Adds a statement which, if the server refuses it, leaves the transaction as it was: see UndoStep.
    /// Returns its number.
    size_t AddStep(ServerPipeline& pipeline, const QByteArray& sql, const ServerValues& values) const;
    /// To be called when the pipeline has been answered. isDone: the levels have begun.
    void NoteAnswer(bool isDone);
    /// To be called when the server has refused a statement: it has perhaps forgotten its settings.
    void ForgetPatience() { m_patience.reset(); }
    /// The server's levels are not what they should be.
    void SetUncertain() { m_isUncertain = true; }

    /// Takes back the step that was refused.
    void UndoStep();
    /// What ends the innermost level, which is a savepoint, and keeps what it changed. The caller sends it.
    QByteArray Release();
    /// Ends the innermost level, which is a savepoint, and undoes what it changed. Returns the answer to a
    /// question that is asked afterwards.
    ServerRows RollBackLevel(const QByteArray& question);
    /// Ends the whole transaction, and does not wait for it. The server does so by itself if it cannot be
    /// reached.
    void RollBack();
    /// As RollBack, for a transaction that has changed nothing.
    void CommitUnchanged() { End("COMMIT"); }
    /// The server has ended the transaction.
    void NoteEnd();

private:
    void AddBeginning(ServerPipeline& pipeline) const;
    void End(const char* statement);

    ServerConnection& m_connection;
    QByteArray m_token;
    int m_levels = 0;
    int m_plannedLevels = 0; // once the pipeline has been answered
    std::optional<qint64> m_patience; // what the server has, if that is certain; in milliseconds
    std::optional<qint64> m_plannedPatience;
    bool m_isUncertain = false;
};

} // namespace Orvane
