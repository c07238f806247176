// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

struct sqlite3;

namespace Orvane::Testing {

/// Makes SQLite refuse statements that begin and end transactions, in all databases that are opened while it
/// lives. A refused statement changes nothing. Close the databases before it is destroyed; only one at a
/// time.
class FailingStatements
{
public:
    FailingStatements();
    ~FailingStatements();
    FailingStatements(const FailingStatements&) = delete;
    FailingStatements& operator=(const FailingStatements&) = delete;

    /// statement: "BEGIN", "COMMIT", "ROLLBACK", "SAVEPOINT", "RELEASE" or "ROLLBACK TO".
    void Refuse(const std::string& statement);
    /// From now on nothing is refused.
    void Heal() { m_refused.clear(); }

private:
    struct Hooks;

    std::vector<std::string> m_refused;
    std::vector<sqlite3*> m_open;
};

} // namespace Orvane::Testing
