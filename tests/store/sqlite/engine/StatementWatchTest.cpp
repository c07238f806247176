// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StatementWatch.h"

#include "store/sqlite/StoreTest.h"
#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/TimeBound.h"

#include <OrvaneShellLib/Cancellation.h>

namespace Orvane::Testing {

namespace {

using Access = SqliteConnection::Access;

// Runs for more than a thousand steps, and returns the number of rows that it counted.
constexpr auto LongStatement
    = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
      " SELECT count(*) FROM n";

TEST(StatementWatch, AsksWhileALongStatementRuns)
{
    SqliteConnection connection({}, Access::ReadWrite, {});
    int asked = 0;
    connection.Watch().SetWatcher([&](double) { return ++asked > 0; });
    EXPECT_EQ(connection.Number(LongStatement), 3000);
    EXPECT_GT(asked, 0);
}

TEST(StatementWatch, EndsTheStatementWhenTheWatcherSaysSo)
{
    SqliteConnection connection({}, Access::ReadWrite, {});
    connection.Watch().SetWatcher([](double) { return false; });
    EXPECT_EQ(ErrorOf([&] { connection.Number(LongStatement); }), int(UserCancelled));
    connection.Watch().SetWatcher({});
    EXPECT_EQ(connection.Number(LongStatement), 3000);
}

TEST(StatementWatch, EndsNothingDuringAPause)
{
    SqliteConnection connection({}, Access::ReadWrite, {});
    connection.Watch().SetWatcher([](double) { return false; });
    const StatementWatch::Pause whole(connection.Watch());
    EXPECT_EQ(connection.Number(LongStatement), 3000);
}

TEST(StatementWatch, StaysWhenATimeBoundEnds)
{
    SqliteConnection connection({}, Access::ReadWrite, {});
    int asked = 0;
    connection.Watch().SetWatcher([&](double) { return ++asked > 0; });
    {
        const TimeBound bound(connection, std::chrono::milliseconds(0));
        EXPECT_EQ(ErrorOf([&] { connection.Number(LongStatement); }), int(ErrorNumber::DatabaseFailure));
    }
    asked = 0;
    EXPECT_EQ(connection.Number(LongStatement), 3000);
    EXPECT_GT(asked, 0);
}

TEST(StatementWatch, RefusesStatementsWhileItAsks)
{
    SqliteConnection connection({}, Access::ReadWrite, {});
    int refused = 0;
    connection.Watch().SetWatcher([&](double) {
        refused
            += ErrorOf([&] { connection.Run("CREATE TABLE t (i)"); }) == int(ErrorNumber::DatabaseFailure);
        return true;
    });
    EXPECT_EQ(connection.Number(LongStatement), 3000);
    EXPECT_GT(refused, 0);
}

} // namespace

} // namespace Orvane::Testing
