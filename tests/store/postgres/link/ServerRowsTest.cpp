// SPDX-License-Identifier: MIT
#include "store/postgres/link/LinkTest.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <cmath>
#include <limits>

namespace Orvane::Testing {

namespace {

class ServerRowsTest : public LinkTest
{
protected:
    Value Stored(const QByteArray& expression, bool isColour = false)
    {
        return m_connection->Run("SELECT " + expression).At(0, 0, isColour);
    }

    void SetUp() override
    {
        LinkTest::SetUp();
        if (!IsSkipped())
            m_connection = Connected();
    }

    std::unique_ptr<ServerConnection> m_connection;
};

} // namespace

TEST_F(ServerRowsTest, EachTypeHasItsKindOfValue)
{
    EXPECT_TRUE(Stored("true").IsIdenticalTo(true));
    EXPECT_TRUE(Stored("17::smallint").IsIdenticalTo(qint32(17)));
    EXPECT_TRUE(Stored("(-2147483648)::integer").IsIdenticalTo(std::numeric_limits<qint32>::min()));
    EXPECT_TRUE(Stored("17::bigint").IsIdenticalTo(qint32(17)));
    EXPECT_TRUE(Stored("2147483648::bigint").IsIdenticalTo(2147483648.0));
    EXPECT_TRUE(Stored("0.1::float8").IsIdenticalTo(0.1));
    EXPECT_TRUE(Stored("2.5::numeric").IsIdenticalTo(2.5));
    EXPECT_TRUE(Stored("'Wälder'").IsIdenticalTo(QStringLiteral("Wälder")));
    EXPECT_TRUE(Stored("NULL::integer").IsNull());
}

TEST_F(ServerRowsTest, RealsAreReadToTheLastBitAndWithoutAnEnd)
{
    EXPECT_EQ(ToDouble(Stored("1::float8 / 3")), 1.0 / 3);
    EXPECT_EQ(ToDouble(Stored("'Infinity'::float8")), std::numeric_limits<double>::infinity());
    EXPECT_EQ(ToDouble(Stored("'-Infinity'::float8")), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(ToDouble(Stored("'NaN'::float8"))));
}

TEST_F(ServerRowsTest, AnUnsignedColourIsTheNumberWithTheSameBits)
{
    EXPECT_TRUE(Stored("4294967295::bigint", true).IsIdenticalTo(qint32(-1)));
}

TEST_F(ServerRowsTest, TellsWhatAStatementChanged)
{
    m_connection->Run("CREATE TEMP TABLE numbers (n integer)");
    EXPECT_EQ(m_connection->Run("INSERT INTO numbers SELECT generate_series(1, 5)").Changed(), 5);
    EXPECT_EQ(m_connection->Run("UPDATE numbers SET n = 7 WHERE n > 3").Changed(), 2);
    EXPECT_EQ(m_connection->Run("SELECT * FROM numbers").Changed(), 0);
    EXPECT_EQ(m_connection->Run("DELETE FROM numbers").Done(), "DELETE 5");
}

TEST_F(ServerRowsTest, NoRowsAreNoRows)
{
    EXPECT_EQ(ServerRows().Count(), 0);
    EXPECT_EQ(ServerRows().ColumnCount(), 0);
    EXPECT_EQ(ServerRows().Changed(), 0);
}

TEST_F(ServerRowsTest, TheyStayWhenTheConnectionIsClosed)
{
    const ServerRows rows = m_connection->Run("SELECT 17 AS number");
    m_connection.reset();
    EXPECT_EQ(rows.Number(0, 0), 17);
    EXPECT_EQ(rows.ColumnName(0), "number");
}

} // namespace Orvane::Testing
