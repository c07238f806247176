// SPDX-License-Identifier: MIT
#include "store/failing_files/FailingStatements.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

FailingStatements* Living = nullptr; // SQLite's hook for new databases has no place for a pointer

// SQLite names an inner level's statements as those of a transaction.
std::string NameOf(int action, const char* operation)
{
    std::string name = operation;
    if (action == SQLITE_TRANSACTION)
        return name;
    if (action != SQLITE_SAVEPOINT)
        return {};
    if (name == "BEGIN")
        return "SAVEPOINT";
    return name == "ROLLBACK" ? "ROLLBACK TO" : name;
}

} // namespace

struct FailingStatements::Hooks {
    static int
    Authorize(void*, int action, const char* operation, const char*, const char*, const char*) noexcept
    {
        if (!Living || (action != SQLITE_TRANSACTION && action != SQLITE_SAVEPOINT))
            return SQLITE_OK;
        const auto& refused = Living->m_refused;
        const bool isRefused
            = std::find(refused.begin(), refused.end(), NameOf(action, operation)) != refused.end();
        return isRefused ? SQLITE_DENY : SQLITE_OK;
    }

    static int Opened(sqlite3* handle, char**, const struct sqlite3_api_routines*) noexcept
    {
        Living->m_open.push_back(handle);
        sqlite3_set_authorizer(handle, Authorize, nullptr);
        // A function of its own tells when the database is closed.
        return sqlite3_create_function_v2(
            handle, "failing_statements", 0, SQLITE_UTF8, handle,
            [](sqlite3_context*, int, sqlite3_value**) {}, nullptr, nullptr, Closed);
    }

    static void Closed(void* handle) noexcept
    {
        if (Living)
            std::erase(Living->m_open, static_cast<sqlite3*>(handle));
    }

    static void (*Entry())() { return reinterpret_cast<void (*)()>(Opened); }
};

FailingStatements::FailingStatements()
{
    EXPECT_EQ(Living, nullptr);
    Living = this;
    sqlite3_auto_extension(Hooks::Entry());
}

FailingStatements::~FailingStatements()
{
    EXPECT_TRUE(m_open.empty()) << "a database is still open";
    sqlite3_cancel_auto_extension(Hooks::Entry());
    Living = nullptr;
}

void FailingStatements::Refuse(const std::string& statement)
{
    m_refused.push_back(statement);
    for (sqlite3* handle : m_open)
        sqlite3_set_authorizer(handle, Hooks::Authorize, nullptr); // prepared statements are asked for again
}

} // namespace Orvane::Testing
