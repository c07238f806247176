// SPDX-License-Identifier: MIT
#include "component/common/SpinHelpers.h"

#include <QLineEdit>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class Spin
{
public:
    float MinValue() const { return minimum; }
    float MaxValue() const { return maximum; }
    float Value() const { return value; }
    void SetValue(float newValue)
    {
        value = newValue;
        ++stored;
    }

    float minimum = 0;
    float maximum = 100;
    float value = 5;
    int stored = 0;
};

class SynchronisedSpin : public testing::Test
{
protected:
    void Synchronise(const QString& text)
    {
        m_text.setText(text);
        SynchroniseSpin(m_spin, m_text);
    }

    Spin m_spin;
    QLineEdit m_text;
};

} // namespace

TEST_F(SynchronisedSpin, TakesTheNumberOfTheText)
{
    Synchronise("7.5");
    EXPECT_EQ(m_spin.value, 7.5f);
    EXPECT_EQ(m_text.text(), QString("7.5"));
}

TEST_F(SynchronisedSpin, IsClampedAndTheTextIsNot)
{
    Synchronise("250");
    EXPECT_EQ(m_spin.value, 100.0f);
    EXPECT_EQ(m_text.text(), QString("250"));
    Synchronise("-3");
    EXPECT_EQ(m_spin.value, 0.0f);
    EXPECT_EQ(m_text.text(), QString("-3"));
}

TEST_F(SynchronisedSpin, IsNotStoredAgainWhenItHasTheValue)
{
    Synchronise("5");
    Synchronise(" 5.0 ");
    EXPECT_EQ(m_spin.stored, 0);
}

TEST_F(SynchronisedSpin, ComparesAfterClamping)
{
    m_spin.value = 100;
    Synchronise("250");
    EXPECT_EQ(m_spin.stored, 0);
}

TEST_F(SynchronisedSpin, WritesItsValueOverATextThatIsNoNumber)
{
    for (const char* text : {"", "abc", "1,000", "3 mm", "nan", "inf"}) {
        Synchronise(text);
        EXPECT_EQ(m_text.text(), QString("5")) << text;
    }
    EXPECT_EQ(m_spin.stored, 0);
}

TEST_F(SynchronisedSpin, WritesAFractionInPlainDecimalForm)
{
    m_spin.value = 0.1f;
    Synchronise("wide");
    EXPECT_EQ(m_text.text(), QString("0.1"));
}

TEST_F(SynchronisedSpin, WithItsLimitsCrossedTakesTheMaximum)
{
    m_spin.minimum = 10;
    m_spin.maximum = 2;
    Synchronise("5");
    EXPECT_EQ(m_spin.value, 2.0f);
}

} // namespace Orvane
