// SPDX-License-Identifier: MIT
#include "store/postgres/PaperTable.h"
#include "support/Dice.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace Orvane::Testing {

namespace {

using Given = RowsAhead::Given;

constexpr qint32 LargestKey = std::numeric_limits<qint32>::max();

class RowsAheadTest : public testing::Test
{
protected:
    // Keys 1 to count; the value of each is ten times its key.
    void Fill(int count)
    {
        for (int key = 1; key <= count; ++key)
            m_table.Set(key, 10 * key);
    }
    static std::vector<qint32> Keys(qint32 first, int count, int step = 1)
    {
        std::vector<qint32> keys;
        keys.reserve(size_t(count));
        for (int number = 0; number < count; ++number)
            keys.push_back(first + number * step);
        return keys;
    }
    // Nothing for a row that is not there.
    std::optional<int> Sought(qint32 key)
    {
        const std::optional<TableRow> row = m_ahead.Find(key);
        if (!row)
            return std::nullopt;
        EXPECT_EQ(m_ahead.KeyOf(*row), key);
        return int(row->rows.Number(row->number, 0));
    }
    // How often the table is read while these rows are sought one after the other.
    int ReadsFor(const std::vector<qint32>& keys)
    {
        const int before = m_table.reads;
        for (const qint32 key : keys)
            EXPECT_EQ(Sought(key), 10 * key);
        return m_table.reads - before;
    }

    PaperTable m_table;
    RowsAhead m_ahead{m_table, "key"};
};

/// Seeks, writes and changes of state by chance, and what each seek must give.
class RandomSteps : public RowsAheadTest
{
protected:
    void Run(unsigned seed, int steps)
    {
        m_dice = Dice(seed);
        Change(200);
        for (int step = 0; step < steps && !HasFailure(); ++step)
            Act();
    }

private:
    void Act()
    {
        const int choice = m_dice.Below(100);
        if (choice < 60)
            Seek(m_dice.Below(MostKeys));
        else if (choice < 75)
            Walk();
        else if (choice < 85)
            Write(m_dice.Below(MostKeys));
        else if (choice < 90)
            GiveKeys();
        else if (choice < 96)
            Change(m_dice.Below(20));
        else
            m_table.mayKeep = !m_dice.Chance(20);
    }
    void Seek(qint32 key)
    {
        const auto row = m_table.Now().find(key);
        const std::optional<int> expected
            = row == m_table.Now().end() ? std::nullopt : std::optional(row->second);
        ASSERT_EQ(Sought(key), expected) << "of key " << key;
    }
    void Walk()
    {
        qint32 key = m_dice.Below(MostKeys);
        const int step = m_dice.Below(3) + 1;
        for (int count = m_dice.Below(60); count > 0; --count, key += step)
            Seek(key);
        for (const qint32 given : m_given)
            Seek(given);
    }
    // As a cursor does, in one state.
    void Write(qint32 key)
    {
        if (m_table.Now().count(key) == 0)
            return;
        m_table.Write(key, m_dice.Below(1000));
        m_ahead.NoteWritten(key);
    }
    // As others do, or a rollback.
    void Change(int rows)
    {
        for (; rows > 0; --rows) {
            const qint32 key = m_dice.Below(MostKeys);
            if (m_dice.Chance(40))
                m_table.Remove(key);
            else
                m_table.Set(key, m_dice.Below(1000));
        }
        m_table.ChangeState();
    }
    void GiveKeys()
    {
        m_given.clear();
        for (int count = m_dice.Below(50); count > 0; --count)
            m_given.push_back(m_dice.Below(MostKeys));
        m_ahead.NoteKeys(m_given, m_dice.Chance(50) ? Given::Keys : Given::Rows);
    }

    static constexpr int MostKeys = 500;
    Dice m_dice{1};
    std::vector<qint32> m_given;
};

} // namespace

TEST_F(RandomSteps, GiveTheSameRowsAsReadingEachWhenItIsSought)
{
    for (unsigned seed = 1; seed <= 10 && !HasFailure(); ++seed) {
        SCOPED_TRACE(seed);
        Run(seed, 1000);
    }
}

TEST_F(RowsAheadTest, ARowIsReadOnce)
{
    Fill(3);
    EXPECT_EQ(Sought(2), 20);
    EXPECT_EQ(Sought(2), 20);
    EXPECT_EQ(m_table.reads, 1);
    EXPECT_EQ(m_table.rowsRead, 1U);
}

TEST_F(RowsAheadTest, ThatThereIsNoSuchRowIsRememberedToo)
{
    EXPECT_EQ(Sought(2), std::nullopt);
    EXPECT_EQ(Sought(2), std::nullopt);
    EXPECT_EQ(m_table.reads, 1);
}

TEST_F(RowsAheadTest, RowsAreReadAgainInAnotherState)
{
    Fill(3);
    EXPECT_EQ(Sought(2), 20);
    m_table.Set(2, 7);
    EXPECT_EQ(Sought(2), 20);
    m_table.ChangeState();
    EXPECT_EQ(Sought(2), 7);
}

TEST_F(RowsAheadTest, AWrittenRowIsReadAgainAndNoOther)
{
    Fill(3);
    ReadsFor({1, 2, 3});
    m_table.Set(2, 7);
    const quint64 stamp = m_ahead.Stamp();
    m_ahead.NoteWritten(2);
    EXPECT_GT(m_ahead.Stamp(), stamp);
    EXPECT_EQ(Sought(2), 7);
    EXPECT_EQ(ReadsFor({1, 3}), 0);
}

TEST_F(RowsAheadTest, WhatWasWrittenNeedNotBeSentForOtherRows)
{
    Fill(100);
    ReadsFor({1, 2});
    m_table.Write(30, 7);
    m_ahead.NoteWritten(30);
    ReadsFor({28, 29, 31, 32});
    m_table.Write(31, 8);
    m_ahead.NoteWritten(31);
    EXPECT_EQ(Sought(30), 7);
    EXPECT_EQ(Sought(31), 8);
}

TEST_F(RowsAheadTest, WhatWasWrittenFirstInANewStateIsNotReadAsItWas)
{
    Fill(100);
    ReadsFor({1, 2, 3});
    m_table.ChangeState();
    m_table.Write(30, 7);
    m_ahead.NoteWritten(30);
    ReadsFor({28, 29, 31, 32});
    EXPECT_EQ(Sought(30), 7);
}

TEST_F(RowsAheadTest, WhereRowsMayNotBeKeptEachIsReadWhenItIsSought)
{
    Fill(10);
    m_table.mayKeep = false;
    EXPECT_EQ(ReadsFor(Keys(1, 10)), 10);
    m_table.Set(2, 7);
    EXPECT_EQ(Sought(2), 7);
}

TEST_F(RowsAheadTest, AThousandKeysOfAQueryAreReadAtOnceWhenTheFirstIsSought)
{
    Fill(5000);
    m_ahead.NoteKeys(Keys(4000, 1000, -3), Given::Keys);
    EXPECT_EQ(ReadsFor(Keys(4000, 1000, -3)), 1);
    EXPECT_EQ(m_table.rowsRead, 1000U);
}

TEST_F(RowsAheadTest, TheOrderInWhichTheyAreSoughtMayBeAnother)
{
    Fill(5000);
    m_ahead.NoteKeys(Keys(1, 1000), Given::Keys);
    std::vector<qint32> keys = Keys(1, 1000);
    std::shuffle(keys.begin(), keys.end(), std::mt19937(7));
    EXPECT_LE(ReadsFor(keys), 2);
    EXPECT_EQ(m_table.rowsRead, 1000U);
}

TEST_F(RowsAheadTest, OneKeyFromTheMiddleOfAQueryIsReadAlone)
{
    Fill(5000);
    m_ahead.NoteKeys(Keys(1, 1000), Given::Keys);
    EXPECT_EQ(ReadsFor({500}), 1);
    EXPECT_EQ(m_table.rowsRead, 1U);
}

TEST_F(RowsAheadTest, ARowThatAQueryGaveIsReadAloneToo)
{
    Fill(5000);
    m_ahead.NoteKeys(Keys(1, 5000), Given::Rows);
    EXPECT_EQ(ReadsFor({1}), 1);
    EXPECT_EQ(m_table.rowsRead, 1U);
}

TEST_F(RowsAheadTest, AHundredThousandKeysTakeAHandfulOfReads)
{
    Fill(100000);
    m_ahead.NoteKeys(Keys(1, 100000), Given::Keys);
    EXPECT_LE(ReadsFor(Keys(1, 100000)), 5);
    EXPECT_EQ(m_table.rowsRead, 100000U);
}

TEST_F(RowsAheadTest, AThousandKeysAnywhereInAListTakeAHandfulOfReads)
{
    Fill(100000);
    m_ahead.NoteKeys(Keys(100000, 100000, -1), Given::Rows);
    EXPECT_LE(ReadsFor(Keys(99950, 1000, -99)), 9);
}

TEST_F(RowsAheadTest, KeysThatNoQueryGaveAreReadInTheirOrder)
{
    Fill(10000);
    EXPECT_LE(ReadsFor(Keys(1, 10000)), 8);
}

TEST_F(RowsAheadTest, WhatWasSoughtInOneStateIsReadAtOnceInTheNext)
{
    Fill(100000);
    const std::vector<qint32> chosen = Keys(17, 1000, 97);
    ReadsFor(chosen);
    m_table.ChangeState();
    EXPECT_EQ(ReadsFor(chosen), 1);
    m_table.ChangeState();
    EXPECT_EQ(ReadsFor({17}), 1);
    m_table.ChangeState();
    EXPECT_EQ(ReadsFor(chosen), 1) << "a single row does not make it forget the walk";
}

TEST_F(RowsAheadTest, AStateThatChangesWhileReadingLeavesNoRowOfTheOldOne)
{
    class BeginsAgain final : public ITableRows
    {
    public:
        explicit BeginsAgain(PaperTable& table) : m_table(table) { }
        ServerRows Rows(const std::vector<qint32>& keys, Written written) override
        {
            if (beginsAgain) {
                m_table.ChangeState();
                m_table.Set(1, 5);
            }
            return m_table.Rows(keys, written);
        }
        ServerRows RowsFrom(qint32 key, int count, Written written) override
        {
            return m_table.RowsFrom(key, count, written);
        }
        quint64 State() override { return m_table.State(); }
        bool MayKeep() const override { return true; }
        bool beginsAgain = false;

    private:
        PaperTable& m_table;
    };
    Fill(3);
    BeginsAgain source(m_table);
    RowsAhead ahead(source, "key");
    ahead.Find(1);
    source.beginsAgain = true;
    ahead.Find(2);
    source.beginsAgain = false;
    const std::optional<TableRow> row = ahead.Find(1);
    ASSERT_TRUE(row);
    EXPECT_EQ(row->rows.Number(row->number, 0), 5);
}

TEST_F(RowsAheadTest, TheNextRowIsTheOneWithTheNextLargerKey)
{
    for (const qint32 key : {-5, 3, LargestKey})
        m_table.Set(key, 1);
    std::optional<TableRow> row = m_ahead.FindAfter(-5);
    ASSERT_TRUE(row);
    EXPECT_EQ(m_ahead.KeyOf(*row), 3);
    row = m_ahead.FindAfter(3);
    ASSERT_TRUE(row);
    EXPECT_EQ(m_ahead.KeyOf(*row), LargestKey);
    EXPECT_FALSE(m_ahead.FindAfter(LargestKey));
}

} // namespace Orvane::Testing
