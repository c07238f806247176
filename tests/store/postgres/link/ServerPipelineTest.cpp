// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerPipeline.h"

#include "store/postgres/link/LinkTest.h"
#include "support/CuttingProxy.h"

#include <chrono>
#include <thread>

namespace Orvane::Testing {

namespace {

class ServerPipelineTest : public LinkTest
{
protected:
    void SetUp() override
    {
        LinkTest::SetUp();
        if (IsSkipped())
            return;
        m_proxy = std::make_unique<CuttingProxy>(SharedServer().Socket());
        m_connection = ServerConnection::Connect(PlaceIn(m_proxy->Folder()), {}, m_watch);
        m_connection->Run("CREATE TEMP TABLE numbers (n integer PRIMARY KEY, t text)");
    }

    qint64 Count() { return m_connection->Run("SELECT count(*) FROM numbers").Number(0, 0); }

    std::unique_ptr<CuttingProxy> m_proxy;
    std::unique_ptr<ServerConnection> m_connection;
};

} // namespace

TEST_F(ServerPipelineTest, AnswersBelongToTheirStatements)
{
    ServerPipeline pipeline(*m_connection);
    const size_t first = pipeline.Add("SELECT $1::integer + 1", {"1"});
    const size_t second = pipeline.AddOnce("SELECT $1::text", {"Wälder"});
    const size_t third = pipeline.Add("SELECT $1::integer + 1", {"2"});
    pipeline.Finish();
    EXPECT_EQ(pipeline.Answer(first).Number(0, 0), 2);
    EXPECT_EQ(pipeline.Answer(second).Text(0, 0), QStringLiteral("Wälder"));
    EXPECT_EQ(pipeline.Answer(third).Number(0, 0), 3);
}

TEST_F(ServerPipelineTest, ManyStatementsTakeOneRoundTrip)
{
    m_proxy->ForgetRoundTrips();
    const quint64 before = m_connection->RoundTrips();
    ServerPipeline pipeline(*m_connection);
    for (int i = 0; i < 20; ++i)
        pipeline.Add("INSERT INTO numbers VALUES ($1)", {QByteArray::number(i)});
    pipeline.Finish();
    EXPECT_EQ(m_proxy->RoundTrips(), 1);
    EXPECT_EQ(m_connection->RoundTrips() - before, 1U);
    EXPECT_EQ(Count(), 20);
}

TEST_F(ServerPipelineTest, MuchIsSentAndReadAtOnceWithoutWaitingForEachOther)
{
    const QByteArray text(2000, 'x');
    ServerPipeline pipeline(*m_connection);
    for (int i = 0; i < 10000; ++i)
        pipeline.Add("INSERT INTO numbers VALUES ($1, $2) RETURNING t", {QByteArray::number(i), text});
    pipeline.Finish();
    EXPECT_EQ(pipeline.Answer(9999).Raw(0, 0).size(), 2000U);
    EXPECT_EQ(Count(), 10000);
}

TEST_F(ServerPipelineTest, OutsideATransactionAllTakeEffectOrNone)
{
    ServerPipeline pipeline(*m_connection);
    pipeline.Add("INSERT INTO numbers VALUES (1)");
    pipeline.Add("INSERT INTO numbers VALUES (1)");
    pipeline.Add("INSERT INTO numbers VALUES (2)");
    EXPECT_EQ(ErrorOf([&] { pipeline.Finish(); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(pipeline.Succeeded(), 1U);
    EXPECT_EQ(pipeline.Answer(2).Count(), 0);
    EXPECT_EQ(Count(), 0);
}

TEST_F(ServerPipelineTest, AStatementThatWasNotPreparedIsPreparedTheNextTime)
{
    const QByteArray insert = "INSERT INTO numbers VALUES ($1)";
    {
        ServerPipeline pipeline(*m_connection);
        pipeline.Add("SELECT nonsense");
        pipeline.Add(insert, {"1"});
        EXPECT_NE(ErrorOf([&] { pipeline.Finish(); }), 0);
    }
    ServerPipeline pipeline(*m_connection);
    pipeline.Add(insert, {"1"});
    pipeline.Add(insert, {"2"});
    pipeline.Finish();
    EXPECT_EQ(Count(), 2);
}

TEST_F(ServerPipelineTest, MoreTextsThanAreKeptAllRun)
{
    for (int i = 0; i < 300; ++i) {
        ServerPipeline pipeline(*m_connection);
        pipeline.Add("SELECT " + QByteArray::number(i % 150));
        pipeline.Finish();
        ASSERT_EQ(pipeline.Answer(0).Number(0, 0), i % 150);
    }
    const auto kept = m_connection->Run("SELECT count(*) FROM pg_prepared_statements");
    EXPECT_EQ(kept.Number(0, 0), 128);
}

TEST_F(ServerPipelineTest, AStatementOnATableThatChangedIsKnownAsStale)
{
    const auto readAll = [this] {
        ServerPipeline pipeline(*m_connection);
        pipeline.Add("SELECT * FROM numbers");
        pipeline.Finish();
        return pipeline.Answer(0).ColumnCount();
    };
    EXPECT_EQ(readAll(), 2);
    m_connection->Run("ALTER TABLE numbers ADD COLUMN more integer");
    try {
        readAll();
        FAIL() << "the server prepared the statement again by itself";
    } catch (const ServerError& error) {
        EXPECT_TRUE(error.IsStale());
    }
    m_connection->ForgetStatements();
    EXPECT_EQ(readAll(), 3);
}

TEST_F(ServerPipelineTest, AnEmptyOneDoesNothing)
{
    ServerPipeline pipeline(*m_connection);
    pipeline.Finish();
    EXPECT_EQ(pipeline.Count(), 0U);
}

TEST_F(ServerPipelineTest, IsAnsweredInTheBackground)
{
    ServerPipeline pipeline(*m_connection);
    const size_t number = pipeline.AddOnce("SELECT 17 FROM pg_sleep(0.1)");
    pipeline.Start();
    EXPECT_FALSE(pipeline.IsAnswered());
    while (!pipeline.IsAnswered())
        std::this_thread::yield();
    EXPECT_EQ(pipeline.Answer(number).Number(0, 0), 17);
    EXPECT_EQ(Count(), 0);
}

TEST_F(ServerPipelineTest, WhatIsUnderWayIsAnsweredBeforeTheNextStatement)
{
    ServerPipeline pipeline(*m_connection);
    pipeline.AddOnce("INSERT INTO numbers SELECT 5 FROM pg_sleep(0.1)");
    pipeline.Start();
    EXPECT_EQ(Count(), 1);
    EXPECT_TRUE(pipeline.IsAnswered());
}

TEST_F(ServerPipelineTest, ARefusalInTheBackgroundIsRaisedThereAndNowhereElse)
{
    ServerPipeline pipeline(*m_connection);
    pipeline.AddOnce("SELECT nonsense");
    pipeline.Start();
    EXPECT_EQ(Count(), 0);
    EXPECT_EQ(ErrorOf([&] { pipeline.IsAnswered(); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_FALSE(m_connection->IsLost());
}

TEST_F(ServerPipelineTest, ASilentServerIsLostInTheBackgroundToo)
{
    StoreOptions options;
    options.answerTimeout = std::chrono::milliseconds(100);
    const auto connection = ServerConnection::Connect(PlaceIn(m_proxy->Folder()), options, m_watch);
    m_proxy->Silence();
    ServerPipeline pipeline(*connection);
    pipeline.AddOnce("SELECT 1");
    pipeline.Start();
    int error = 0;
    while (error == 0)
        error = ErrorOf([&] { pipeline.IsAnswered(); });
    EXPECT_EQ(error, int(ErrorNumber::ConnectionLost));
    EXPECT_TRUE(connection->IsLost());
}

} // namespace Orvane::Testing
