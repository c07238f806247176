// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

namespace Orvane {

/// A cursor that may be on a row of a running statement, and therefore reads an older state of the database.
class OpenRow
{
public:
    /// Stops the statement. Rows that the cursor still has to return are kept in memory or read again.
    virtual void ReleaseRow() = 0;

protected:
    ~OpenRow() = default;
};

/// All cursors that are open on one database. A write that must wait for another program needs them to
/// release the state that they hold: SQLite never waits while the same connection reads an older state.
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
