// SPDX-License-Identifier: MIT
#include "component/dialog/window/PendingChangesPrompt.h"

#include "support/MessageBoxRobot.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::MessageBoxRobot;

} // namespace

TEST(PendingChangesPrompt, NamesTheLayerAndOffersYesAndNoOnly)
{
    MessageBoxRobot user{BoxKey::No};
    AskToApply(nullptr, false, "Roads");
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Roads' layer?");
    EXPECT_THAT(user.Only().buttons, ElementsAre("&Yes", "&No"));
    EXPECT_EQ(user.Only().icon, QMessageBox::NoIcon);
}

TEST(PendingChangesPrompt, NamesTheGroup)
{
    MessageBoxRobot user{BoxKey::No};
    AskToApply(nullptr, true, "Transport");
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Transport' group?");
}

TEST(PendingChangesPrompt, KeepsAPlaceholderInANameAsItIs)
{
    MessageBoxRobot user{BoxKey::No};
    AskToApply(nullptr, false, "^1");
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the '^1' layer?");
}

TEST(PendingChangesPrompt, TakesEscapeForNo)
{
    MessageBoxRobot user{BoxKey::No, BoxKey::Escape, BoxKey::Yes};
    EXPECT_EQ(AskToApply(nullptr, false, "Roads"), PendingChangesAnswer::No);
    EXPECT_EQ(AskToApply(nullptr, false, "Roads"), PendingChangesAnswer::No);
    EXPECT_EQ(AskToApply(nullptr, false, "Roads"), PendingChangesAnswer::Yes);
}

} // namespace Orvane
