// SPDX-License-Identifier: MIT
#include "hostkit/common/NextNumbers.h"

#include "support/Errors.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <gmock/gmock.h>
#include <stdexcept>
#include <vector>

namespace Orvane {

using namespace Testing;

namespace {

using testing::ElementsAre;

/// A table, and a program that takes numbers of it at the same moment.
class NextNumbersTest : public testing::Test
{
protected:
    int Store(int error, bool isOvertaken)
    {
        return StoreWithNextNumbers(
            [this] { return m_highest + 1; },
            [=, this](int number) {
                m_tried.push_back(number);
                m_highest += isOvertaken && m_tried.size() == 1 ? 1 : 0;
                if (m_tried.size() == 1 && error != 0)
                    throw RunTimeError(error, QStringLiteral("refused"));
                return number;
            });
    }

    int m_highest = 10;
    std::vector<int> m_tried;
};

} // namespace

TEST_F(NextNumbersTest, ARowGetsTheNextNumber)
{
    EXPECT_EQ(Store(0, false), 11);
    EXPECT_THAT(m_tried, ElementsAre(11));
}

TEST_F(NextNumbersTest, ARowWhoseNumberAnotherProgramTookGetsTheOneAfter)
{
    EXPECT_EQ(Store(int(ErrorNumber::DatabaseFailure), true), 12);
    EXPECT_THAT(m_tried, ElementsAre(11, 12));
}

TEST_F(NextNumbersTest, ARowThatAnotherProgramHasLockedOutGetsTheNumberAfter)
{
    EXPECT_EQ(Store(int(ErrorNumber::DatabaseLocked), true), 12);
}

TEST_F(NextNumbersTest, ARefusalForAnotherReasonIsRaised)
{
    EXPECT_EQ(
        ErrorOf([this] { Store(int(ErrorNumber::DatabaseFailure), false); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_THAT(m_tried, ElementsAre(11));
}

TEST_F(NextNumbersTest, WhatTheUserCancelledIsNotStored)
{
    EXPECT_EQ(ErrorOf([this] { Store(int(UserCancelled), true); }), int(UserCancelled));
    EXPECT_THAT(m_tried, ElementsAre(11));
}

TEST_F(NextNumbersTest, WhoIsOvertakenEachTimeIsToldAfterTheFourth)
{
    const auto refuse = [this](int number) -> int {
        m_tried.push_back(number);
        ++m_highest;
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("refused"));
    };
    EXPECT_EQ(
        ErrorOf([&] { StoreWithNextNumbers([this] { return m_highest + 1; }, refuse); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_THAT(m_tried, ElementsAre(11, 12, 13, 14));
}

TEST_F(NextNumbersTest, IfTheNextNumberCannotBeReadTheFirstErrorIsRaised)
{
    int asked = 0;
    const auto next = [&]() -> int {
        if (++asked > 1)
            throw std::runtime_error("lost");
        return 1;
    };
    const auto refuse
        = [](int) -> int { throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("first")); };
    EXPECT_EQ(ErrorOf([&] { StoreWithNextNumbers(next, refuse); }), int(ErrorNumber::DatabaseFailure));
}

} // namespace Orvane
