// SPDX-License-Identifier: MIT
#include "component/model/ColumnError.h"

#include <gtest/gtest.h>

using namespace Orvane;

namespace {

const RunTimeError overflow(ErrorNumber::Overflow, QStringLiteral("Overflow"), QStringLiteral("Layers"));
const RunTimeError mismatch(ErrorNumber::TypeMismatch, QStringLiteral("Type mismatch"));

QString DescriptionOf(const RunTimeError& cause, const Value& value)
{
    return ColumnError(cause, "Roads", "LineThickness", value).Description();
}

} // namespace

TEST(ColumnError, NamesTheRowTheColumnAndTheValue)
{
    EXPECT_EQ(DescriptionOf(overflow, 1639), "Roads: LineThickness 1639 is too large.");
    EXPECT_EQ(DescriptionOf(overflow, -1640), "Roads: LineThickness -1640 is too small.");
    EXPECT_EQ(
        DescriptionOf(mismatch, QStringLiteral("wide")), "Roads: LineThickness 'wide' is not a number.");
    EXPECT_EQ(DescriptionOf(mismatch, Value::Null()), "Roads: LineThickness has no value.");
    EXPECT_EQ(DescriptionOf(mismatch, Value()), "Roads: LineThickness has no value.");
}

TEST(ColumnError, ARowWithoutANameIsLeftOut)
{
    EXPECT_EQ(ColumnError(overflow, "", "Color", 1e12).Description(), "Color 1000000000000 is too large.");
}

TEST(ColumnError, KeepsTheNumberAndTheSourceOfItsCause)
{
    const ColumnError error(overflow, "Roads", "Color", 1e12);
    EXPECT_EQ(error.Number(), int(ErrorNumber::Overflow));
    EXPECT_EQ(error.Source(), "Layers");
}
