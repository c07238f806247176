// SPDX-License-Identifier: MIT
#include "store/postgres/PostgresTransactions.h"

#include "store/StoreTexts.h"
#include "store/postgres/ServerChangeLog.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/shared/WorkWatch.h"

#include <OrvaneShellLib/Cancellation.h>

#include <utility>

namespace Orvane {

PostgresTransactions::PostgresTransactions(
    ServerConnection& connection, ServerChangeLog& log, std::chrono::milliseconds busyTimeout, Starter start)
    : m_connection(connection), m_log(log), m_runner(connection, log, busyTimeout), m_start(std::move(start))
{
}

void PostgresTransactions::Begin()
{
    RequireIntact();
    if (m_depth == 0) {
        m_isPrepared = false;
        m_reads = 0;
        m_token.Next();
        m_server.SetToken({});
        m_runner.SetHasWritten(false);
        ++m_state;
    }
    ++m_depth;
}

void PostgresTransactions::Commit()
{
    const StoreErrors& errors = m_connection.Errors();
    if (m_connection.Watch().IsAsking())
        m_connection.RequireUsable();
    if (m_depth == 0)
        throw errors.Failure(StoreTexts::NoTransaction);
    RequireIntact();
    if (m_depth > 1)
        return JoinLevel();
    if (m_runner.HasWritten() || !m_pending.IsEmpty())
        CommitChanges();
    else
        CommitUnchanged();
    m_depth = 0;
    ++m_state;
}

void PostgresTransactions::CommitChanges()
{
    try {
        m_runner.Commit();
    } catch (...) {
        const std::optional<bool> isStored = m_connection.IsLost() ? WasCommitted() : false;
        if (isStored != false)
            m_log.NoteGap();
        if (!isStored.value_or(false)) {
            m_server.SetUncertain(); // there may be a new connection, without the transaction
            throw;
        }
        m_pending.Clear();
        m_log.EndTransaction();
        m_runner.NoteStored();
    }
}

// The server joins its level, if it has one, when it gets the next statement.
void PostgresTransactions::JoinLevel()
{
    const int level = m_depth - 1;
    if (m_server.Levels() == m_depth)
        m_pending.Add(m_server.Release(), {}, level);
    m_pending.JoinAbove(level);
    m_depth = level;
}

void PostgresTransactions::Rollback()
{
    if (m_connection.Watch().IsAsking())
        m_connection.RequireUsable();
    if (m_depth == 0)
        return;
    ++m_state;
    --m_depth;
    m_pending.DropAbove(m_depth);
    if (m_depth > 0) {
        if (m_server.Levels() > m_depth && !m_server.IsBroken())
            m_log.GoBackTo(m_server.RollBackLevel(ServerChangeLog::PlaceQuery()));
        return;
    }
    m_pending.Clear();
    m_log.EndTransaction();
    m_server.RollBack();
}

void PostgresTransactions::CommitUnchanged()
{
    m_server.CommitUnchanged();
    m_log.EndTransaction();
}

void PostgresTransactions::RequireIntact()
{
    if (m_depth == 0 && m_connection.IsLost() && !m_connection.Watch().IsAsking())
        ConnectAgain();
    m_connection.RequireUsable();
    if (IsLost())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
}

void PostgresTransactions::PrepareWrite()
{
    RequireIntact();
    if (m_depth == 0 || m_isPrepared)
        return;
    if (m_server.Levels() > 0) {
        m_server.RollBack();
        ++m_state;
    }
    m_isPrepared = true;
    m_runner.ForgetReads();
    m_server.SetToken(m_token.Text());
}

ServerRows PostgresTransactions::Read(const QByteArray& sql, const ServerValues& values)
{
    RequireIntact();
    ++m_reads;
    ServerRows rows = m_runner.Run(sql, values, Kind::Read, m_depth);
    RequireWanted();
    return rows;
}

ServerRows PostgresTransactions::ReadBeside(const QByteArray& sql, const ServerValues& values)
{
    RequireIntact();
    ++m_reads;
    const bool areKnown = m_pending.IsEmpty() || m_pendingState == State(); // to the caller
    const bool mayStay = areKnown && m_pending.MayBeginAgain();
    ServerRows rows = m_runner.Run(sql, values, mayStay ? Kind::ReadBeside : Kind::Read, m_depth);
    RequireWanted();
    return rows;
}

ServerRows PostgresTransactions::Write(const QByteArray& sql, const ServerValues& values)
{
    ServerRows rows = WriteNow(sql, values);
    ++m_state;
    return rows;
}

ServerRows PostgresTransactions::WriteNow(const QByteArray& sql, const ServerValues& values)
{
    const WorkWatch& watch = m_connection.Watch();
    if (m_depth == 0 && watch.HasWatcher() && !watch.IsPaused())
        return WriteWatched(sql, values);
    PrepareWrite();
    ServerRows rows
        = m_depth == 0 ? WriteAlone(sql, values) : m_runner.Run(sql, values, Kind::Write, m_depth);
    m_runner.SetHasWritten(m_depth > 0);
    if (m_depth == 0)
        m_runner.NoteStored();
    RequireWanted();
    return rows;
}

// The server may be done before it hears that the user has cancelled, so it must not store by itself.
ServerRows PostgresTransactions::WriteWatched(const QByteArray& sql, const ServerValues& values)
{
    Begin();
    try {
        ServerRows rows = Write(sql, values);
        Commit();
        return rows;
    } catch (...) {
        Rollback();
        throw;
    }
}

// A statement that the user cancelled too late has succeeded.
void PostgresTransactions::RequireWanted()
{
    WorkWatch& watch = m_connection.Watch();
    if (!watch.IsPaused() && !watch.Ask())
        throw m_connection.Errors().Error(UserCancelled, StoreTexts::Cancelled);
}

void PostgresTransactions::Send(const QByteArray& sql, const ServerValues& values)
{
    PrepareWrite();
    if (m_depth == 0) {
        Write(sql, values);
        return;
    }
    m_connection.AskWatcher();
    if (m_pending.IsEmpty())
        m_pendingState = State();
    m_pending.Add(sql, values, m_depth);
    ++m_state;
    if (m_pending.AreMany())
        Flush();
}

bool PostgresTransactions::Update(const RowUpdate& update)
{
    PrepareWrite();
    if (m_depth == 0) {
        ServerValues values = update.values;
        values.emplace_back(QByteArray::number(update.key));
        return WriteNow(update.columns->Statement(), values).Changed() > 0;
    }
    m_connection.AskWatcher();
    if (m_pending.IsEmpty())
        m_pendingState = State();
    m_pending.Add(update, m_depth);
    if (m_pending.AreMany())
        Flush();
    return true;
}

void PostgresTransactions::Flush()
{
    if (!m_pending.IsEmpty())
        Read("SELECT 1");
}

void PostgresTransactions::WriteTogether(const std::function<void()>& act)
{
    PrepareWrite();
    m_runner.Run("SELECT 1", {}, Kind::Write, m_depth); // so that the server begins all levels
    m_runner.SetHasWritten(true);
    ++m_state;
    try {
        act();
    } catch (const ServerError& error) {
        m_runner.NoteWaiting(error);
        throw;
    }
    RequireWanted();
}

} // namespace Orvane
