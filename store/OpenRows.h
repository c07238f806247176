// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace Orvane {

/// A cursor that may be standing on a row of a running statement, and so holds the database's state as it
/// was.
class OpenRow
{
public:
    /// Stops the statement. What the cursor still has to give is kept in memory or read anew.
    virtual void ReleaseRow() = 0;

protected:
    ~OpenRow() = default;
};

/// All cursors that are open on one database. A write that must wait for another program needs them to let go
/// of the state they hold: SQLite never waits while the same connection reads an older state.
class OpenRows
{
public:
    void Add(OpenRow* row) { m_rows.push_back(row); }
    void Remove(OpenRow* row);
    void ReleaseAll();

private:
    std::vector<OpenRow*> m_rows;
};

} // namespace Orvane
