// SPDX-License-Identifier: MIT
#include "store/shared/ConstantDefault.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

QString Constant(const char* expression)
{
    return ConstantDefault(QString::fromUtf8(expression));
}

} // namespace

TEST(ConstantDefault, NumbersTextsAndFlagsStay)
{
    for (const char* text : {"5", "-1", "2.5", "1e308", "'none'", "''", "'it''s'", "TRUE", "FALSE"})
        EXPECT_EQ(Constant(text), QString::fromUtf8(text));
}

TEST(ConstantDefault, WhatAServerAddsIsLeftOut)
{
    EXPECT_EQ(Constant("'none'::text"), QStringLiteral("'none'"));
    EXPECT_EQ(Constant("'5'::text"), QStringLiteral("'5'"));
    EXPECT_EQ(Constant("'-1'::integer"), QStringLiteral("-1"));
    EXPECT_EQ(Constant("(-1)"), QStringLiteral("-1"));
    EXPECT_EQ(Constant("'-2.5'::numeric"), QStringLiteral("-2.5"));
    EXPECT_EQ(Constant("false"), QStringLiteral("FALSE"));
}

TEST(ConstantDefault, NothingThatIsComputedGetsIntoAStatement)
{
    for (const char* text :
         {"", "NULL", "NULL::text", "CURRENT_TIMESTAMP", "now()", "(abs(1))", "nextval('s'::regclass)",
          "x'00'", "\"text\"", "'a', b text DEFAULT 'c'", "5); DROP TABLE Layers; --", "'a' || 'b'",
          "E'a\\\\'", "'a\\'", "5 + 1", "5, Sly integer"})
        EXPECT_EQ(Constant(text), QString()) << text;
}

} // namespace Orvane::Testing
