// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Orvane::Testing {

/// A database file as another program opens it, which respects neither references nor the schema.
class RawDatabase
{
public:
    explicit RawDatabase(const QString& path)
    {
        EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
    }
    ~RawDatabase() { sqlite3_close(m_handle); }
    RawDatabase(const RawDatabase&) = delete;
    RawDatabase& operator=(const RawDatabase&) = delete;

    /// Triggers may need functions that only the program of the file has.
    void LeaveTriggersOut() { sqlite3_db_config(m_handle, SQLITE_DBCONFIG_ENABLE_TRIGGER, 0, nullptr); }

    void Run(const char* sql)
    {
        EXPECT_EQ(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(m_handle) << " in " << sql;
    }

private:
    sqlite3* m_handle = nullptr;
};

} // namespace Orvane::Testing
