// SPDX-License-Identifier: MIT
#pragma once

#include "store/ChangeLog.h"

#include <string>
#include <vector>

namespace Orvane {

class SqliteConnection;

/// Writes down each row that a connection changes, while somebody wants to know: SQLite calls it before each
/// change. What is taken back is forgotten again, see GoBackTo.
class ChangeWatch
{
public:
    /// The connection must outlive this object.
    explicit ChangeWatch(SqliteConnection& connection) : m_connection(connection) { }
    ~ChangeWatch();
    ChangeWatch(const ChangeWatch&) = delete;
    ChangeWatch& operator=(const ChangeWatch&) = delete;

    /// Begins to watch; returns the place in the log from where on changes are there. Calls nest.
    size_t Begin();
    /// Ends what one Begin began.
    void End();

    /// A place in the log, and back to it when the changes after it were rolled back.
    size_t Place() const { return m_log.Size(); }
    void GoBackTo(size_t place) { m_log.GoBackTo(place); }

    /// What changed since a place. Raises DatabaseFailure if there was no memory to write everything down.
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
    std::vector<std::vector<bool>> m_isReal; // for each table and column: it keeps no whole numbers
    std::vector<std::string> m_before; // the coded values of the row at hand
    std::vector<std::string> m_after;
    int m_watchers = 0;
    bool m_hasGaps = false;
};

} // namespace Orvane
