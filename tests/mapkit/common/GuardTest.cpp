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
    MessageBoxRobot person{BoxKey::Enter};
    EXPECT_FALSE(Guard(nullptr, [] { throw RunTimeError(77, QStringLiteral("Größe")); }));
    EXPECT_EQ(person.Only().text, QStringLiteral("Größe"));
    EXPECT_EQ(person.Only().icon, QMessageBox::Warning);
}

TEST(Guard, SaysNothingOfWhatThePersonCancelled)
{
    const MessageBoxRobot nobody{};
    EXPECT_FALSE(Guard(nullptr, [] { throw Cancelled(); }));
}

} // namespace Orvane
