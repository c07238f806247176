// SPDX-License-Identifier: MIT
#include "hostkit/tracing/CallTrace.h"

#include "hostkit/tracing/TracingTest.h"

#include <QFile>
#include <QTemporaryDir>

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;

using Tracing = TracingTest;

TEST_F(Tracing, ACommandIsWrittenBeforeWhatItLeadsTo)
{
    m_trace.Command(
        "editor.Visible", [&] { m_trace.Write(QStringLiteral("inner")); }, true);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("editor.Visible(true)"), QStringLiteral("inner")));
}

TEST_F(Tracing, AQuestionIsWrittenWithItsAnswer)
{
    EXPECT_EQ(
        m_trace.Question(
            "client.Answer", [] { return qint32(42); }, QStringLiteral("x")),
        42);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.Answer(\"x\") -> 42")));
}

TEST_F(Tracing, AnErrorIsALineOfItsOwnAndPassesOn)
{
    const auto fail = [] { throw RunTimeError(3002, QStringLiteral("It is \"locked\".")); };
    EXPECT_EQ(ErrorOf([&] { m_trace.Command("client.Fail", fail); }), 3002);
    EXPECT_THAT(
        Lines(),
        ElementsAre(
            QStringLiteral("client.Fail()"),
            QStringLiteral("client.Fail() -> error 3002 \"It is \\\"locked\\\".\"")));
}

TEST_F(Tracing, AFailedQuestionHasOnlyItsError)
{
    const auto fail = []() -> qint32 { throw RunTimeError(6, QStringLiteral("Overflow")); };
    EXPECT_EQ(ErrorOf([&] { m_trace.Question("client.Fail", fail); }), 6);
    EXPECT_THAT(Lines(), ElementsAre(QStringLiteral("client.Fail() -> error 6 \"Overflow\"")));
}

TEST_F(Tracing, LinesAreInTheFileAtOnce)
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("trace.txt")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    CallTrace trace(file);
    trace.Write(QString::fromUtf8("größer"));
    QFile reader(file.fileName());
    ASSERT_TRUE(reader.open(QIODevice::ReadOnly));
    EXPECT_EQ(QString::fromUtf8(reader.readAll()), QString::fromUtf8("größer\n"));
}

} // namespace
} // namespace Orvane::Testing
