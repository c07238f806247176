// SPDX-License-Identifier: MIT
#include "component/dialog/window/PendingChangesPrompt.h"

#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::MessageBoxRobot;
using Answer = PendingChangesPrompt::Answer;

class PendingChangesPromptTest : public testing::Test
{
protected:
    int applied = 0;
    int cancelled = 0;
    PendingChangesPrompt prompt{[this] { ++applied; }, [this] { ++cancelled; }};
};

} // namespace

TEST_F(PendingChangesPromptTest, NamesTheLayerAndOffersYesAndNoOnly)
{
    MessageBoxRobot person{BoxKey::No};
    prompt.Ask(nullptr, false, "Roads");
    EXPECT_EQ(person.Only().text, "Do you wish to apply the changes to the 'Roads' layer?");
    EXPECT_THAT(person.Only().buttons, ElementsAre("&Yes", "&No"));
    EXPECT_EQ(person.Only().icon, QMessageBox::NoIcon);
}

TEST_F(PendingChangesPromptTest, NamesTheGroup)
{
    MessageBoxRobot person{BoxKey::No};
    prompt.Ask(nullptr, true, "Transport");
    EXPECT_EQ(person.Only().text, "Do you wish to apply the changes to the 'Transport' group?");
}

TEST_F(PendingChangesPromptTest, KeepsAPlaceholderInANameAsItIs)
{
    MessageBoxRobot person{BoxKey::No};
    prompt.Ask(nullptr, false, "^1");
    EXPECT_EQ(person.Only().text, "Do you wish to apply the changes to the '^1' layer?");
}

TEST_F(PendingChangesPromptTest, AppliesOnYes)
{
    MessageBoxRobot person{BoxKey::Yes};
    prompt.Ask(nullptr, false, "Roads");
    EXPECT_EQ(applied, 1);
    EXPECT_EQ(cancelled, 0);
}

TEST_F(PendingChangesPromptTest, DoesNothingOnNo)
{
    MessageBoxRobot person{BoxKey::No};
    prompt.Ask(nullptr, false, "Roads");
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(cancelled, 0);
}

TEST_F(PendingChangesPromptTest, TakesEscapeForNo)
{
    MessageBoxRobot person{BoxKey::Escape};
    prompt.Ask(nullptr, false, "Roads");
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(cancelled, 0);
}

TEST_F(PendingChangesPromptTest, WouldCancelOnACancelAnswer)
{
    prompt.ActOn(Answer::Cancel);
    EXPECT_EQ(applied, 0);
    EXPECT_EQ(cancelled, 1);
}

TEST_F(PendingChangesPromptTest, PassesAnErrorOfApplyOn)
{
    const PendingChangesPrompt failing([] { throw RunTimeError(1, "locked"); }, [] {});
    MessageBoxRobot person{BoxKey::Yes};
    EXPECT_THROW(failing.Ask(nullptr, false, "Roads"), RunTimeError);
}

} // namespace Orvane
