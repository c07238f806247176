// SPDX-License-Identifier: MIT
#include "component/controls/DrawPrioritiesTranslator.h"
#include "component/controls/VisibleScalesTranslator.h"
#include "component/controls/frmDropSliderFixture.h"
#include "hosts/MemoryShellServices.h"

#include <QAccessible>
#include <QLocale>

namespace Orvane::Testing {

namespace {

/// A user who types into the slider of the draw priority, or of a scale: index i is 1:1000 * i.
class NumberTypingTest : public frmDropSliderTest
{
protected:
    NumberTypingTest()
    {
        Component::Get().SetHost(nullptr, &m_services);
        m_translator = &m_priorities;
        m_minimum = 1;
    }
    ~NumberTypingTest() override
    {
        Component::Get().SetHost(nullptr, nullptr);
        QLocale::setDefault(QLocale::c());
    }

    void UseScales()
    {
        m_translator = &m_scales;
        m_minimum = 0;
    }
    void Type(const char* text) { QTest::keyClicks(m_form.focusWidget(), QString::fromUtf8(text)); }
    void Pause()
    {
        auto* pause = m_form.findChild<QTimer*>("tmrTyping");
        EXPECT_TRUE(pause->isActive());
        pause->start(0);
        EXPECT_TRUE(QTest::qWaitFor([&] { return !pause->isActive(); }));
    }

    CallLog m_log;
    MemoryShellServices m_services{m_log};
    DrawPrioritiesTranslator m_priorities;
    VisibleScalesTranslator m_scales;
};

TEST_F(NumberTypingTest, DigitsAndEnterTakeTheNumber)
{
    EXPECT_TRUE(Popup([this] {
        Type("1");
        EXPECT_EQ(Label()->text(), "1") << "what was typed, not \"1 (highest)\"";
        Type("42");
        EXPECT_EQ(Label()->text(), "142");
        EXPECT_EQ(Slider()->value(), 7) << "not before the number ends";
        PressKey(Qt::Key_Return);
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(142));
}

TEST_F(NumberTypingTest, EscapeLeavesTheValue)
{
    EXPECT_FALSE(Popup([this] {
        Type("42");
        PressKey(Qt::Key_Escape);
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(7));
}

TEST_F(NumberTypingTest, APauseEndsTheNumberAndTheNextDigitBeginsAnother)
{
    EXPECT_TRUE(Popup([this] {
        Type("25");
        Pause();
        EXPECT_EQ(Slider()->value(), 25);
        EXPECT_EQ(Label()->text(), "25");
        Type("1");
        Pause();
        EXPECT_EQ(Label()->text(), "1 (highest)");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(1));
}

TEST_F(NumberTypingTest, AnotherKeyEndsTheNumberAndDoesWhatItDoes)
{
    Popup([this] {
        Type("25");
        PressKey(Qt::Key_Right);
        EXPECT_EQ(Label()->text(), "26");
        Type("3");
        EXPECT_EQ(Label()->text(), "3");
    });
}

TEST_F(NumberTypingTest, BackspaceTakesTheLastDigitBack)
{
    Popup([this] {
        Type("25");
        PressKey(Qt::Key_Backspace);
        EXPECT_EQ(Label()->text(), "2");
        PressKey(Qt::Key_Backspace);
        EXPECT_EQ(Label()->text(), "7") << "the value again";
    });
}

TEST_F(NumberTypingTest, DigitsAreTakenWhereverTheFocusIsAndUncheckVarious)
{
    m_value = Value::Null();
    EXPECT_TRUE(Popup([this] {
        Various()->setFocus();
        Type("9");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(9));
}

TEST_F(NumberTypingTest, TheNumberWhereTheSliderStandsReplacesVarious)
{
    m_value = Value::Null();
    m_default = 9;
    EXPECT_TRUE(Popup([this] {
        Type("9");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(9));
}

TEST_F(NumberTypingTest, TheButtonForOkTakesTheNumber)
{
    EXPECT_TRUE(Popup([this] {
        Type("42");
        Ok();
    }));
    EXPECT_THAT(m_value, IsValue(42));
}

TEST_F(NumberTypingTest, AnImpossibleNumberIsRefusedAndThePossibleOnesAreNamed)
{
    EXPECT_TRUE(Popup([this] {
        Type("256");
        PressKey(Qt::Key_Return);
        EXPECT_TRUE(m_form.isVisible());
        EXPECT_EQ(Label()->text(), "Possible: 1 to 255");
        EXPECT_EQ(Slider()->value(), 7);
        EXPECT_EQ(
            QAccessible::queryAccessibleInterface(Slider())->text(QAccessible::Description),
            "Possible: 1 to 255");
        Type("255");
        PressKey(Qt::Key_Return);
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(255));
}

TEST_F(NumberTypingTest, EnterAfterARefusalShowsTheValueBeforeItConfirms)
{
    EXPECT_TRUE(Popup([this] {
        Type("0");
        Pause();
        EXPECT_EQ(Label()->text(), "Possible: 1 to 255");
        PressKey(Qt::Key_Return);
        EXPECT_TRUE(m_form.isVisible());
        EXPECT_EQ(Label()->text(), "7");
        PressKey(Qt::Key_Return);
        EXPECT_FALSE(m_form.isVisible());
    }));
    EXPECT_THAT(m_value, IsValue(7));
}

TEST_F(NumberTypingTest, TheSliderEndsARefusal)
{
    EXPECT_TRUE(Popup([this] {
        Type("999");
        PressKey(Qt::Key_Right);
        EXPECT_EQ(Label()->text(), "8");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(8));
}

TEST_F(NumberTypingTest, AnyNumberOfDigitsIsHarmless)
{
    Popup([this] {
        Type("99999999999999999999999999");
        PressKey(Qt::Key_Return);
        EXPECT_EQ(Label()->text(), "Possible: 1 to 255");
    });
}

TEST_F(NumberTypingTest, AScaleIsTypedAsItsDenominator)
{
    UseScales();
    EXPECT_TRUE(Popup([this] {
        Type("50000");
        EXPECT_EQ(Label()->text(), "1:50000");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(50));
}

TEST_F(NumberTypingTest, AScaleMayBeTypedAsItIsShown)
{
    UseScales();
    EXPECT_TRUE(Popup([this] {
        Type("1:20000");
        EXPECT_EQ(Label()->text(), "1:20000");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(20));
}

TEST_F(NumberTypingTest, TheNearestScaleIsShownWhenTheNumberEnds)
{
    UseScales();
    Popup([this] {
        Type("7400");
        Pause();
        EXPECT_EQ(Label()->text(), "1:7000");
    });
}

TEST_F(NumberTypingTest, AScaleOutsideTheTableIsRefused)
{
    UseScales();
    Popup([this] {
        Type("300000");
        PressKey(Qt::Key_Return);
        EXPECT_EQ(Label()->text(), "Possible: 1:1000 to 1:255000");
    });
}

TEST_F(NumberTypingTest, ADecimalPointOfTheLocaleIsShownAsInTheValues)
{
    UseScales();
    QLocale::setDefault(QLocale(QLocale::German));
    Popup([this] {
        Type("2500,5");
        EXPECT_EQ(Label()->text(), "1:2500.5");
    });
}

TEST_F(NumberTypingTest, APriorityHasNoDecimalPoint)
{
    EXPECT_TRUE(Popup([this] {
        Type("2.5");
        EXPECT_EQ(Label()->text(), "5");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(5));
}

TEST_F(NumberTypingTest, NothingIsTypedForAnotherTranslator)
{
    m_translator = &m_words;
    Popup([this] {
        Type("9");
        EXPECT_EQ(Label()->text(), "7");
    });
}

TEST_F(NumberTypingTest, WhatWasTypedIsForgottenWithThePopup)
{
    Popup([this] { Type("42"); });
    EXPECT_FALSE(m_form.findChild<QTimer*>("tmrTyping")->isActive());
    EXPECT_TRUE(Popup([this] {
        EXPECT_EQ(Label()->text(), "7");
        PressKey(Qt::Key_Return);
    }));
    EXPECT_THAT(m_value, IsValue(7));
}

} // namespace

} // namespace Orvane::Testing
