// SPDX-License-Identifier: MIT
#include "store/copying/FittedValues.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>
#include <limits>

namespace Orvane::Testing {

namespace {

StoreTable Pages()
{
    const auto id = QStringLiteral("ID");
    return {
        QStringLiteral("Notes"), {{id, StoreType::Whole}, {QStringLiteral("Page"), StoreType::Whole}}, {id}};
}

void ExpectFitted(const Value& value, StoreType type, const Value& expected)
{
    const std::optional<Value> fitted = FittedValue(value, type);
    ASSERT_TRUE(fitted.has_value());
    EXPECT_TRUE(fitted->IsIdenticalTo(expected)) << qPrintable(ToTextOrNone(*fitted));
}

} // namespace

TEST(FittedValues, ValuesOfTheirColumnsTypeStay)
{
    ExpectFitted(-3, StoreType::Whole, -3);
    ExpectFitted(2.5, StoreType::Real, 2.5);
    ExpectFitted(true, StoreType::Flag, true);
    ExpectFitted(QStringLiteral("NULL"), StoreType::Text, QStringLiteral("NULL"));
    for (const StoreType type : {StoreType::Whole, StoreType::Real, StoreType::Flag, StoreType::Text})
        ExpectFitted(Value::Null(), type, Value::Null());
}

TEST(FittedValues, NumbersTakeTheTypeOfTheirColumn)
{
    ExpectFitted(2, StoreType::Real, 2.0);
    ExpectFitted(2.0, StoreType::Whole, 2);
    ExpectFitted(true, StoreType::Whole, 1);
    ExpectFitted(-1, StoreType::Flag, true);
    ExpectFitted(0.0, StoreType::Flag, false);
    ExpectFitted(2.5, StoreType::Text, QStringLiteral("2.5"));
}

TEST(FittedValues, WhatATypeCannotHoldDoesNotFit)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double number : {2.5, 2147483648.0, infinity, std::numeric_limits<double>::quiet_NaN()})
        EXPECT_FALSE(FittedValue(number, StoreType::Whole).has_value()) << number;
    for (const StoreType type : {StoreType::Whole, StoreType::Real, StoreType::Flag})
        EXPECT_FALSE(FittedValue(QStringLiteral("12"), type).has_value());
    EXPECT_FALSE(FittedValue(QString(QChar(u'\0')), StoreType::Text).has_value());
    EXPECT_FALSE(FittedValue(Value(), StoreType::Text).has_value());
}

TEST(FittedValues, UnfitValuesAreNamedWithTheirRows)
{
    UnfitValues unfit;
    EXPECT_TRUE(unfit.IsEmpty());
    unfit.Add(Pages(), {7, QStringLiteral("red")}, 1);
    EXPECT_EQ(unfit.Text(), QStringLiteral("Notes 7, Page: \"red\""));
}

TEST(FittedValues, OfManyUnfitValuesOnlyTheFirstAreListed)
{
    UnfitValues unfit;
    for (int id = 1; id <= 100; ++id)
        unfit.Add(Pages(), {id, QString(1000, u'x')}, 1);
    EXPECT_TRUE(unfit.Text().contains(QStringLiteral("Notes 8,")));
    EXPECT_FALSE(unfit.Text().contains(QStringLiteral("Notes 9,")));
    EXPECT_TRUE(unfit.Text().endsWith(QStringLiteral("(+92)")));
    EXPECT_LT(unfit.Text().size(), 600);
}

} // namespace Orvane::Testing
