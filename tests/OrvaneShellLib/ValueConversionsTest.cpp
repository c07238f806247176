// SPDX-License-Identifier: MIT
#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane {
namespace {

template <typename Action> int NumberRaised(Action action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

TEST(ValueConversions, AHalfIsRoundedToTheEvenNeighbour)
{
    EXPECT_EQ(ToInt32(2.5), 2);
    EXPECT_EQ(ToInt32(3.5), 4);
    EXPECT_EQ(ToInt32(-2.5), -2);
    EXPECT_EQ(ToInt32(2500.5), 2500);
    EXPECT_EQ(ToInt16(QStringLiteral("0.5")), 0);
}

TEST(ValueConversions, ANumberOutsideTheTypeOverflows)
{
    EXPECT_EQ(NumberRaised([] { ToInt16(qint32(32768)); }), 6);
    EXPECT_EQ(NumberRaised([] { ToInt16(-32769.0); }), 6);
    EXPECT_EQ(NumberRaised([] { ToInt32(2147483648.0); }), 6);
    EXPECT_EQ(NumberRaised([] { ToSingle(1e300); }), 6);
    EXPECT_EQ(ToInt16(32767.4), 32767);
}

TEST(ValueConversions, WhatIsNoNumberMismatches)
{
    for (const QString& text :
         {QString(), QStringLiteral("abc"), QStringLiteral("1,000"), QStringLiteral("1 2"),
          QStringLiteral("nan"), QStringLiteral("inf"), QStringLiteral("0x10")})
        EXPECT_EQ(NumberRaised([&] { ToDouble(text); }), 13) << qPrintable(text);
    EXPECT_EQ(NumberRaised([] { ToInt32(Value::Null()); }), 13);
    EXPECT_EQ(NumberRaised([] { ToText(Value()); }), 13);
}

TEST(ValueConversions, ANumberBecomesItsShortestPlainDecimalText)
{
    EXPECT_EQ(ToText(0.1), QStringLiteral("0.1"));
    EXPECT_EQ(ToText(0.1f), QStringLiteral("0.1"));
    EXPECT_EQ(ToText(1e21), QStringLiteral("1000000000000000000000"));
    EXPECT_EQ(ToText(-0.0), QStringLiteral("0"));
    EXPECT_EQ(ToText(qint32(-16777216)), QStringLiteral("-16777216"));
}

TEST(ValueConversions, NumbersAreEqualAcrossTheirTypes)
{
    EXPECT_TRUE(ValuesEqual(qint16(5), 5.0));
    EXPECT_TRUE(ValuesEqual(qint32(5), 5.0f));
    EXPECT_FALSE(ValuesEqual(5, 5.5));
    EXPECT_FALSE(ValuesEqual(1, true));
    EXPECT_FALSE(ValuesEqual(5, QStringLiteral("5")));
}

TEST(ValueConversions, EmptyAndNullEqualNothing)
{
    EXPECT_FALSE(ValuesEqual(Value(), Value()));
    EXPECT_FALSE(ValuesEqual(Value::Null(), Value::Null()));
    EXPECT_FALSE(ValuesEqual(Value(), 0));
}

TEST(ValueConversions, AnyNumberButZeroIsTrue)
{
    EXPECT_TRUE(ToBoolean(qint32(-1)));
    EXPECT_TRUE(ToBoolean(0.5));
    EXPECT_FALSE(ToBoolean(qint16(0)));
    EXPECT_TRUE(ToBoolean(QStringLiteral("1")));
}

TEST(ValueConversions, WhatIsNoNumberIsNothingForWhomIsToGoOn)
{
    EXPECT_EQ(NumberIn(QStringLiteral("2.5")), 2.5);
    EXPECT_EQ(Int32In(2.5), 2);
    EXPECT_EQ(Int32In(2147483647.0), 2147483647);
    EXPECT_EQ(Int32In(2147483648.0), std::nullopt);
    for (const Value& value : {Value(), Value::Null(), Value(QStringLiteral("red"))}) {
        EXPECT_EQ(NumberIn(value), std::nullopt);
        EXPECT_EQ(Int32In(value), std::nullopt);
    }
}

} // namespace
} // namespace Orvane
