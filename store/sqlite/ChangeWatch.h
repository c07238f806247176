// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeLog.h"

#include <string>
#include <vector>

namespace Orvane {

class SqliteConnection;

/// Logs each row that a connection changes, between Begin and End. SQLite calls it before each change.
/// Changes that are rolled back are removed from the log, see GoBackTo.
class ChangeWatch
{
public:
    /// The connection must outlive this object.
    explicit ChangeWatch(SqliteConnection& connection) : m_connection(connection) { }
    ~ChangeWatch();
    ChangeWatch(const ChangeWatch&) = delete;
    ChangeWatch& operator=(const ChangeWatch&) = delete;

    /// Starts logging, and returns the position in the log where it starts. Calls nest.
    size_t Begin();
    /// Ends the logging that one Begin call started.
    void End();

    /// The present position in the log; GoBackTo returns to it after a rollback.
    size_t Place() const { return m_log.Size(); }
    void GoBackTo(size_t place) { m_log.GoBackTo(place); }

    /// The changes since a position in the log. Raises DatabaseFailure if there was not enough memory to log
    /// all of them.
    Changeset ChangesSince(size_t place) const;

private:
    void ForgetRows();
    void Note(int operation, const char* table) noexcept;
    int TableNamed(const char* name);
    void NoteWholeRow(int table, ChangeKind kind);
    void NoteUpdate(int table);
    void NoteRow(int table, ChangeKind kind);

    SqliteConnection& m_connection;
    ChangeLog m_log;
    std::vector<std::vector<bool>> m_isReal; // for each table and column: true if it has the type REAL
    std::vector<std::string> m_before; // the coded values of the row that is changed
    std::vector<std::string> m_after;
    int m_watchers = 0;
    bool m_hasGaps = false;
};

} // namespace Orvane
