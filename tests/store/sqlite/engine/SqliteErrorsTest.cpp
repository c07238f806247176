// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/SqliteErrors.h"

#include "store/shared/StoreErrors.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

int NumberFor(int resultCode)
{
    return SqliteError(StoreErrors(QStringLiteral("map.ovl")), resultCode, "message").Number();
}

} // namespace

TEST(SqliteErrors, EachKindOfResultHasItsNumber)
{
    EXPECT_EQ(NumberFor(SQLITE_BUSY), int(ErrorNumber::DatabaseLocked));
    EXPECT_EQ(NumberFor(SQLITE_BUSY_SNAPSHOT), int(ErrorNumber::DatabaseLocked));
    EXPECT_EQ(NumberFor(SQLITE_LOCKED), int(ErrorNumber::DatabaseLocked));
    EXPECT_EQ(NumberFor(SQLITE_CORRUPT), int(ErrorNumber::NotALayerDatabase));
    EXPECT_EQ(NumberFor(SQLITE_NOTADB), int(ErrorNumber::NotALayerDatabase));
    EXPECT_EQ(NumberFor(SQLITE_READONLY), int(ErrorNumber::DatabaseReadOnly));
    EXPECT_EQ(NumberFor(SQLITE_FULL), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(NumberFor(SQLITE_INTERRUPT), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(NumberFor(SQLITE_CANTOPEN), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(NumberFor(SQLITE_CONSTRAINT), int(ErrorNumber::DatabaseFailure));
}

} // namespace Orvane::Testing
