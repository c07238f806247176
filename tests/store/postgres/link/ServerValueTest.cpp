// SPDX-License-Identifier: MIT
#include "store/postgres/link/ServerValue.h"

#include "store/shared/StoreErrors.h"
#include "support/Errors.h"

#include <gtest/gtest.h>
#include <limits>

namespace Orvane::Testing {

namespace {

ServerValue Sent(const Value& value)
{
    return ToServerValue(value, StoreErrors(QStringLiteral("map")));
}

} // namespace

TEST(ServerValue, EveryKindIsAText)
{
    EXPECT_EQ(Sent(Value::Null()), std::nullopt);
    EXPECT_EQ(Sent(true), "1");
    EXPECT_EQ(Sent(false), "0");
    EXPECT_EQ(Sent(qint16(-3)), "-3");
    EXPECT_EQ(Sent(std::numeric_limits<qint32>::min()), "-2147483648");
    EXPECT_EQ(Sent(QStringLiteral("Wälder")), "Wälder");
}

TEST(ServerValue, AnEmptyTextIsNotNull)
{
    EXPECT_EQ(Sent(QString()), "");
}

TEST(ServerValue, AWholeNumberHasNoPointWhateverItsKind)
{
    EXPECT_EQ(Sent(12.0), "12");
    EXPECT_EQ(Sent(-0.0), "0");
    EXPECT_EQ(Sent(4294967295.0), "4294967295");
    EXPECT_EQ(Sent(2.5F), "2.5");
}

TEST(ServerValue, AnyOtherNumberIsExact)
{
    for (const double number : {0.1, 1e300, -5e-324, 1.0 / 3, 123456789012345678.0})
        EXPECT_EQ(Sent(number)->toDouble(), number);
}

TEST(ServerValue, WhatIsNoNumberIsNull)
{
    EXPECT_EQ(Sent(std::numeric_limits<double>::quiet_NaN()), std::nullopt);
}

TEST(ServerValue, EmptyAndAZeroCharacterCannotBeStored)
{
    EXPECT_EQ(ErrorOf([] { Sent(Value()); }), typeMismatchError);
    EXPECT_EQ(ErrorOf([] { Sent(QString(QChar(0))); }), typeMismatchError);
}

} // namespace Orvane::Testing
