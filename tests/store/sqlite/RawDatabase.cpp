// SPDX-License-Identifier: MIT
#include "store/sqlite/RawDatabase.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Orvane::Testing {

RawDatabase::RawDatabase(const QString& path)
{
    EXPECT_EQ(sqlite3_open(path.toUtf8().constData(), &m_handle), SQLITE_OK);
}

RawDatabase::~RawDatabase()
{
    sqlite3_close(m_handle);
}

void RawDatabase::Run(const char* sql)
{
    EXPECT_EQ(sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr), SQLITE_OK) << sqlite3_errmsg(m_handle);
}

std::string RawDatabase::Text(const char* sql)
{
    std::string text;
    sqlite3_stmt* statement = nullptr;
    EXPECT_EQ(sqlite3_prepare_v2(m_handle, sql, -1, &statement, nullptr), SQLITE_OK)
        << sqlite3_errmsg(m_handle);
    for (bool isFirst = true; sqlite3_step(statement) == SQLITE_ROW; isFirst = false) {
        if (!isFirst)
            text += ',';
        if (const auto* value = reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)))
            text += value;
    }
    sqlite3_finalize(statement);
    return text;
}

} // namespace Orvane::Testing
