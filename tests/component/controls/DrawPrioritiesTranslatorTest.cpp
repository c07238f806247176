// SPDX-License-Identifier: MIT
#include "component/controls/DrawPrioritiesTranslator.h"

#include "component/controls/ControlsTestSupport.h"
#include "support/PseudoLanguage.h"

namespace Orvane::Testing {

namespace {

class DrawPrioritiesTranslatorTest : public testing::Test
{
protected:
    DrawPrioritiesTranslator m_priorities;
};

TEST_F(DrawPrioritiesTranslatorTest, NullIsVarious)
{
    EXPECT_EQ(m_priorities.toString(Value::Null()), "various");
    EXPECT_THAT(m_priorities.FromString("various"), IsNullValue());
}

TEST_F(DrawPrioritiesTranslatorTest, BothEndsAreNamed)
{
    EXPECT_EQ(m_priorities.toString(1), "1 (highest)");
    EXPECT_EQ(m_priorities.toString(255), "255 (lowest)");
}

TEST_F(DrawPrioritiesTranslatorTest, AnEndOfAnyNumericKindIsNamed)
{
    EXPECT_EQ(m_priorities.toString(qint16(1)), "1 (highest)");
    EXPECT_EQ(m_priorities.toString(255.0), "255 (lowest)");
}

TEST_F(DrawPrioritiesTranslatorTest, WhatStandsBetweenIsPlainDigits)
{
    EXPECT_EQ(m_priorities.toString(17), "17");
}

TEST_F(DrawPrioritiesTranslatorTest, PlainDigitsAreNotTranslated)
{
    const UsingMessages odd(std::vector<MessagePair>{{"17", "seventeen"}});
    EXPECT_EQ(m_priorities.toString(17), "17");
}

TEST_F(DrawPrioritiesTranslatorTest, AValueOutsideTheRangeIsFormattedLikeAnyOther)
{
    EXPECT_EQ(m_priorities.toString(0), "0");
    EXPECT_EQ(m_priorities.toString(-3), "-3");
    EXPECT_EQ(m_priorities.toString(40000), "40000");
}

TEST_F(DrawPrioritiesTranslatorTest, EachTextGivesItsValueBackAsA16BitInteger)
{
    for (qint16 priority = 1; priority <= 255; ++priority)
        EXPECT_THAT(m_priorities.FromString(m_priorities.toString(priority)), IsValue(priority));
}

TEST_F(DrawPrioritiesTranslatorTest, ATextThatIsNoNumberIsATypeMismatch)
{
    for (const char* text : {"abc", "", "Various", "1 (HIGHEST)", "2 (highest)"})
        EXPECT_EQ(ErrorOf([&] { m_priorities.FromString(text); }), typeMismatch) << text;
}

TEST_F(DrawPrioritiesTranslatorTest, ANumberBeyond16BitsOverflows)
{
    EXPECT_THAT(m_priorities.FromString("32767"), IsValue(qint16(32767)));
    EXPECT_EQ(ErrorOf([&] { m_priorities.FromString("32768"); }), overflow);
}

TEST_F(DrawPrioritiesTranslatorTest, AHalfGoesToTheEvenNeighbour)
{
    EXPECT_THAT(m_priorities.FromString("2.5"), IsValue(qint16(2)));
    EXPECT_THAT(m_priorities.FromString("3.5"), IsValue(qint16(4)));
}

TEST_F(DrawPrioritiesTranslatorTest, ATranslatedInterfaceReadsItsOwnTexts)
{
    const UsingMessages german(
        {{"various", "verschieden"}, {"^1 (highest)", "oberste (^1)"}, {"^1 (lowest)", "unterste (^1)"}});

    EXPECT_EQ(m_priorities.toString(255), "unterste (255)");
    EXPECT_THAT(m_priorities.FromString("oberste (1)"), IsValue(qint16(1)));
    EXPECT_THAT(m_priorities.FromString("unterste (255)"), IsValue(qint16(255)));
    EXPECT_THAT(m_priorities.FromString("verschieden"), IsNullValue());
    EXPECT_EQ(ErrorOf([&] { m_priorities.FromString("1 (highest)"); }), typeMismatch);
}

TEST_F(DrawPrioritiesTranslatorTest, TextsReadBackInThePseudoLanguage)
{
    const PseudoLanguage pseudo;

    EXPECT_NE(m_priorities.toString(1), "1 (highest)");
    for (qint16 priority : {1, 17, 255})
        EXPECT_THAT(m_priorities.FromString(m_priorities.toString(priority)), IsValue(priority));
}

TEST_F(DrawPrioritiesTranslatorTest, TheInterfaceForwardsUnchanged)
{
    const IUITranslator& translator = m_priorities;

    EXPECT_EQ(translator.toString(1), "1 (highest)");
    EXPECT_THAT(translator.FromString("1 (highest)"), IsValue(qint16(1)));
}

} // namespace

} // namespace Orvane::Testing
