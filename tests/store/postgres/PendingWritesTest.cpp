// SPDX-License-Identifier: MIT
#include "store/postgres/PendingWrites.h"

#include "store/postgres/MapTest.h"
#include "store/postgres/link/ServerPipeline.h"
#include "support/Errors.h"

#include <vector>

namespace Orvane::Testing {

namespace {

/// Writes to a map with layers 1 to 9, whose codes are ten times their IDs.
class PendingWritesTest : public MapTest
{
protected:
    using Columns = std::shared_ptr<const UpdatedColumns>;

    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("INSERT INTO Layers (LayerID, Name, Code)"
                    " SELECT n, 'Layer ' || n, 10 * n FROM generate_series(1, 9) AS n");
        m_connection = Connected();
    }

    static Columns Made(std::vector<UpdatedColumns::Column> columns)
    {
        return std::make_shared<UpdatedColumns>(UpdatedColumns{"layers", "layerid", std::move(columns)});
    }
    RowUpdate Code(qint32 layer, const char* code) const
    {
        return {m_code, layer, {code}, {QByteArray::number(10 * layer)}};
    }
    RowUpdate Name(qint32 layer, const ServerValue& name) const
    {
        return {m_name, layer, {name}, {"Layer " + QByteArray::number(layer)}};
    }

    // How many statements are sent, in a transaction of their own.
    size_t Send()
    {
        ServerPipeline pipeline(*m_connection);
        m_levels.clear();
        m_writes.SendInto(pipeline, [&](int level) { m_levels.push_back(level); });
        pipeline.Finish();
        return pipeline.Count();
    }
    // The SQLSTATE of the error with which they are refused.
    std::string Refusal()
    {
        try {
            Send();
        } catch (const ServerError& error) {
            return error.State().toStdString();
        }
        return {};
    }
    std::string Codes() const
    {
        return Owner().Text("SELECT string_agg(Code::text, ' ' ORDER BY LayerID) FROM Layers");
    }

    const Columns m_code = Made({{"code", "integer", StoreType::Whole}});
    const Columns m_name = Made({{"name", "text", StoreType::Text}});
    std::unique_ptr<ServerConnection> m_connection;
    PendingWrites m_writes;
    std::vector<int> m_levels;
};

} // namespace

TEST_F(PendingWritesTest, ManyUpdatesOfTheSameColumnsAreOneStatement)
{
    for (qint32 layer = 9; layer > 0; --layer)
        m_writes.Add(Code(layer, "7"), 1);
    EXPECT_EQ(Send(), 1U);
    EXPECT_EQ(Codes(), "7 7 7 7 7 7 7 7 7");
}

TEST_F(PendingWritesTest, AFewAreSentOneByOne)
{
    m_writes.Add(Code(2, "7"), 1);
    m_writes.Add(Code(1, "8"), 1);
    EXPECT_EQ(Send(), 2U);
    EXPECT_EQ(Codes(), "8 7 30 40 50 60 70 80 90");
}

TEST_F(PendingWritesTest, UpdatesOfOtherColumnsInBetweenDoNotPartThem)
{
    for (qint32 layer = 1; layer <= 8; ++layer)
        m_writes.Add(layer % 2 ? Code(layer, "7") : Name(layer, "Road"), 1);
    EXPECT_EQ(Send(), 2U);
    EXPECT_EQ(Codes(), "7 20 7 40 7 60 7 80 90");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE Name = 'Road'"), "4");
}

TEST_F(PendingWritesTest, TheLastUpdateOfARowCounts)
{
    for (qint32 layer = 1; layer <= 5; ++layer)
        m_writes.Add(Code(layer, "7"), 1);
    m_writes.Add(Name(3, "Road"), 1);
    m_writes.Add(Code(3, "8"), 1);
    m_writes.Add(Code(3, "9"), 1);
    Send();
    EXPECT_EQ(Codes(), "7 7 9 7 7 60 70 80 90");
    EXPECT_EQ(Owner().Text("SELECT Name FROM Layers WHERE LayerID = 3"), "Road");
}

TEST_F(PendingWritesTest, AStatementKeepsItsPlaceAmongUpdates)
{
    m_writes.Add(Code(1, "7"), 1);
    m_writes.Add("UPDATE layers SET code = code + $1", {"1"}, 1);
    m_writes.Add(Code(2, "7"), 1);
    Send();
    EXPECT_EQ(Codes(), "8 7 31 41 51 61 71 81 91");
}

TEST_F(PendingWritesTest, AllKindsOfTextsArriveAsTheyAre)
{
    const std::vector<QByteArray> names = {"", "NULL", "a\"b", "a\\b", "{1,2}", "it's", " Wälder\n"};
    for (size_t number = 0; number < names.size(); ++number)
        m_writes.Add(Name(qint32(number) + 1, names[number]), 1);
    Send();
    for (size_t number = 0; number < names.size(); ++number) {
        EXPECT_EQ(
            Owner().Text("SELECT Name FROM Layers WHERE LayerID = " + QByteArray::number(int(number) + 1)),
            names[number].toStdString());
    }
}

TEST_F(PendingWritesTest, ARowThatIsMissingIsRefusedAndNothingIsStored)
{
    m_writes.Add(Code(1, "7"), 1);
    m_writes.Add(Code(17, "7"), 1);
    EXPECT_EQ(Refusal(), RowUpdates::NotAsExpected);
    for (qint32 layer = 2; layer < 7; ++layer)
        m_writes.Add(Code(layer, "7"), 1);
    EXPECT_EQ(Refusal(), RowUpdates::NotAsExpected);
    EXPECT_EQ(Codes(), "10 20 30 40 50 60 70 80 90");
}

TEST_F(PendingWritesTest, RowsMayHaveToHoldWhatTheyHeldWhenTheyWereRead)
{
    m_writes.Add(Code(1, "7"), 1);
    m_writes.Add(Name(2, "Road"), 1);
    m_writes.ExpectRowsAsRead();
    Owner().Run("UPDATE Layers SET Code = 5 WHERE LayerID = 2");
    EXPECT_EQ(Refusal(), "") << "another column";
    EXPECT_EQ(Codes(), "7 5 30 40 50 60 70 80 90");
    EXPECT_EQ(Refusal(), RowUpdates::NotAsExpected) << "they no longer do";
    m_writes.Clear();
    m_writes.Add(Code(1, "8"), 1);
    EXPECT_EQ(Refusal(), "") << "until they are cleared";
}

TEST_F(PendingWritesTest, EachBelongsToItsLevel)
{
    m_writes.Add(Code(1, "1"), 1);
    m_writes.Add(Code(2, "1"), 2);
    m_writes.JoinAbove(1);
    m_writes.Add(Code(3, "1"), 2);
    m_writes.Add(Code(4, "1"), 3);
    m_writes.DropAbove(2);
    Send();
    EXPECT_EQ(Codes(), "1 1 1 40 50 60 70 80 90");
    EXPECT_EQ(m_levels, (std::vector<int>{1, 1, 2}));
    m_writes.DropAbove(0);
    EXPECT_TRUE(m_writes.IsEmpty());
}

TEST_F(PendingWritesTest, OnlyUpdatesMayBeSentAgain)
{
    m_writes.Add(Code(1, "1"), 1);
    EXPECT_TRUE(m_writes.MayBeginAgain());
    m_writes.Add("UPDATE layers SET code = 5", {}, 1);
    EXPECT_FALSE(m_writes.MayBeginAgain());
}

TEST_F(PendingWritesTest, TenThousandAreMany)
{
    for (qint32 layer = 1; layer < 10000; ++layer)
        m_writes.Add(Code(layer, "1"), 1);
    EXPECT_FALSE(m_writes.AreMany());
    m_writes.Add(Code(10000, "1"), 1);
    EXPECT_TRUE(m_writes.AreMany());
}

} // namespace Orvane::Testing
