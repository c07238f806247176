// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeLog.h"

#include <string>
#include <vector>

struct sqlite3;
struct sqlite3_value;

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
    // Reads a value of the row before or after the change.
    using ValueReader = int (*)(sqlite3*, int, sqlite3_value**);

    void ForgetRows();
    void Note(int operation, const char* table) noexcept;
    int TableNamed(const char* name);
    int AddTable(const char* name);
    // These return false when SQLite runs out of memory.
    bool NoteWholeRow(int table, ChangeKind kind);
    bool NoteUpdate(int table);
    bool BeginRow(int table, ChangeKind kind, ValueReader read);

    SqliteConnection& m_connection;
    ChangeLog m_log;
    std::vector<std::vector<char>> m_isReal; // for each table and column: 1 if it has the type REAL
    int m_lastTable = -1; // most changes are to the same table as the one before
    std::string m_key; // coded, as are the others
    std::string m_value;
    std::string m_after;
    int m_watchers = 0;
    bool m_hasGaps = false;
};

} // namespace Orvane
