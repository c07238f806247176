// SPDX-License-Identifier: MIT
#include "sweep/SweepOptions.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

std::optional<SweepOptions> Read(const QStringList& arguments)
{
    return SweepOptions::Read(QStringList("sweep") + arguments);
}

} // namespace

TEST(SweepOptionsTest, WithoutArgumentsEveryCallFails)
{
    const auto options = Read({});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->every, 1);
    EXPECT_EQ(options->from, 1);
    EXPECT_TRUE(options->Takes("anything"));
}

TEST(SweepOptionsTest, ASampleBeginsWhereItIsTold)
{
    const auto options = Read({"--every", "7", "--from", "3", "undo"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->every, 7);
    EXPECT_EQ(options->from, 3);
    EXPECT_TRUE(options->Takes("host kit: undo"));
    EXPECT_FALSE(options->Takes("host kit: redo"));
}

TEST(SweepOptionsTest, ASampleBeginsWithinItsFirstStepOtherwise)
{
    const auto options = Read({"--every", "7"});
    ASSERT_TRUE(options);
    EXPECT_GE(options->from, 1);
    EXPECT_LE(options->from, 7);
}

TEST(SweepOptionsTest, OtherArgumentsAreRefused)
{
    EXPECT_FALSE(Read({"--every"}));
    EXPECT_FALSE(Read({"--every", "0"}));
    EXPECT_FALSE(Read({"--often"}));
    EXPECT_FALSE(Read({"undo", "redo"}));
}

} // namespace Orvane::Testing
