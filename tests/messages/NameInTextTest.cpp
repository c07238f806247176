// SPDX-License-Identifier: MIT
#include "messages/NameInText.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

TEST(NameInText, AnOrdinaryNameStaysAsItIs)
{
    EXPECT_EQ(NameInText(QStringLiteral(" Roads  1 "), 40), QStringLiteral(" Roads  1 "));
    EXPECT_EQ(NameInText(QStringLiteral("Roads & \"Ways\""), 40), QStringLiteral("Roads & \"Ways\""));
}

TEST(NameInText, LinesBecomeOne)
{
    EXPECT_EQ(
        NameInText(QStringLiteral("Roads\nand\tall\u2028ways\r"), 40), QStringLiteral("Roads and all ways "));
}

TEST(NameInText, ALongNameEndsInAnEllipsis)
{
    EXPECT_EQ(NameInText(QStringLiteral("abcdef"), 6), QStringLiteral("abcdef"));
    EXPECT_EQ(NameInText(QStringLiteral("abcdefg"), 6), QString::fromUtf8("abcde…"));
    EXPECT_EQ(NameInText(QString(10000, u'x'), 40).size(), 40);
}

TEST(NameInText, ASignOfTwoHalvesIsNotCut)
{
    EXPECT_EQ(NameInText(QString::fromUtf8("abcd\U0001F6E3fgh"), 6), QString::fromUtf8("abcd…"));
}

TEST(NameInText, InAQuestionHasAtMostEightyCharacters)
{
    EXPECT_EQ(NameInQuestion(QString(80, u'x')), QString(80, u'x'));
    EXPECT_EQ(NameInQuestion(QString(81, u'x')), QString(79, u'x') + QChar(0x2026));
}

TEST(NameInText, InAStepHasAtMostFortyCharacters)
{
    EXPECT_EQ(NameInStep(QString(40, u'x')), QString(40, u'x'));
    EXPECT_EQ(NameInStep(QString(41, u'x')), QString(39, u'x') + QChar(0x2026));
}

TEST(NameInText, InAMenuItMarksNoLetter)
{
    EXPECT_EQ(NameInMenu(QStringLiteral("Roads & Rivers")), QStringLiteral("Roads && Rivers"));
}

} // namespace
} // namespace Orvane::Testing
