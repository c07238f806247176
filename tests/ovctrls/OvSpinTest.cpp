// SPDX-License-Identifier: MIT
#include "ovctrls/OvSpin.h"

#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace Orvane {

namespace {

using testing::ElementsAre;

class OvSpinTest : public testing::Test
{
protected:
    OvSpinTest()
    {
        m_spin.resize(16, 24);
        QObject::connect(&m_spin, &OvSpin::Change, [this](float value) { m_told.push_back(value); });
    }

    void Press(const char* button)
    {
        QTest::mouseClick(m_spin.findChild<QToolButton*>(button), Qt::LeftButton);
    }
    void Wheel(QWidget& widget, int angle)
    {
        QWheelEvent event(
            QPointF(2, 2), QPointF(2, 2), {}, QPoint(0, angle), Qt::NoButton, Qt::NoModifier,
            Qt::NoScrollPhase, false);
        QApplication::sendEvent(&widget, &event);
    }

    OvSpin m_spin;
    std::vector<float> m_told;
};

TEST_F(OvSpinTest, ButtonsStepTheValue)
{
    Press("cmdUp");
    Press("cmdUp");
    Press("cmdDown");
    EXPECT_THAT(m_told, ElementsAre(1.0f, 2.0f, 1.0f));
}

TEST_F(OvSpinTest, StepsStayInTheRange)
{
    m_spin.SetRange(0, 1.5f);
    Press("cmdUp");
    Press("cmdUp");
    Press("cmdUp");
    EXPECT_THAT(m_told, ElementsAre(1.0f, 1.5f));
    EXPECT_FALSE(m_spin.findChild<QToolButton*>("cmdUp")->isEnabled());
    EXPECT_TRUE(m_spin.findChild<QToolButton*>("cmdDown")->isEnabled());
}

TEST_F(OvSpinTest, AValueIsClampedAndToldOnce)
{
    m_spin.SetValue(250);
    m_spin.SetValue(100);
    m_spin.SetValue(-3);
    EXPECT_THAT(m_told, ElementsAre(100.0f, 0.0f));
}

TEST_F(OvSpinTest, WhatIsNoNumberIsIgnored)
{
    m_spin.SetValue(5);
    m_spin.SetValue(std::numeric_limits<float>::quiet_NaN());
    EXPECT_EQ(m_spin.Value(), 5);
}

TEST_F(OvSpinTest, ANarrowerRangeTakesTheValueAlong)
{
    m_spin.SetValue(50);
    m_spin.setMaxValue(20);
    m_spin.setMinValue(10);
    EXPECT_THAT(m_told, ElementsAre(50.0f, 20.0f));
    EXPECT_EQ(m_spin.MinValue(), 10);
}

TEST_F(OvSpinTest, WhereTheRangeIsUpsideDownTheMaximumHolds)
{
    m_spin.SetRange(10, 5);
    m_spin.SetValue(7);
    EXPECT_EQ(m_spin.Value(), 5);
}

TEST_F(OvSpinTest, StepsMayBeFractions)
{
    m_spin.setStep(0.25f);
    m_spin.StepUp();
    m_spin.StepUp();
    m_spin.StepDown();
    EXPECT_EQ(m_spin.Value(), 0.25f);
}

TEST_F(OvSpinTest, ArrowKeysAndWheelOfTheBoundTextStep)
{
    QLineEdit text;
    m_spin.SetBoundText(&text);
    QTest::keyClick(&text, Qt::Key_Up);
    QTest::keyClick(&text, Qt::Key_Up);
    QTest::keyClick(&text, Qt::Key_Down);
    Wheel(text, 120);
    EXPECT_THAT(m_told, ElementsAre(1.0f, 2.0f, 1.0f, 2.0f));
    EXPECT_EQ(text.text(), "");
}

TEST_F(OvSpinTest, OtherKeysStayTheTexts)
{
    QLineEdit text;
    m_spin.SetBoundText(&text);
    QTest::keyClicks(&text, "12");
    EXPECT_EQ(text.text(), "12");
    EXPECT_THAT(m_told, ElementsAre());
}

TEST_F(OvSpinTest, ATextThatIsNoLongerBoundStepsNothing)
{
    QLineEdit text;
    m_spin.SetBoundText(&text);
    m_spin.SetBoundText(nullptr);
    QTest::keyClick(&text, Qt::Key_Up);
    EXPECT_THAT(m_told, ElementsAre());
}

TEST_F(OvSpinTest, ABoundTextMayBeDestroyedFirst)
{
    {
        QLineEdit text;
        m_spin.SetBoundText(&text);
    }
    EXPECT_EQ(m_spin.BoundText(), nullptr);
    m_spin.SetBoundText(nullptr);
}

TEST_F(OvSpinTest, ADisabledSpinDoesNotStep)
{
    QLineEdit text;
    m_spin.SetBoundText(&text);
    m_spin.setEnabled(false);
    QTest::keyClick(&text, Qt::Key_Up);
    Press("cmdUp");
    EXPECT_THAT(m_told, ElementsAre());
}

TEST_F(OvSpinTest, TheWheelStepsOverTheButtonsToo)
{
    Wheel(m_spin, 120);
    Wheel(m_spin, -240);
    EXPECT_THAT(m_told, ElementsAre(1.0f, 0.0f));
}

TEST_F(OvSpinTest, TheButtonsAreNamedAndNoTabStops)
{
    for (const auto* button : m_spin.findChildren<QToolButton*>()) {
        EXPECT_FALSE(button->accessibleName().isEmpty());
        EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
    }
}

TEST_F(OvSpinTest, PropertiesAreSetByName)
{
    m_spin.setProperty("MaxValue", 7.5f);
    m_spin.setProperty("Value", 9.0f);
    EXPECT_EQ(m_spin.property("Value").toFloat(), 7.5f);
}

} // namespace

} // namespace Orvane
