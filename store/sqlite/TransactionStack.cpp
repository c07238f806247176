// SPDX-License-Identifier: MIT
#include "store/sqlite/TransactionStack.h"

#include "store/StoreTexts.h"
#include "store/sqlite/ChangeWatch.h"
#include "store/sqlite/OpenRows.h"
#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/SqliteStatement.h"

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

void TransactionStack::Begin()
{
    if (IsLost())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
    m_connection.Run(m_depth == 0 ? QByteArray("BEGIN") : "SAVEPOINT " + Savepoint(m_depth));
    ++m_depth;
    m_places.push_back(m_changes.Place());
}

void TransactionStack::Commit()
{
    if (m_depth == 0)
        throw m_connection.Errors().Failure(StoreTexts::NoTransaction);
    if (IsLost())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
    m_connection.Run(m_depth == 1 ? QByteArray("COMMIT") : "RELEASE " + Savepoint(m_depth - 1));
    m_places.pop_back();
    if (--m_depth == 0)
        m_writing = false;
}

void TransactionStack::Rollback()
{
    if (m_depth == 0)
        return;
    const bool lost = IsLost();
    --m_depth;
    m_changes.GoBackTo(m_places.back());
    m_places.pop_back();
    if (m_depth == 0)
        m_writing = false;
    if (lost)
        return;
    const QByteArray name = Savepoint(m_depth);
    m_connection.Run(m_depth == 0 ? QByteArray("ROLLBACK") : "ROLLBACK TO " + name + "; RELEASE " + name);
}

// After some errors, for example a full disk, SQLite itself ends the transaction.
bool TransactionStack::IsLost() const
{
    return m_depth > 0 && m_connection.IsAutoCommit();
}

void TransactionStack::PrepareWrite()
{
    if (m_connection.IsReadOnly())
        throw m_connection.Errors().Error(ErrorNumber::DatabaseReadOnly, StoreTexts::ReadOnly);
    if (IsLost())
        throw m_connection.Errors().Failure(StoreTexts::TransactionLost);
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
    m_connection.Run("ROLLBACK");
    m_connection.Run("BEGIN IMMEDIATE");
    for (int depth = 1; depth < m_depth; ++depth)
        m_connection.Run("SAVEPOINT " + Savepoint(depth));
}

void TransactionStack::RunWrite(SqliteStatement& statement)
{
    PrepareWrite();
    const size_t place = m_changes.Place();
    int result = statement.TryStep();
    if (IsBusy(result) && m_depth == 0) {
        statement.Reset();
        m_openRows.ReleaseAll();
        result = statement.TryStep();
    }
    while (result == SQLITE_ROW)
        result = statement.TryStep();
    if (result != SQLITE_DONE) {
        const RunTimeError error
            = m_connection.Errors().FromSqlite(result, sqlite3_errmsg(m_connection.Handle()));
        statement.Reset();
        m_changes.GoBackTo(place);
        throw error;
    }
    statement.Reset();
}

} // namespace Orvane
