// SPDX-License-Identifier: MIT
#include "store/ChangesetApplying.h"

#include "store/ChangeRecorder.h"
#include "store/SqliteSession.h"

#include <sqlite3.h>

namespace Orvane {

namespace {

bool IsDeletion(sqlite3_changeset_iter* iterator)
{
    const char* table = nullptr;
    int columns = 0;
    int operation = 0;
    sqlite3changeset_op(iterator, &table, &columns, &operation, nullptr);
    return operation == SQLITE_DELETE;
}

// A row that refers to another one goes with it, before its own turn comes.
int OnConflict(void*, int conflict, sqlite3_changeset_iter* iterator)
{
    const bool isGoneAlready = conflict == SQLITE_CHANGESET_NOTFOUND && IsDeletion(iterator);
    return isGoneAlready ? SQLITE_CHANGESET_OMIT : SQLITE_CHANGESET_ABORT;
}

// A row that would refer to none is found at the end, and answered by a code of its own.
bool IsConflict(int result)
{
    return result == SQLITE_ABORT || (result & 0xFF) == SQLITE_CONSTRAINT;
}

// Rolls back what is not committed, without raising.
class Attempt
{
public:
    explicit Attempt(TransactionStack& transactions) : m_transactions(transactions)
    {
        m_transactions.Begin();
    }
    ~Attempt()
    {
        if (!m_open)
            return;
        try {
            m_transactions.Rollback();
        } catch (const RunTimeError&) {
        }
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;

    void Commit()
    {
        m_transactions.Commit();
        m_open = false;
    }

private:
    TransactionStack& m_transactions;
    bool m_open = true;
};

} // namespace

std::optional<Changeset> ApplyChangeset(SqliteSession& session, const Changeset& changes)
{
    Attempt attempt(session.transactions);
    session.transactions.PrepareWrite();
    const ChangeRecorder recorder(session.connection);
    QByteArray bytes = changes.Bytes();
    const int result = sqlite3changeset_apply(
        session.connection.Handle(), int(bytes.size()), bytes.data(), nullptr, OnConflict, nullptr);
    if (IsConflict(result))
        return std::nullopt;
    if (result != SQLITE_OK)
        session.connection.Raise(result);
    const Changeset changed = recorder.Changes();
    attempt.Commit();
    return changed;
}

} // namespace Orvane
