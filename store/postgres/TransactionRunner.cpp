// SPDX-License-Identifier: MIT
#include "store/postgres/TransactionRunner.h"

#include "store/StoreTexts.h"
#include "store/postgres/ServerChangeLog.h"
#include "store/postgres/link/ServerConnection.h"
#include "store/postgres/link/ServerPipeline.h"
#include "store/shared/WorkWatch.h"

#include <algorithm>

namespace Orvane {

namespace {

using namespace std::chrono_literals;

constexpr int Attempts = 3; // to write what another transaction was in the way of

} // namespace

TransactionRunner::TransactionRunner(
    ServerConnection& connection, ServerChangeLog& log, std::chrono::milliseconds busyTimeout)
    : m_connection(connection), m_log(log), m_server(connection), m_patience(busyTimeout)
{
}

// As long as the transaction has written nothing, or only what can be written again, it may begin again.
ServerRows TransactionRunner::Run(const QByteArray& sql, const ServerValues& values, Kind kind, int level)
{
    m_level = level;
    for (int attempt = 1;; ++attempt) {
        const bool sendsPending = kind != Kind::ReadBeside && !m_pending.IsEmpty();
        try {
            ServerRows rows = RunPrepared(sql, values, kind);
            m_hasRead = m_hasRead || kind != Kind::Write;
            return rows;
        } catch (const ServerError& error) {
            const bool isOfPending = sendsPending && !m_pending.IsEmpty();
            if (error.IsConflict() && attempt < Attempts && MayBeginAgain())
                BeginAgain();
            else if (isOfPending)
                RaiseRefusal(error);
            else
                throw;
        }
    }
}

// A statement that was prepared before its table changed is prepared again.
ServerRows TransactionRunner::RunPrepared(const QByteArray& sql, const ServerValues& values, Kind kind)
{
    try {
        return RunOnce(sql, values, kind);
    } catch (const ServerError& error) {
        if (!error.IsStale() || (m_level > 0 && m_server.IsLost()))
            throw;
    }
    m_connection.Names().Forget(sql);
    return RunOnce(sql, values, kind);
}

ServerRows TransactionRunner::RunOnce(const QByteArray& sql, const ServerValues& values, Kind kind)
{
    ServerPipeline pipeline(m_connection);
    AddPending(pipeline, kind);
    const size_t beginning = pipeline.Count();
    const bool isStored = m_level == 0 && kind == Kind::Write && m_log.IsActive();
    if (isStored)
        m_server.AddToken(pipeline);
    const size_t statement = m_server.AddStep(pipeline, sql, values);
    if (isStored)
        pipeline.Add(ServerChangeLog::CommitQuery());
    try {
        pipeline.Finish();
    } catch (const ServerError& error) {
        NoteAnswer(m_level == 0 || pipeline.Succeeded() >= beginning, kind);
        NoteRefusal(error);
        throw;
    }
    NoteAnswer(true, kind);
    if (isStored)
        TakeChanges(pipeline.Answer(statement + 1));
    return pipeline.Answer(statement);
}

// Begins the levels that the server does not have yet, each before the first write that belongs to it.
void TransactionRunner::AddPending(ServerPipeline& pipeline, Kind kind)
{
    m_server.Plan();
    m_server.AddLevels(pipeline, std::min(m_level, 1));
    m_server.AddPatience(pipeline, m_patience.Left());
    if (kind == Kind::ReadBeside)
        return;
    m_pending.SendInto(pipeline, [&](int level) { m_server.AddLevels(pipeline, level); });
    if (kind == Kind::Write)
        m_server.AddLevels(pipeline, m_level);
}

void TransactionRunner::NoteAnswer(bool isBegun, Kind kind)
{
    m_server.NoteAnswer(isBegun);
    if (!isBegun || kind == Kind::ReadBeside || m_pending.IsEmpty())
        return;
    m_hasWritten = true;
    m_pending.Clear();
}

void TransactionRunner::NoteRefusal(const ServerError& error)
{
    m_server.ForgetPatience();
    NoteWaiting(error);
    m_server.UndoStep();
}

void TransactionRunner::NoteWaiting(const ServerError& error)
{
    if (error.State() == "55P03")
        m_patience.Spend(std::max(m_patience.Left(), 0ms));
}

void TransactionRunner::Commit()
{
    m_level = 1;
    const WorkWatch::Pause whole(m_connection.Watch());
    for (int attempt = 1;; ++attempt) {
        try {
            CommitOnce();
            return m_patience.NoteSuccess();
        } catch (const ServerError& error) {
            NoteWaiting(error);
            if (!error.IsConflict() || attempt == Attempts || !MayBeginAgain())
                RaiseRefusal(error);
        }
        BeginAgain();
    }
}

// A COMMIT that the server answers with "ROLLBACK" has stored nothing.
void TransactionRunner::CommitOnce()
{
    ServerPipeline pipeline(m_connection);
    AddPending(pipeline, Kind::Read);
    const bool hasChanges = m_log.IsActive();
    const size_t changes = pipeline.Count();
    if (hasChanges)
        pipeline.Add(ServerChangeLog::CommitQuery());
    const size_t commit = pipeline.AddOnce("COMMIT");
    const auto isStored = [&] { return pipeline.Answer(commit).Done() == "COMMIT"; };
    m_server.SetUncertain();
    try {
        pipeline.Finish();
    } catch (...) { // perhaps the connection broke after the answer
        if (!isStored())
            throw;
    }
    if (!isStored())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
    NoteAnswer(true, Kind::Read);
    m_server.NoteEnd();
    TakeChanges(hasChanges ? pipeline.Answer(changes) : ServerRows());
}

// They are stored already: what fails here must not look like a change that failed.
void TransactionRunner::TakeChanges(const ServerRows& changes)
{
    const WorkWatch::Pause whole(m_connection.Watch());
    try {
        if (changes.Count() > 0)
            m_log.TakeCommitted(changes);
    } catch (...) {
        m_log.NoteGap();
    }
    m_log.EndTransaction();
}

bool TransactionRunner::MayBeginAgain() const
{
    const bool isBlind = m_pending.IsEmpty() && m_hasRead; // what is written may come of what was read
    return m_level > 0 && !m_hasWritten && !isBlind && m_pending.MayBeginAgain() && !m_connection.IsLost();
}

void TransactionRunner::BeginAgain()
{
    m_server.RollBack();
    if (!m_pending.IsEmpty())
        m_pending.ExpectRowsAsRead();
    ++m_restarts;
}

// Of what was kept.
void TransactionRunner::RaiseRefusal(const ServerError& error) const
{
    const bool isAboutRows = error.State() == RowUpdates::NotAsExpected && m_pending.MayBeginAgain();
    if (!isAboutRows)
        throw ServerError(error);
    const StoreErrors& errors = m_connection.Errors();
    if (m_pending.ExpectsRowsAsRead())
        throw errors.Error(ErrorNumber::DatabaseLocked, StoreTexts::Locked);
    throw errors.Failure(StoreTexts::RowGone);
}

} // namespace Orvane
