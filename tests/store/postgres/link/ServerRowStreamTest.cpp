// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerRowStream.h"

#include "store/postgres/link/LinkTest.h"

#include <OrvaneShellLib/Cancellation.h>

namespace Orvane::Testing {

namespace {

class ServerRowStreamTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        if (!IsSkipped())
            m_connection = Connected();
    }

    // The connection answers as before.
    void ExpectUsable() { EXPECT_EQ(m_connection->Run("SELECT 7").Number(0, 0), 7); }

    std::unique_ptr<ServerConnection> m_connection;
};

const QByteArray ManyRows = "SELECT i, repeat('x', 100) FROM generate_series(1, 20000) AS i";

} // namespace

TEST_F(ServerRowStreamTest, EachRowComesOnceAndInOrder)
{
    ServerRowStream stream(*m_connection, ManyRows);
    qint64 last = 0;
    while (stream.Next()) {
        ASSERT_EQ(stream.Row().Count(), 1);
        ASSERT_EQ(stream.Row().Number(0, 0), last + 1);
        ++last;
    }
    EXPECT_EQ(last, 20000);
    EXPECT_FALSE(stream.Next());
    ExpectUsable();
}

TEST_F(ServerRowStreamTest, AQueryWithoutRowsHasNone)
{
    ServerRowStream stream(*m_connection, "SELECT 1 WHERE FALSE");
    EXPECT_FALSE(stream.Next());
    ExpectUsable();
}

TEST_F(ServerRowStreamTest, AStreamThatNobodyReadsToItsEndLeavesTheConnectionUsable)
{
    {
        ServerRowStream stream(*m_connection, ManyRows);
        EXPECT_TRUE(stream.Next());
    }
    ExpectUsable();
    const ServerRowStream unread(*m_connection, "SELECT 1");
}

TEST_F(ServerRowStreamTest, TheRestOfAStreamThatNobodyReadsIsNotSent)
{
    const int rows = 400000;
    m_connection->Run("CREATE TEMPORARY SEQUENCE sent");
    {
        ServerRowStream stream(
            *m_connection,
            "SELECT nextval('sent'), repeat('x', 1000) FROM generate_series(1, " + QByteArray::number(rows)
                + ")");
        EXPECT_TRUE(stream.Next());
    }
    EXPECT_LT(m_connection->Run("SELECT last_value FROM sent").Number(0, 0), rows);
    ExpectUsable();
}

TEST_F(ServerRowStreamTest, ARefusalIsRaisedAtTheBeginningAndInTheMiddle)
{
    {
        ServerRowStream stream(*m_connection, "SELECT nonsense");
        EXPECT_EQ(ErrorOf([&] { stream.Next(); }), int(ErrorNumber::DatabaseFailure));
        EXPECT_FALSE(stream.Next());
    }
    ExpectUsable();
    ServerRowStream stream(*m_connection, "SELECT 1 / (3000 - i) FROM generate_series(1, 5000) AS i");
    EXPECT_EQ(
        ErrorOf([&] {
            while (stream.Next()) { }
        }),
        int(ErrorNumber::DatabaseFailure));
    ExpectUsable();
}

TEST_F(ServerRowStreamTest, CancellingEndsTheReading)
{
    ServerRowStream stream(*m_connection, "SELECT generate_series(1, 100000000)");
    EXPECT_TRUE(stream.Next());
    m_watch.SetWatcher([](double) { return false; });
    EXPECT_EQ(
        ErrorOf([&] {
            while (stream.Next()) { }
        }),
        int(UserCancelled));
    m_watch.SetWatcher({});
    ExpectUsable();
}

TEST_F(ServerRowStreamTest, ALossIsToldOnceAndEndsTheStream)
{
    ServerRowStream stream(*m_connection, "SELECT pg_terminate_backend(pg_backend_pid()), pg_sleep(10)");
    EXPECT_EQ(ErrorOf([&] { stream.Next(); }), int(ErrorNumber::ConnectionLost));
    EXPECT_FALSE(stream.Next());
    EXPECT_TRUE(m_connection->IsLost());
}

} // namespace Orvane::Testing
