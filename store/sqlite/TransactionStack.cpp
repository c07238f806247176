// SPDX-License-Identifier: MIT
#include "store/sqlite/TransactionStack.h"

#include "store/StoreTexts.h"
#include "store/sqlite/ChangeWatch.h"
#include "store/sqlite/OpenRows.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <sqlite3.h>

namespace Orvane {

namespace {

QByteArray Savepoint(int depth)
{
    return "OrvaneLevel" + QByteArray::number(depth);
}

bool IsBusy(int result)
{
    return (result & 0xFF) == SQLITE_BUSY;
}

} // namespace

TransactionStack::TransactionStack(SqliteConnection& connection, OpenRows& openRows, ChangeWatch& changes)
    : m_connection(connection), m_openRows(openRows), m_changes(changes),
      m_rollback(connection, QStringLiteral("ROLLBACK"))
{
}

void TransactionStack::Begin()
{
    RequireIntact();
    m_places.reserve(m_places.size() + 1); // nothing may fail once the level is open
    BeginLevel();
    ++m_depth;
    m_places.push_back(m_changes.Place());
}

void TransactionStack::BeginLevel()
{
    if (m_depth > 0)
        return RunInside("SAVEPOINT " + Savepoint(m_depth));
    m_writing = false;
    m_isUncertain = false;
    m_connection.Run("BEGIN");
}

void TransactionStack::Commit()
{
    if (m_depth == 0)
        throw m_connection.Errors().Failure(StoreTexts::NoTransaction);
    RequireIntact();
    const StatementWatch::Pause whole(m_connection.Watch());
    if (m_depth == 1)
        m_connection.Run("COMMIT");
    else
        RunInside("RELEASE " + Savepoint(m_depth - 1));
    m_places.pop_back();
    if (--m_depth == 0)
        m_connection.Patience().NoteSuccess();
}

void TransactionStack::Rollback()
{
    m_connection.RequireUsable();
    if (m_depth == 0)
        return Settle();
    const StatementWatch::Pause whole(m_connection.Watch());
    --m_depth;
    m_changes.GoBackTo(m_places.back());
    m_places.pop_back();
    if (m_depth == 0)
        RollBackAll();
    else if (!IsLost())
        RollBackLevel();
}

void TransactionStack::RollBackAll()
{
    if (m_connection.IsAutoCommit())
        return;
    const int result = m_rollback.TryStep();
    m_rollback.Reset();
    if (!m_connection.IsAutoCommit())
        m_connection.Raise(result);
}

void TransactionStack::RollBackLevel()
{
    m_isUncertain = true; // also if there is no memory for the text
    const QByteArray name = Savepoint(m_depth);
    RunInside("ROLLBACK TO " + name + "; RELEASE " + name);
}

// When a statement for savepoints fails, it may have run in part.
void TransactionStack::RunInside(const QByteArray& sql)
{
    const StatementWatch::Pause whole(m_connection.Watch());
    m_isUncertain = true;
    m_connection.Run(sql);
    m_isUncertain = false;
}

// After some errors, for example a full disk, SQLite itself ends the transaction.
bool TransactionStack::IsLost() const
{
    return m_depth > 0 && (m_isUncertain || m_connection.IsAutoCommit());
}

void TransactionStack::Settle()
{
    m_connection.RequireUsable();
    if (m_depth > 0 || m_connection.IsAutoCommit())
        return;
    const StatementWatch::Pause whole(m_connection.Watch());
    m_rollback.TryStep();
    m_rollback.Reset();
    if (!m_connection.IsAutoCommit()) {
        const QString reason = QString::fromUtf8(sqlite3_errmsg(m_connection.Handle()));
        throw m_connection.Errors().Failure(StoreTexts::StillOpen, reason);
    }
}

void TransactionStack::RequireIntact()
{
    Settle();
    if (IsLost())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
}

void TransactionStack::PrepareWrite()
{
    if (m_connection.IsReadOnly())
        throw m_connection.Errors().Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
    RequireIntact();
    if (m_depth > 0 && !m_writing)
        TakeWriteLock();
}

void TransactionStack::TakeWriteLock()
{
    const int result
        = sqlite3_exec(m_connection.Handle(), "DELETE FROM Layers WHERE 0", nullptr, nullptr, nullptr);
    if (IsBusy(result)) {
        m_openRows.ReleaseAll();
        Restart();
    } else if (result != SQLITE_OK) {
        m_connection.Raise(result);
    }
    m_writing = true;
}

void TransactionStack::Restart()
{
    RollBackAll();
    m_connection.Run("BEGIN IMMEDIATE");
    for (int depth = 1; depth < m_depth; ++depth)
        RunInside("SAVEPOINT " + Savepoint(depth));
}

void TransactionStack::RunWrite(SqliteStatement& statement)
{
    PrepareWrite();
    const size_t place = m_changes.Place();
    const int result = StepWaiting(statement);
    statement.Reset();
    if (result == SQLITE_DONE && !IsLost()) {
        if (m_depth == 0)
            m_connection.Patience().NoteSuccess();
        return;
    }
    m_changes.GoBackTo(place);
    if (result != SQLITE_DONE)
        m_connection.Raise(result);
    throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
}

// SQLite does not wait while a cursor reads an older state. If it has waited, the second attempt does not.
int TransactionStack::StepWaiting(SqliteStatement& statement)
{
    int result = statement.TryStep();
    if (IsBusy(result) && m_depth == 0) {
        statement.Reset();
        m_openRows.ReleaseAll();
        result = statement.TryStep();
    }
    while (result == SQLITE_ROW)
        result = statement.TryStep();
    return result;
}

} // namespace Orvane
