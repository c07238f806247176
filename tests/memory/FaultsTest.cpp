// SPDX-License-Identifier: MIT
#include "sweep/NewFault.h"
#include "sweep/SqliteMemoryFault.h"

#include <gtest/gtest.h>
#include <new>
#include <sqlite3.h>
#include <string>
#include <thread>

namespace Orvane::Testing {

namespace {

// SQLite is ready before the fault is armed.
class SqliteMemoryFaults : public testing::Test
{
protected:
    SqliteMemoryFaults()
    {
        SqliteMemoryFault::Install();
        sqlite3_initialize();
    }
};

bool SqliteAllocates()
{
    void* memory = sqlite3_malloc(48);
    sqlite3_free(memory);
    return memory != nullptr;
}

// Called directly, because a compiler may leave out a pair of new and delete.
bool NewAllocates()
{
    try {
        ::operator delete(::operator new(48));
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    }
}

std::string Answers(bool (*allocates)())
{
    std::string answers;
    for (int i = 0; i < 4; ++i)
        answers += allocates() ? '+' : '-';
    return answers;
}

} // namespace

TEST_F(SqliteMemoryFaults, TheNthAllocationFailsAndLaterOnesDoNot)
{
    SqliteMemoryFault fault;
    fault.Arm(2);
    const std::string answers = Answers(SqliteAllocates);
    fault.Disarm();
    EXPECT_EQ(answers, "+-++");
    EXPECT_TRUE(fault.HasFailed());
    EXPECT_EQ(fault.FirstFailure(), "allocation in SQLite 2, of 48 bytes");
}

TEST_F(SqliteMemoryFaults, ALastingOneLastsUntilItIsDisarmed)
{
    SqliteMemoryFault fault(Extent::FromThenOn);
    fault.Arm(2);
    const std::string answers = Answers(SqliteAllocates);
    fault.Disarm();
    EXPECT_EQ(answers, "+---");
    EXPECT_TRUE(SqliteAllocates());
}

TEST_F(SqliteMemoryFaults, OtherThreadsNeverFail)
{
    SqliteMemoryFault fault;
    bool elsewhere = false;
    std::thread other;
    fault.Arm(1);
    other = std::thread([&] { elsewhere = SqliteAllocates(); });
    other.join();
    EXPECT_FALSE(fault.HasFailed());
    EXPECT_FALSE(SqliteAllocates());
    EXPECT_TRUE(elsewhere);
}

TEST(NewFaults, TheNthAllocationRaisesAndLaterOnesDoNot)
{
    NewFault fault;
    fault.Arm(3);
    const std::string answers = Answers(NewAllocates);
    fault.Disarm();
    EXPECT_EQ(answers, "++-+");
    EXPECT_EQ(fault.FirstFailure(), "operator new 3, of 48 bytes");
}

TEST(NewFaults, ALastingOneLastsUntilItIsDisarmed)
{
    NewFault fault(Extent::FromThenOn);
    fault.Arm(1);
    const std::string answers = Answers(NewAllocates);
    fault.Disarm();
    EXPECT_EQ(answers, "----");
    EXPECT_TRUE(NewAllocates());
}

TEST(NewFaults, ArmingAgainForgetsWhatFailed)
{
    NewFault fault;
    fault.Arm(1);
    EXPECT_FALSE(NewAllocates());
    fault.Arm(5);
    EXPECT_FALSE(fault.HasFailed());
    fault.Disarm();
}

} // namespace Orvane::Testing
