// SPDX-License-Identifier: MIT
#include "translations/SourceTexts.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

QStringList Shown(const QString& code, int argument = 0)
{
    return TextsInCalls(code, {"TranslateMsg"}, argument);
}

} // namespace

TEST(SourceTexts, ACallsLiteralIsFoundWhateverItsOtherArguments)
{
    EXPECT_EQ(Shown(R"(x = TranslateMsg("Code ^1", Name(a, "b"), c);)"), QStringList("Code ^1"));
    EXPECT_EQ(Shown("TranslateMsg(\n  QStringLiteral(\"Invalid Name\"))"), QStringList("Invalid Name"));
}

TEST(SourceTexts, NeighbouringLiteralsAreOneText)
{
    EXPECT_EQ(Shown("TranslateMsg(\"Switch? \"\n   \"Continue?\")"), QStringList("Switch? Continue?"));
}

TEST(SourceTexts, BothBranchesOfAChoiceCount)
{
    EXPECT_EQ(Shown(R"(TranslateMsg(isGroup ? "group" : "layer"))"), QStringList({"group", "layer"}));
}

TEST(SourceTexts, EscapesAreResolved)
{
    EXPECT_EQ(Shown(R"(TranslateMsg("a \"b\" \\ \n c \u00e9"))"), QStringList("a \"b\" \\ \n c \u00e9"));
}

TEST(SourceTexts, BracketsAndCommasInsideLiteralsEndNothing)
{
    const QString code = R"code(TranslateMsg("(a, b", x) + TranslateMsg("c)"))code";
    EXPECT_EQ(Shown(code), QStringList({"(a, b", "c)"}));
}

TEST(SourceTexts, CommentsAreNoCode)
{
    EXPECT_EQ(
        Shown("// TranslateMsg(\"a\")\n/* TranslateMsg(\"b\") */ TranslateMsg(\"http://c\")"),
        QStringList("http://c"));
}

TEST(SourceTexts, ALaterArgumentCanBeAskedFor)
{
    EXPECT_EQ(Shown(R"(TranslateMsg(f(1, 2), "second", "third"))", 1), QStringList("second"));
    EXPECT_EQ(Shown(R"(TranslateMsg("only"))", 1), QStringList());
}

TEST(SourceTexts, AnotherFunctionOfASimilarNameIsNotMeant)
{
    EXPECT_EQ(Shown(R"(MyTranslateMsg("a"); TranslateMsgs("b"); TranslateMsg(text);)"), QStringList());
}

TEST(SourceTexts, AFormsTextsAreFoundUnlessMarked)
{
    EXPECT_EQ(
        TextsInForm("<ui><string>&amp;Apply</string><string notr=\"true\">cmdApply</string><string/></ui>"),
        QStringList("&Apply"));
}

TEST(SourceTexts, TheSourceTreeHoldsThem)
{
    EXPECT_TRUE(ComponentTexts().contains("Style Editor with that ID already exists."));
    EXPECT_TRUE(ComponentTexts().contains("Overflow"));
}

} // namespace Orvane::Testing
