// SPDX-License-Identifier: MIT
#include "component/common/MessageBoxes.h"

#include "component/common/Messages.h"
#include "support/MessageBoxRobot.h"
#include "support/PseudoLanguage.h"

#include <QPushButton>
#include <QWidget>

#include <gtest/gtest.h>
#include <memory>

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::MessageBoxRobot;
using Testing::SeenBox;

// A message box of the component as the user sees it.
struct BoxRow {
    const char* text;
    BoxStyle style;
    QMessageBox::Icon icon;
    QStringList buttons;
};

const QStringList OnlyOk{"OK"};
const QStringList YesAndNo{"&Yes", "&No"};

BoxRow Question(const char* text)
{
    return {text, BoxStyle::YesNoQuestion, QMessageBox::Question, YesAndNo};
}

BoxRow Information(const char* text)
{
    return {text, BoxStyle::OkInformation, QMessageBox::Information, OnlyOk};
}

BoxRow Exclamation(const char* text)
{
    return {text, BoxStyle::OkExclamation, QMessageBox::Warning, OnlyOk};
}

BoxRow Plain(const char* text)
{
    return {text, BoxStyle::Ok, QMessageBox::NoIcon, OnlyOk};
}

class EveryMessageBox : public testing::TestWithParam<BoxRow>
{
};

class EveryQuestion : public testing::TestWithParam<BoxStyle>
{
};

class EveryNotice : public testing::TestWithParam<BoxStyle>
{
};

BoxAnswer Ask(BoxStyle style, QWidget* owner = nullptr)
{
    return ShowMessageBox(owner, "Delete layer scheme 'Roads'?", style);
}

} // namespace

TEST_P(EveryMessageBox, HasItsIconAndButtonsAndTheFirstAsDefault)
{
    const BoxRow& row = GetParam();
    MessageBoxRobot user{BoxKey::Enter};
    ShowMessageBox(nullptr, TranslateMsg(row.text, QString("Roads")), row.style);
    const SeenBox box = user.Only();
    EXPECT_EQ(box.title, QString("Layer Control"));
    EXPECT_EQ(box.text, QString(row.text).replace("^1", "Roads"));
    EXPECT_EQ(box.icon, row.icon);
    EXPECT_EQ(box.buttons, row.buttons);
    EXPECT_EQ(box.defaultButton, row.buttons.front());
}

INSTANTIATE_TEST_SUITE_P(
    MessageBoxes, EveryMessageBox,
    testing::Values(
        Question("Switch to '^1'? Any unsaved changes to the current scheme will be lost. Continue?"),
        Information("The last layer scheme cannot be deleted."), Question("Delete layer scheme '^1'?"),
        Question("Revert to the last saved values in layer scheme '^1'?"),
        Question("Save current layer setup to scheme '^1'?"),
        Question("Are you sure you wish to save the colour schemes to the startup database?"),
        Information("Please supply a non-blank name, or cancel."),
        Plain("Unexpected program flow in frmLayerStyles"),
        Exclamation("You may not delete a 'system layer'"), Exclamation("Invalid Name"),
        Exclamation("Code ^1 has already been assigned. Please assign another code."),
        BoxRow{
            "Do you wish to apply the changes to the '^2' ^1?", BoxStyle::YesNo, QMessageBox::NoIcon,
            YesAndNo},
        Plain("Unknown Fill Style!"),
        BoxRow{
            "The connection to the server was lost.",
            BoxStyle::TryAgainExclamation,
            QMessageBox::Warning,
            {"&Try Again", "&Close"}}));

TEST_P(EveryQuestion, AnswersWhatIsPressed)
{
    MessageBoxRobot user{BoxKey::Yes, BoxKey::No};
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::Yes);
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::No);
}

TEST_P(EveryQuestion, AnswersYesToEnterAndNoToEscape)
{
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Escape};
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::Yes);
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::No);
}

INSTANTIATE_TEST_SUITE_P(
    MessageBoxes, EveryQuestion, testing::Values(BoxStyle::YesNo, BoxStyle::YesNoQuestion));

TEST_P(EveryNotice, AnswersOkToEnterAndToEscape)
{
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Escape};
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::Ok);
    EXPECT_EQ(Ask(GetParam()), BoxAnswer::Ok);
}

INSTANTIATE_TEST_SUITE_P(
    MessageBoxes, EveryNotice,
    testing::Values(BoxStyle::Ok, BoxStyle::OkInformation, BoxStyle::OkExclamation));

TEST(MessageBoxes, AnswerTryAgainToEnterAndCloseToEscape)
{
    MessageBoxRobot user{BoxKey::Enter, BoxKey::Escape};
    EXPECT_EQ(Ask(BoxStyle::TryAgainExclamation), BoxAnswer::TryAgain);
    EXPECT_EQ(Ask(BoxStyle::TryAgainExclamation), BoxAnswer::Close);
}

TEST(MessageBoxes, StandOverTheWindowOfTheirOwner)
{
    QWidget window;
    QWidget control(&window);
    MessageBoxRobot user{BoxKey::Enter};
    Ask(BoxStyle::Ok, &control);
    EXPECT_EQ(user.Only().owner, &window);
}

TEST(MessageBoxes, ShowNamesThatLookLikeMarkupAsTheyAre)
{
    MessageBoxRobot user{BoxKey::Enter};
    ShowMessageBox(nullptr, "Apply to '<b>No Name</b>'?", BoxStyle::YesNo);
    EXPECT_EQ(user.Only().format, Qt::PlainText);
}

TEST(MessageBoxes, SpeakTheUsersLanguageInTitleAndButtons)
{
    const Testing::PseudoLanguage pseudo;
    MessageBoxRobot user{BoxKey::Escape, BoxKey::Escape};
    Ask(BoxStyle::YesNo);
    Ask(BoxStyle::Ok);
    EXPECT_EQ(user.Boxes()[0].title, Testing::Pseudo("Layer Control"));
    EXPECT_EQ(user.Boxes()[0].buttons, QStringList({Testing::Pseudo("&Yes"), Testing::Pseudo("&No")}));
    EXPECT_EQ(user.Boxes()[1].buttons, QStringList({Testing::Pseudo("OK")}));
}

TEST(MessageBoxes, WhoseOwnerIsDestroyedAnswerAsEscapeDoes)
{
    auto window = std::make_unique<QWidget>();
    MessageBoxRobot user{};
    user.BeforeAnswer([&](QMessageBox&) { window.reset(); });
    EXPECT_EQ(Ask(BoxStyle::YesNo, window.get()), BoxAnswer::No);
}

} // namespace Orvane
