// SPDX-License-Identifier: MIT
#include "hostkit/tracing/TraceText.h"

#include "hosts/ValueMatchers.h"

namespace Orvane {
namespace {

TEST(TraceText, QuotesTextsOnOneLine)
{
    EXPECT_EQ(TraceText::Of(QStringLiteral("a \"b\" \\ c")), QStringLiteral("\"a \\\"b\\\" \\\\ c\""));
    EXPECT_EQ(TraceText::Of(QStringLiteral("a\nb\r\tc")), QStringLiteral("\"a\\nb\\r\\tc\""));
    EXPECT_EQ(TraceText::Of(QString(QChar(0x1))), QStringLiteral("\"\\u0001\""));
    EXPECT_EQ(TraceText::Of(QString(QChar::LineSeparator)), QStringLiteral("\"\\u2028\""));
    EXPECT_EQ(TraceText::Of(QString::fromUtf8("🗺")), QString::fromUtf8("\"🗺\""));
}

TEST(TraceText, WritesNumbersInPlainDecimal)
{
    EXPECT_EQ(TraceText::Of(-32768), QStringLiteral("-32768"));
    EXPECT_EQ(TraceText::Of(2500.5), QStringLiteral("2500.5"));
    EXPECT_EQ(TraceText::Of(2e9), QStringLiteral("2000000000"));
}

TEST(TraceText, WritesEachKindOfValue)
{
    EXPECT_EQ(TraceText::Of(Value()), QStringLiteral("Empty"));
    EXPECT_EQ(TraceText::Of(Value::Null()), QStringLiteral("Null"));
    EXPECT_EQ(TraceText::Of(Value(true)), QStringLiteral("True"));
    EXPECT_EQ(TraceText::Of(Value(qint16(5))), QStringLiteral("5"));
    EXPECT_EQ(TraceText::Of(Value(QStringLiteral("5"))), QStringLiteral("\"5\""));
}

TEST(TraceText, WritesListsAndAnswers)
{
    EXPECT_EQ(
        TraceText::Of(QStringList{QStringLiteral("Day"), QStringLiteral("Night")}),
        QStringLiteral("[\"Day\", \"Night\"]"));
    EXPECT_EQ(TraceText::Of(QStringList()), QStringLiteral("[]"));
    EXPECT_EQ(TraceText::Of(PromptAnswer{}), QStringLiteral("cancelled"));
    EXPECT_EQ(TraceText::Of(PromptAnswer{true, QStringLiteral("x")}), QStringLiteral("\"x\""));
    EXPECT_EQ(
        TraceText::Of(std::vector<RendererStyle>{{2, QStringLiteral("Shaded")}}),
        QStringLiteral("[2 \"Shaded\"]"));
    EXPECT_EQ(TraceText::Of(MonochromeBitmap{8, 8, {}}), QStringLiteral("bitmap 8x8"));
}

} // namespace
} // namespace Orvane
