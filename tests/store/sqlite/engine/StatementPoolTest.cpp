// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/StatementPool.h"

#include "store/sqlite/engine/SqliteConnection.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class StatementPoolTest : public testing::Test
{
protected:
    SqliteConnection m_connection{QString(), SqliteConnection::Access::ReadWrite, {}};
    StatementCache m_cache{m_connection};
    const QString m_sql = QStringLiteral("SELECT ?1 AS A");
};

} // namespace

TEST_F(StatementPoolTest, AStatementThatCameBackIsLentAgain)
{
    const SqliteStatement* first = &*m_cache.Lease(m_sql);
    EXPECT_EQ(&*m_cache.Lease(m_sql), first);
}

TEST_F(StatementPoolTest, TwoLoansOfOneTextAreTwoStatements)
{
    const StatementLease first = m_cache.Lease(m_sql);
    const StatementLease second = m_cache.Lease(m_sql);
    EXPECT_NE(&*first, &*second);
}

TEST_F(StatementPoolTest, AStatementComesBackWithoutItsValues)
{
    {
        const StatementLease lease = m_cache.Lease(m_sql);
        lease->Bind(1, 7);
        ASSERT_TRUE(lease->Step());
        EXPECT_EQ(ToInt32(lease->Column(0)), 7);
    }
    const StatementLease again = m_cache.Lease(m_sql);
    ASSERT_TRUE(again->Step());
    EXPECT_TRUE(again->Column(0).IsNull());
}

TEST_F(StatementPoolTest, ALoanSurvivesThatManyOtherTextsAreRun)
{
    const StatementLease kept = m_cache.Lease(m_sql);
    kept->Bind(1, 7);
    for (int i = 0; i < 500; ++i)
        m_cache.Lease(QStringLiteral("SELECT %1").arg(i))->Step();
    ASSERT_TRUE(kept->Step());
    EXPECT_EQ(ToInt32(kept->Column(0)), 7);
}

TEST_F(StatementPoolTest, AssigningALoanGivesTheOlderOneBack)
{
    StatementLease lease = m_cache.Lease(m_sql);
    const SqliteStatement* first = &*lease;
    lease = m_cache.Lease(QStringLiteral("SELECT 2"));
    EXPECT_EQ(&*m_cache.Lease(m_sql), first);
    lease.Return();
    EXPECT_FALSE(lease);
}

} // namespace Orvane::Testing
