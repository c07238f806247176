// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StoreErrors.h"

#include "store/StoreTexts.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace Orvane::Testing {

namespace {

int NumberFor(int resultCode)
{
    return StoreErrors(QStringLiteral("map.ovl")).FromSqlite(resultCode, "message").Number();
}

} // namespace

TEST(StoreErrors, EachKindOfResultHasItsNumber)
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

TEST(StoreErrors, TheDescriptionNamesTheFileAndTheDetail)
{
    const StoreErrors errors(QStringLiteral("map.ovl"));
    EXPECT_EQ(
        errors.Failure(StoreTexts::Refused, QStringLiteral("no such thing")).Description(),
        QStringLiteral("The layer database \"map.ovl\" refused an operation: no such thing"));
}

TEST(StoreErrors, AMarkInsideTheFilesNameIsLeftAlone)
{
    const StoreErrors errors(QStringLiteral("^2.ovl"));
    EXPECT_EQ(
        errors.Failure(StoreTexts::UnknownTable, QStringLiteral("^1")).Description(),
        QStringLiteral("The layer database \"^2.ovl\" has no table \"^1\" to open."));
}

TEST(StoreErrors, ADatabaseInMemoryHasANameToo)
{
    EXPECT_EQ(
        StoreErrors(QString()).Failure(StoreTexts::NotALayerDatabase).Description(),
        QStringLiteral("\":memory:\" is not a map file."));
}

} // namespace Orvane::Testing
