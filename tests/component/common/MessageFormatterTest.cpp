// SPDX-License-Identifier: MIT
#include "component/common/MessageFormatter.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

QString Format(const QString& text, const MessageArguments& arguments = {})
{
    return MessageFormatter().FormatMessage(text, arguments);
}

const Value Roads = QString("Roads");

} // namespace

TEST(MessageFormatter, APlaceholderBecomesItsArgument)
{
    EXPECT_EQ(Format("Delete '^1'?", {Roads}), QString("Delete 'Roads'?"));
}

TEST(MessageFormatter, PlaceholdersStandInAnyOrderAndRepeat)
{
    EXPECT_EQ(Format("^2 ^1 ^2", {Roads, QString("layer")}), QString("layer Roads layer"));
}

TEST(MessageFormatter, NineArgumentsAreFilledIn)
{
    MessageArguments arguments;
    for (qint32 number = 11; number <= 20; ++number)
        arguments.emplace_back(number);
    EXPECT_EQ(Format("^1 ^2 ^3 ^4 ^5 ^6 ^7 ^8 ^9", arguments), QString("11 12 13 14 15 16 17 18 19"));
}

TEST(MessageFormatter, ATenthPlaceholderIsTheFirstAndAZero)
{
    EXPECT_EQ(Format("^10", {Roads}), QString("Roads0"));
}

TEST(MessageFormatter, AnArgumentsOwnPlaceholderIsNeverExpanded)
{
    EXPECT_EQ(Format("^1 and ^2", {QString("^2"), QString("^1")}), QString("^2 and ^1"));
    EXPECT_EQ(Format("^11", {QString("^")}), QString("^1"));
}

TEST(MessageFormatter, APlaceholderWithoutAnArgumentStays)
{
    EXPECT_EQ(Format("^1 and ^2", {Roads}), QString("Roads and ^2"));
    EXPECT_EQ(Format("^1 and ^2"), QString("^1 and ^2"));
}

TEST(MessageFormatter, AnEmptyArgumentCountsAsNotSupplied)
{
    EXPECT_EQ(Format("^1 and ^2", {Value(), Roads}), QString("^1 and Roads"));
}

TEST(MessageFormatter, ANullArgumentShowsNothing)
{
    EXPECT_EQ(Format("'^1'", {Value::Null()}), QString("''"));
}

TEST(MessageFormatter, ACaretBeforeAnythingElseStays)
{
    EXPECT_EQ(Format("^0 ^a ^^1 2^ ^", {Roads}), QString("^0 ^a ^Roads 2^ ^"));
}

TEST(MessageFormatter, OnlyTheDigitsOfAsciiCount)
{
    const QString arabicOne = QString("^") + QChar(0x0661);
    EXPECT_EQ(Format(arabicOne, {Roads}), arabicOne);
}

TEST(MessageFormatter, NumbersTakeTheirShortestPlainForm)
{
    EXPECT_EQ(
        Format("^1 ^2 ^3 ^4", {qint16(-7), qint32(1500000), 0.1f, 1e21}),
        QString("-7 1500000 0.1 1000000000000000000000"));
    EXPECT_EQ(Format("^1", {true}), QString("True"));
}

} // namespace Orvane
