// SPDX-License-Identifier: MIT
#include "shell/command/Interruption.h"

#include <csignal>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

volatile std::sig_atomic_t heard = 0;

void NoteSignal(int /*signal*/)
{
    heard = 1;
}

class InterruptionTest : public testing::TestWithParam<int>
{
protected:
    ~InterruptionTest() override { std::signal(GetParam(), SIG_DFL); }
};

} // namespace

TEST_P(InterruptionTest, IsAskedOnceTheSignalCame)
{
    const Interruption interruption;
    EXPECT_FALSE(interruption.IsAsked());
    std::raise(GetParam());
    EXPECT_TRUE(interruption.IsAsked());
}

TEST_P(InterruptionTest, ForgetsWhatCameToAnEarlierOne)
{
    {
        const Interruption earlier;
        std::raise(GetParam());
    }
    const Interruption interruption;
    EXPECT_FALSE(interruption.IsAsked());
}

TEST_P(InterruptionTest, ASignalThatTheProgramIgnoresStaysIgnored)
{
    std::signal(GetParam(), SIG_IGN);
    {
        const Interruption interruption;
        std::raise(GetParam());
        EXPECT_FALSE(interruption.IsAsked());
    }
    EXPECT_EQ(std::signal(GetParam(), SIG_DFL), SIG_IGN);
}

TEST_P(InterruptionTest, GivesTheEarlierHandlerBack)
{
    heard = 0;
    std::signal(GetParam(), NoteSignal);
    {
        const Interruption interruption;
        std::raise(GetParam());
    }
    EXPECT_EQ(heard, 0);
    std::raise(GetParam());
    EXPECT_EQ(heard, 1);
}

INSTANTIATE_TEST_SUITE_P(Signals, InterruptionTest, testing::Values(SIGINT, SIGTERM));

} // namespace Orvane
