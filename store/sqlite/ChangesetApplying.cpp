// SPDX-License-Identifier: MIT
#include "store/sqlite/ChangesetApplying.h"

#include "store/ChangesetReader.h"
#include "store/sqlite/RowChanger.h"
#include "store/sqlite/SqliteSession.h"

#include <sqlite3.h>

namespace Orvane {

namespace {

// A transaction that is rolled back, without raising, unless it is committed.
class Attempt
{
public:
    explicit Attempt(SqliteSession& session) : m_session(session)
    {
        m_session.transactions.Begin();
        m_start = m_session.changes.Begin();
    }
    ~Attempt()
    {
        m_session.changes.End();
        if (!m_open)
            return;
        try {
            m_session.transactions.Rollback();
        } catch (...) { // the error that led here is the one to report
        }
    }
    Attempt(const Attempt&) = delete;
    Attempt& operator=(const Attempt&) = delete;

    Changeset Changes() const { return m_session.changes.ChangesSince(m_start); }
    void Commit()
    {
        m_session.transactions.Commit();
        m_open = false;
    }

private:
    SqliteSession& m_session;
    size_t m_start = 0;
    bool m_open = true;
};

// Allows broken references between rows until all rows are changed.
class DeferredReferences
{
public:
    explicit DeferredReferences(SqliteConnection& connection) : m_connection(connection)
    {
        m_connection.Run("PRAGMA defer_foreign_keys = ON");
    }
    ~DeferredReferences()
    {
        sqlite3_exec(m_connection.Handle(), "PRAGMA defer_foreign_keys = OFF", nullptr, nullptr, nullptr);
    }
    DeferredReferences(const DeferredReferences&) = delete;
    DeferredReferences& operator=(const DeferredReferences&) = delete;

    bool AreWhole() const
    {
        int broken = 0;
        int highest = 0;
        sqlite3_db_status(m_connection.Handle(), SQLITE_DBSTATUS_DEFERRED_FKS, &broken, &highest, 0);
        return broken == 0;
    }

private:
    SqliteConnection& m_connection;
};

// Tries rows that other rows block again, as long as each round changes at least one of them.
bool ChangeBlockedRows(
    RowChanger& changer, const std::vector<ChangedTable>& tables, std::vector<std::string> blocked)
{
    while (!blocked.empty()) {
        std::vector<std::string> stillBlocked;
        for (std::string& bytes : blocked) {
            ChangeBytes reader(bytes);
            ChangedRow row;
            ChangedRows::Read(reader, tables, row);
            const RowChanger::Outcome outcome = changer.Change(tables[row.table], row);
            if (outcome == RowChanger::Outcome::Conflict)
                return false;
            if (outcome == RowChanger::Outcome::Blocked)
                stillBlocked.push_back(std::move(bytes));
        }
        if (stillBlocked.size() == blocked.size())
            return false;
        blocked = std::move(stillBlocked);
    }
    return true;
}

// Says how much is done, and ends what the user cancelled.
void Report(SqliteSession& session, const ChangesetReader& reader)
{
    StatementWatch& watch = session.connection.Watch();
    watch.SetShare(reader.Done());
    if (watch.IsCancelled())
        session.connection.Raise(SQLITE_INTERRUPT);
}

bool ChangeRows(SqliteSession& session, const Changeset& changes)
{
    RowChanger changer(session);
    ChangesetReader reader(changes);
    std::vector<std::string> blocked;
    while (reader.Next()) {
        Report(session, reader);
        const RowChanger::Outcome outcome = changer.Change(reader.Table(), reader.Row());
        if (outcome == RowChanger::Outcome::Conflict)
            return false;
        if (outcome == RowChanger::Outcome::Blocked)
            ChangedRows::Append(blocked.emplace_back(), reader.Row());
    }
    return ChangeBlockedRows(changer, reader.Tables(), std::move(blocked));
}

} // namespace

std::optional<Changeset> ApplyChangeset(SqliteSession& session, const Changeset& changes)
{
    Attempt attempt(session);
    session.transactions.PrepareWrite();
    {
        const DeferredReferences references(session.connection);
        if (!ChangeRows(session, changes) || !references.AreWhole())
            return std::nullopt;
    }
    std::optional<Changeset> changed = attempt.Changes(); // once it is stored, nothing may fail
    attempt.Commit();
    return changed;
}

} // namespace Orvane
