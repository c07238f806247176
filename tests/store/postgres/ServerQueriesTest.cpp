// SPDX-License-Identifier: MIT
#include "store/opening/ServerQueries.h"

#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class ServerQueriesTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
    }

    // How many rows of so many letters were taken when the server fails at that row.
    static int TakenBefore(int failingRow, int letters)
    {
        ServerQueries queries(ServerMaps::ServerOf(SharedServer().Place("none")), {});
        int taken = 0;
        const QByteArray sql = "SELECT repeat('x', " + QByteArray::number(letters) + "), 1 / ("
            + QByteArray::number(failingRow) + " - i) FROM generate_series(1, 100000) AS i";
        EXPECT_NE(ErrorOf([&] { queries.Read(sql, {}, [&](const auto&) { ++taken; }); }), 0);
        return taken;
    }
};

} // namespace

TEST_F(ServerQueriesTest, AllRowsComeInOrder)
{
    ServerQueries queries(ServerMaps::ServerOf(SharedServer().Place("none")), {});
    int last = 0;
    queries.Read("SELECT i FROM generate_series(1, 5000) AS i", {}, [&](const ServerQueries::Row& row) {
        EXPECT_EQ(row[0]->toInt(), ++last);
    });
    EXPECT_EQ(last, 5000);
}

TEST_F(ServerQueriesTest, LargeRowsComeFewAtATime)
{
    EXPECT_GE(TakenBefore(300, 200000), 280);
}

TEST_F(ServerQueriesTest, TheFirstRowsComeBeforeManyAreRead)
{
    EXPECT_GT(TakenBefore(20, 1), 0);
}

} // namespace Orvane::Testing
