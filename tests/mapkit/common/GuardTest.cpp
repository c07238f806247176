// SPDX-License-Identifier: MIT
#include "mapkit/common/Guard.h"

#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

TEST(Guard, TellsThatTheActionEndedWell)
{
    bool ran = false;
    EXPECT_TRUE(Guard(nullptr, [&] { ran = true; }));
    EXPECT_TRUE(ran);
}

TEST(Guard, ShowsWhatTheActionRaises)
{
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_FALSE(Guard(nullptr, [] { throw RunTimeError(77, QStringLiteral("Größe")); }));
    EXPECT_EQ(user.Only().text, QStringLiteral("Größe"));
    EXPECT_EQ(user.Only().icon, QMessageBox::Warning);
}

TEST(Guard, SaysNothingOfWhatTheUserCancelled)
{
    const MessageBoxRobot nobody{};
    EXPECT_FALSE(Guard(nullptr, [] { throw Cancelled(); }));
}

} // namespace Orvane
