// SPDX-License-Identifier: MIT
#include "component/common/EventGuard.h"

#include "support/MessageBoxRobot.h"
#include "support/PseudoLanguage.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QTest>
#include <QWidget>

#include <gtest/gtest.h>
#include <memory>
#include <stdexcept>

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::MessageBoxRobot;

void RaiseLocked()
{
    throw RunTimeError(ErrorNumber::DatabaseLocked, "The database is locked.");
}

} // namespace

TEST(GuardEvent, RunsTheActionAndReportsNothing)
{
    MessageBoxRobot user{};
    bool ran = false;
    EXPECT_TRUE(GuardEvent(nullptr, [&] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_TRUE(user.Boxes().empty());
}

TEST(GuardEvent, ShowsTheDescriptionOfARunTimeError)
{
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_FALSE(GuardEvent(nullptr, RaiseLocked));
    EXPECT_EQ(user.Only().text, QString("The database is locked."));
    EXPECT_EQ(user.Only().icon, QMessageBox::Warning);
    EXPECT_EQ(user.Only().buttons, QStringList("OK"));
}

TEST(GuardEvent, SaysNothingOfWhatTheUserCancelled)
{
    MessageBoxRobot user{};
    EXPECT_FALSE(GuardEvent(nullptr, [] { throw RunTimeError(UserCancelled, "Cancelled."); }));
    EXPECT_TRUE(user.Boxes().empty());
}

TEST(GuardEvent, TranslatesTheDescription)
{
    const Testing::PseudoLanguage pseudo;
    MessageBoxRobot user{BoxKey::Enter};
    GuardEvent(nullptr, [] { throw RunTimeError(ErrorNumber::Overflow, "Overflow"); });
    EXPECT_EQ(user.Only().text, Testing::Pseudo("Overflow"));
}

TEST(GuardEvent, NamesAnotherExceptionByItsOwnWords)
{
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_FALSE(GuardEvent(nullptr, [] { throw std::logic_error("lost my way"); }));
    EXPECT_EQ(user.Only().text, QString("An unexpected error stopped the action: lost my way"));
}

TEST(GuardEvent, StopsWhatIsNoException)
{
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_FALSE(GuardEvent(nullptr, [] { throw 17; }));
    EXPECT_EQ(user.Only().text, QString("An unexpected error stopped the action."));
}

TEST(GuardEvent, ShowsTheErrorOverTheOwnersWindow)
{
    QWidget window;
    QWidget control(&window);
    MessageBoxRobot user{BoxKey::Enter};
    GuardEvent(&control, RaiseLocked);
    EXPECT_EQ(user.Only().owner, &window);
}

TEST(GuardEvent, BearsAnActionThatDestroysItsOwner)
{
    auto window = std::make_unique<QWidget>();
    MessageBoxRobot user{BoxKey::Enter};
    EXPECT_FALSE(GuardEvent(window.get(), [&] {
        window.reset();
        RaiseLocked();
    }));
    EXPECT_EQ(user.Only().owner, nullptr);
}

TEST(GuardEvent, ShowsOneErrorAtATime)
{
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Enter};
    bool nested = true;
    user.BeforeAnswer([&](QMessageBox&) { nested = GuardEvent(nullptr, RaiseLocked); });
    GuardEvent(nullptr, RaiseLocked);
    EXPECT_FALSE(nested);
    EXPECT_EQ(user.Boxes().size(), 1u);
    GuardEvent(nullptr, RaiseLocked);
    EXPECT_EQ(user.Boxes().size(), 2u);
}

TEST(GuardRepeatable, RunsTheCommandAgainAsOftenAsTheUserWants)
{
    QWidget window;
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Enter};
    int runs = 0;
    GuardRepeatable(window, [&] {
        if (++runs < 3)
            RaiseLocked();
    });
    EXPECT_TRUE(QTest::qWaitFor([&] { return runs == 3; }));
    ASSERT_EQ(user.Boxes().size(), 2u);
    EXPECT_EQ(user.Boxes()[0].text, QString("The database is locked."));
    EXPECT_EQ(user.Boxes()[0].buttons, QStringList({"&Try Again", "&Close"}));
    EXPECT_EQ(user.Boxes()[0].icon, QMessageBox::Warning);
}

TEST(GuardRepeatable, RunsItOnceWhenTheUserClosesTheBox)
{
    QWidget window;
    MessageBoxRobot user{BoxKey::Escape};
    int runs = 0;
    GuardRepeatable(window, [&] {
        ++runs;
        throw RunTimeError(ErrorNumber::ConnectionLost, "The connection was lost.");
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(user.Only().text, QString("The connection was lost."));
}

TEST(GuardRepeatable, OffersNothingWhereTryingAgainDoesNotHelp)
{
    QWidget window;
    for (const auto number : {ErrorNumber::DatabaseFailure, ErrorNumber::DatabaseReadOnly}) {
        MessageBoxRobot user{BoxKey::Enter};
        GuardRepeatable(window, [&] { throw RunTimeError(number, "No."); });
        EXPECT_EQ(user.Only().buttons, QStringList("OK"));
    }
    MessageBoxRobot user{};
    GuardRepeatable(window, [] { throw RunTimeError(UserCancelled, "Cancelled."); });
    EXPECT_TRUE(user.Boxes().empty());
}

TEST(GuardRepeatable, BearsAnOwnerThatIsDestroyedWhileTheBoxIsShown)
{
    auto window = std::make_unique<QWidget>();
    MessageBoxRobot user{};
    user.BeforeAnswer([&](QMessageBox&) { window.reset(); });
    int runs = 0;
    GuardRepeatable(*window, [&] {
        ++runs;
        RaiseLocked();
    });
    QCoreApplication::processEvents();
    EXPECT_EQ(runs, 1);
}

TEST(GuardPaint, StopsEveryErrorWithoutAWindow)
{
    MessageBoxRobot user{};
    EXPECT_FALSE(GuardPaint(RaiseLocked));
    EXPECT_FALSE(GuardPaint([] { throw 17; }));
    EXPECT_TRUE(GuardPaint([] {}));
    EXPECT_TRUE(user.Boxes().empty());
}

} // namespace Orvane
