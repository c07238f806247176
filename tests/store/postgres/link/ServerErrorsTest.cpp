// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerErrors.h"

#include "store/postgres/link/LinkTest.h"

namespace Orvane::Testing {

namespace {

class ServerErrorsTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        if (IsSkipped())
            return;
        m_connection = Connected();
        m_connection->Run("CREATE TEMP TABLE numbers (n integer PRIMARY KEY, t text)");
        m_connection->Run("INSERT INTO numbers VALUES (17, 'secret')");
    }

    int NumberOf(const QByteArray& sql)
    {
        return ErrorOf([&] { m_connection->Run(sql); });
    }

    std::unique_ptr<ServerConnection> m_connection;
};

} // namespace

TEST_F(ServerErrorsTest, EachKindOfStateHasItsNumber)
{
    EXPECT_EQ(NumberOf("SELECT 'abc'::integer"), typeMismatchError);
    EXPECT_EQ(NumberOf("SELECT 2147483647::integer + 1"), overflowError);
    EXPECT_EQ(NumberOf("SELECT nonsense"), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(NumberOf("INSERT INTO numbers VALUES (17)"), int(ErrorNumber::DatabaseFailure));
    m_connection->Run("SET default_transaction_read_only = on");
    EXPECT_EQ(NumberOf("CREATE TABLE more (n integer)"), int(ErrorNumber::DatabaseReadOnly));
    m_connection->Run("SET default_transaction_read_only = off");
    m_connection->Run("SET statement_timeout = 20");
    EXPECT_EQ(NumberOf("SELECT pg_sleep(60)"), int(ErrorNumber::DatabaseLocked));
}

TEST_F(ServerErrorsTest, WhatOthersHoldIsLocked)
{
    const auto other = Connected();
    other->Run("SELECT pg_advisory_lock(17)");
    m_connection->Run("SET lock_timeout = 20");
    EXPECT_EQ(NumberOf("SELECT pg_advisory_lock(17)"), int(ErrorNumber::DatabaseLocked));
}

TEST_F(ServerErrorsTest, WhatOneMayNotDoIsReadOnly)
{
    m_connection->Run("CREATE ROLE guest");
    m_connection->Run("SET ROLE guest");
    EXPECT_EQ(NumberOf("CREATE SCHEMA mine"), int(ErrorNumber::DatabaseReadOnly));
    m_connection->Run("RESET ROLE");
    m_connection->Run("DROP ROLE guest");
}

TEST_F(ServerErrorsTest, AStatementThatSomebodyElseHasPreparedTellsOfASharedConnection)
{
    m_connection->Run("PREPARE shared AS SELECT 1");
    const QString text = DescriptionOf([&] { m_connection->Run("PREPARE shared AS SELECT 1"); });
    EXPECT_TRUE(text.contains(QStringLiteral("pool sessions"))) << qPrintable(text);
    EXPECT_NE(ErrorOf([&] { m_connection->Run("EXECUTE nothing"); }), 0);
}

TEST_F(ServerErrorsTest, OnlyTheServersOwnSentenceIsRepeated)
{
    const QString text = DescriptionOf([&] { m_connection->Run("INSERT INTO numbers VALUES (17)"); });
    EXPECT_TRUE(text.contains(QStringLiteral("duplicate key"))) << qPrintable(text);
    EXPECT_FALSE(text.contains(QStringLiteral("17"))) << qPrintable(text);
}

TEST_F(ServerErrorsTest, AConstraintIsKnownAsOne)
{
    try {
        m_connection->Run("INSERT INTO numbers VALUES (17)");
        FAIL();
    } catch (const ServerError& error) {
        EXPECT_TRUE(error.IsConstraint());
        EXPECT_FALSE(error.IsConflict());
        EXPECT_EQ(error.State(), "23505");
    }
}

} // namespace Orvane::Testing
