// SPDX-License-Identifier: MIT
#include "store/postgres/link/ArrayText.h"

#include <gtest/gtest.h>
#include <limits>

namespace Orvane::Testing {

TEST(ArrayText, IsEmptyAtFirst)
{
    EXPECT_EQ(ArrayText().Text(), QByteArray("{}"));
}

TEST(ArrayText, HasNumbersAsTheyAre)
{
    ArrayText array;
    array.Append(qint64(-2147483648));
    array.Append(0.1);
    array.Append(1e300);
    array.Append(std::numeric_limits<double>::quiet_NaN());
    array.Append(-std::numeric_limits<double>::infinity());
    EXPECT_EQ(array.Text(), QByteArray("{-2147483648,0.1,1e+300,NaN,-Infinity}"));
}

TEST(ArrayText, TellsMissingValuesFromTexts)
{
    ArrayText array;
    array.Append(std::monostate());
    array.Append(std::string_view("NULL"));
    array.Append(std::string_view());
    EXPECT_EQ(array.Text(), QByteArray("{NULL,\"NULL\",\"\"}"));
}

TEST(ArrayText, NoTextEndsItsQuotes)
{
    ArrayText array;
    array.Append(std::string_view("a\",\"b\\"));
    EXPECT_EQ(array.Text(), QByteArray("{\"a\\\",\\\"b\\\\\"}"));
}

} // namespace Orvane::Testing
