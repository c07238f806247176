// SPDX-License-Identifier: MIT
#include "hostkit/windows/TextPrompt.h"

#include "hostkit/HostKitTest.h"

#include <QAccessible>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace Orvane::Testing {
namespace {

PromptRequest TextRequest(const QString& defaultText = {})
{
    return {QStringLiteral("New Scheme"), defaultText, EntryKind::Text, 0, 0, 20};
}

PromptRequest CodeRequest(const QString& defaultText = {})
{
    return {QStringLiteral("Edit code"), defaultText, EntryKind::Integer, -32768, 32767, 0};
}

class Prompt : public testing::Test
{
protected:
    static QLineEdit& Entry(QWidget& prompt)
    {
        return *prompt.findChild<QLineEdit*>(QStringLiteral("bedText"));
    }
    static QPushButton& Button(QWidget& prompt, QDialogButtonBox::StandardButton button)
    {
        return *prompt.findChild<QDialogButtonBox*>()->button(button);
    }
    // The text of the label that stands by the entry.
    static QString LabelOf(QWidget& prompt)
    {
        for (const QLabel* label : prompt.findChildren<QLabel*>()) {
            if (label->buddy() == &Entry(prompt))
                return label->text();
        }
        return {};
    }
    static bool CanAccept(QWidget& prompt) { return Button(prompt, QDialogButtonBox::Ok).isEnabled(); }

    static PromptAnswer Answer(const PromptRequest& request, const std::function<void(QWidget&)>& act)
    {
        WhenModal(act);
        return TextPrompt(request).Ask();
    }

    static bool Accepts(const PromptRequest& request, const QString& typed)
    {
        TextPrompt prompt(request);
        QTest::keyClicks(&Entry(prompt), typed);
        return CanAccept(prompt);
    }
};

TEST_F(Prompt, AnswersTheTextThatWasTyped)
{
    const PromptAnswer answer = Answer(TextRequest(), [](QWidget& prompt) {
        QTest::keyClicks(&Entry(prompt), QStringLiteral("Night"));
        QTest::keyClick(&Entry(prompt), Qt::Key_Return);
    });
    EXPECT_TRUE(answer.accepted);
    EXPECT_EQ(answer.text, QStringLiteral("Night"));
}

TEST_F(Prompt, KeepsBlanksAroundTheText)
{
    const PromptAnswer answer = Answer(TextRequest(), [](QWidget& prompt) {
        QTest::keyClicks(&Entry(prompt), QStringLiteral("  a "));
        QTest::mouseClick(&Button(prompt, QDialogButtonBox::Ok), Qt::LeftButton);
    });
    EXPECT_EQ(answer.text, QStringLiteral("  a "));
}

TEST_F(Prompt, TypingReplacesTheDefaultText)
{
    const PromptAnswer answer = Answer(TextRequest(QStringLiteral("Old")), [](QWidget& prompt) {
        EXPECT_EQ(Entry(prompt).selectedText(), QStringLiteral("Old"));
        QTest::keyClicks(&Entry(prompt), QStringLiteral("New"));
        QTest::keyClick(&Entry(prompt), Qt::Key_Enter);
    });
    EXPECT_EQ(answer.text, QStringLiteral("New"));
}

TEST_F(Prompt, EscapeCancelsWithoutAText)
{
    const PromptAnswer answer = Answer(TextRequest(QStringLiteral("Old")), [](QWidget& prompt) {
        QTest::keyClick(&Entry(prompt), Qt::Key_Escape);
    });
    EXPECT_FALSE(answer.accepted);
    EXPECT_TRUE(answer.text.isEmpty());
}

TEST_F(Prompt, TheCancelButtonCancels)
{
    const PromptAnswer answer = Answer(TextRequest(QStringLiteral("Old")), [](QWidget& prompt) {
        QTest::mouseClick(&Button(prompt, QDialogButtonBox::Cancel), Qt::LeftButton);
    });
    EXPECT_FALSE(answer.accepted);
}

TEST_F(Prompt, AcceptsAnyTextTheEmptyOneIncluded)
{
    EXPECT_TRUE(Accepts(TextRequest(), {}));
    EXPECT_TRUE(Accepts(TextRequest(), QStringLiteral("   ")));
}

TEST_F(Prompt, AcceptsWholeNumbersWithinTheLimits)
{
    EXPECT_TRUE(Accepts(CodeRequest(), QStringLiteral("0")));
    EXPECT_TRUE(Accepts(CodeRequest(), QStringLiteral("-32768")));
    EXPECT_TRUE(Accepts(CodeRequest(), QStringLiteral("32767")));
    EXPECT_TRUE(Accepts(CodeRequest(), QStringLiteral(" 7 ")));
}

TEST_F(Prompt, RefusesWhatIsNoWholeNumberWithinTheLimits)
{
    for (const char* typed :
         {"", " ", "abc", "1x", "2.5", "32768", "-32769", "1,000", "99999999999999999999"})
        EXPECT_FALSE(Accepts(CodeRequest(), QLatin1String(typed))) << typed;
}

TEST_F(Prompt, ReturnDoesNothingWhileTheEntryIsNotAcceptable)
{
    Answer(CodeRequest(), [](QWidget& prompt) {
        QTest::keyClicks(&Entry(prompt), QStringLiteral("40000"));
        QTest::keyClick(&Entry(prompt), Qt::Key_Return);
        EXPECT_TRUE(prompt.isVisible());
        QTest::keyClick(&Entry(prompt), Qt::Key_Backspace);
        EXPECT_TRUE(CanAccept(prompt));
        QTest::keyClick(&Entry(prompt), Qt::Key_Return);
        EXPECT_FALSE(prompt.isVisible());
    });
}

TEST_F(Prompt, SaysTheLimitsOfANumberAndNoneForAText)
{
    TextPrompt number(CodeRequest());
    const auto* limits = number.findChild<QLabel*>(QStringLiteral("lblLimits"));
    EXPECT_TRUE(limits->text().contains(QStringLiteral("-32768")));
    EXPECT_TRUE(limits->text().contains(QStringLiteral("32767")));
    EXPECT_FALSE(limits->isHidden());
    TextPrompt text(TextRequest());
    EXPECT_TRUE(text.findChild<QLabel*>(QStringLiteral("lblLimits"))->isHidden());
}

TEST_F(Prompt, IsNamedByItsTitle)
{
    TextPrompt prompt(TextRequest());
    EXPECT_EQ(prompt.windowTitle(), QStringLiteral("New Scheme"));
}

TEST_F(Prompt, TheEntryHasALabelThatSaysWhatIsAskedFor)
{
    TextPrompt name(TextRequest());
    EXPECT_EQ(LabelOf(name), QStringLiteral("Name:"));
    TextPrompt code(CodeRequest());
    EXPECT_EQ(LabelOf(code), QStringLiteral("Code:"));
    TextPrompt number({QStringLiteral("Copies"), {}, EntryKind::Integer, 1, 99, 0});
    EXPECT_EQ(LabelOf(number), QStringLiteral("Number:"));
}

TEST_F(Prompt, ScreenReadersNameTheEntryByItsLabel)
{
    TextPrompt prompt(TextRequest());
    const QAccessibleInterface* entry = QAccessible::queryAccessibleInterface(&Entry(prompt));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text(QAccessible::Name), QStringLiteral("Name:"));
}

TEST_F(Prompt, TheEntryIsAsWideAsTheRequestAsks)
{
    PromptRequest narrow = TextRequest();
    PromptRequest wide = narrow;
    wide.width = 60;
    TextPrompt narrowPrompt(narrow);
    TextPrompt widePrompt(wide);
    const int difference = Entry(widePrompt).minimumWidth() - Entry(narrowPrompt).minimumWidth();
    EXPECT_EQ(difference, 40 * Entry(widePrompt).fontMetrics().averageCharWidth());
}

TEST_F(Prompt, TakesLongAndUnusualTextsWhole)
{
    const QString name = QString::fromUtf8("\"O'Neill\" 🗺 שלום ") + QString(10000, u'x');
    const PromptAnswer answer
        = Answer(TextRequest(name), [](QWidget& prompt) { QTest::keyClick(&Entry(prompt), Qt::Key_Return); });
    EXPECT_EQ(answer.text, name);
}

} // namespace
} // namespace Orvane::Testing
