// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/TimeBound.h"

#include "store/sqlite/StoreTest.h"
#include "store/sqlite/engine/SqliteConnection.h"

namespace Orvane::Testing {

namespace {

constexpr auto Endless
    = "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n) SELECT max(i) FROM n";
constexpr auto Long
    = "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n LIMIT 9999) SELECT max(i) FROM n";

class TimeBounds : public testing::Test
{
protected:
    SqliteConnection m_connection{QString(), SqliteConnection::Access::ReadWrite, {}};
};

} // namespace

TEST_F(TimeBounds, AStatementThatNeverEndsIsEnded)
{
    const TimeBound bound(m_connection, std::chrono::milliseconds(1));
    EXPECT_EQ(ErrorOf([&] { m_connection.Run(Endless); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_TRUE(DescriptionOf([&] { m_connection.Run(Endless); }).contains("too long"));
}

TEST_F(TimeBounds, AStatementWithinTheTimeRunsToItsEnd)
{
    const TimeBound bound(m_connection, std::chrono::hours(1));
    EXPECT_EQ(m_connection.Number(Long), 9999);
}

TEST_F(TimeBounds, TheBoundEndsWithTheObject)
{
    {
        const TimeBound bound(m_connection, std::chrono::milliseconds(0));
        EXPECT_NE(ErrorOf([&] { m_connection.Run(Long); }), 0);
    }
    EXPECT_EQ(m_connection.Number(Long), 9999);
}

} // namespace Orvane::Testing
