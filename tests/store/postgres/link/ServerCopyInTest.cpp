// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerCopyIn.h"

#include "store/postgres/link/CopiedRows.h"
#include "store/postgres/link/LinkTest.h"

#include <cmath>
#include <limits>

namespace Orvane::Testing {

namespace {

class ServerCopyInTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        if (IsSkipped())
            return;
        m_connection = Connected();
        m_connection->Run(
            "CREATE TEMP TABLE rows (id integer PRIMARY KEY, name text, size float8, flag bool)");
    }

    void Copy(const std::vector<std::vector<Value>>& rows)
    {
        CopiedRows copied;
        for (const std::vector<Value>& row : rows)
            copied.Add(row);
        ServerCopyIn copy(*m_connection, "COPY rows FROM STDIN");
        copy.Write(copied.Text());
        copy.End();
    }
    // Also shows that the connection is usable.
    qint64 Count() { return m_connection->Run("SELECT count(*) FROM rows").Number(0, 0); }

    std::unique_ptr<ServerConnection> m_connection;
};

const QByteArray CopyStatement = "COPY rows FROM STDIN";

} // namespace

TEST_F(ServerCopyInTest, ValuesArriveAsTheyWere)
{
    const auto odd = QStringLiteral("tab\t line\n return\r back\\slash \\N \\. {,} \"quoted\" \u00e4\u68ee");
    const double least = std::numeric_limits<double>::denorm_min();
    Copy(
        {{1, odd, 0.1, true},
         {2, QString(), 1e308, false},
         {3, QStringLiteral("\\."), -0.0, true},
         {4, Value::Null(), least, Value::Null()},
         {5, QStringLiteral("NULL"), -std::numeric_limits<double>::infinity(), true},
         {-2147483647 - 1, QStringLiteral("\\N"), Value::Null(), 1}});
    const ServerRows rows = m_connection->Run("SELECT * FROM rows ORDER BY id");
    ASSERT_EQ(rows.Count(), 6);
    EXPECT_EQ(rows.Number(0, 0), -2147483648LL);
    EXPECT_EQ(rows.Text(0, 1), QStringLiteral("\\N"));
    EXPECT_EQ(rows.Text(1, 1), odd);
    EXPECT_TRUE(rows.At(1, 2).IsIdenticalTo(0.1));
    EXPECT_TRUE(rows.At(1, 3).IsIdenticalTo(true));
    EXPECT_FALSE(rows.IsNull(2, 1));
    EXPECT_TRUE(rows.At(2, 3).IsIdenticalTo(false));
    EXPECT_TRUE(std::signbit(*rows.At(3, 2).Get<double>()));
    EXPECT_TRUE(rows.At(4, 2).IsIdenticalTo(least));
    EXPECT_TRUE(rows.IsNull(4, 1));
    EXPECT_TRUE(rows.IsNull(4, 3));
    EXPECT_EQ(rows.Text(5, 1), QStringLiteral("NULL"));
}

TEST_F(ServerCopyInTest, ManyRowsTakeTwoRoundTrips)
{
    const quint64 before = m_connection->RoundTrips();
    ServerCopyIn copy(*m_connection, CopyStatement);
    for (int id = 0; id < 50000; ++id)
        copy.Write(QByteArray::number(id) + "\t" + QByteArray(100, 'x') + "\t0\tt\n");
    copy.End();
    EXPECT_EQ(m_connection->RoundTrips() - before, 2U);
    EXPECT_EQ(Count(), 50000);
}

TEST_F(ServerCopyInTest, WithoutAnEndNothingIsAdded)
{
    {
        ServerCopyIn copy(*m_connection, CopyStatement);
        copy.Write("1\tRoads\t0\tt\n");
    }
    EXPECT_EQ(Count(), 0);
}

TEST_F(ServerCopyInTest, ARefusalIsRaisedAtTheBeginningOrTheEnd)
{
    EXPECT_EQ(
        ErrorOf([&] { const ServerCopyIn copy(*m_connection, "COPY nothing FROM STDIN"); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(
        ErrorOf([&] {
            Copy({{1, Value::Null(), 0.0, true}, {1, Value::Null(), 0.0, true}});
        }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(Count(), 0);
    Copy({{1, Value::Null(), 0.0, true}});
    EXPECT_EQ(Count(), 1);
}

TEST_F(ServerCopyInTest, ALostConnectionIsToldAndNothingWaits)
{
    const auto other = Connected();
    ServerCopyIn copy(*m_connection, CopyStatement);
    other->Run("SELECT pg_terminate_backend(" + QByteArray::number(m_connection->Backend()) + ")");
    EXPECT_EQ(
        ErrorOf([&] {
            copy.Write("1\tRoads\t0\tt\n");
            copy.End();
        }),
        int(ErrorNumber::ConnectionLost));
    EXPECT_TRUE(m_connection->IsLost());
}

} // namespace Orvane::Testing
