// SPDX-License-Identifier: MIT
#include "shell/command/CommandFixture.h"

namespace Orvane {

using namespace Testing;

namespace {

class CommandLineTest : public CommandFixture
{
};

} // namespace

TEST_F(CommandLineTest, CommandsHelpAndVersionNeedNoWindow)
{
    for (const char* word : {"import", "check", "--help", "-h", "--version", "--export=a.pdf"})
        EXPECT_TRUE(NeedsNoWindow({"orvane", word})) << word;
    EXPECT_TRUE(NeedsNoWindow({"orvane", "map.orvane", "--export", "a.pdf"}));
    EXPECT_FALSE(NeedsNoWindow({"orvane"}));
    EXPECT_FALSE(NeedsNoWindow({"orvane", "map.orvane", "--layer-control"}));
    EXPECT_FALSE(NeedsNoWindow({"orvane", "./import"}));
}

TEST_F(CommandLineTest, AMapAloneIsForTheWindow)
{
    EXPECT_EQ(Run({"map.orvane", "--trace", "trace.txt", "--layer-control"}), -1);
    EXPECT_EQ(m_request.map, "map.orvane");
    EXPECT_EQ(m_request.traceFile, "trace.txt");
    EXPECT_TRUE(m_request.layerControl);
}

TEST_F(CommandLineTest, NothingAtAllOpensTheLastMap)
{
    EXPECT_EQ(Run({}), -1);
    EXPECT_TRUE(m_request.map.isEmpty());
}

TEST_F(CommandLineTest, EachCommandHasHelp)
{
    for (const QStringList& command :
         {QStringList("--help"),
          {"import", "--help"},
          {"check", "--help"},
          {"--export", "--help"},
          {"x.orvane", "--export", "f", "--help"}}) {
        EXPECT_EQ(Run(command), ExitCode::Done);
        EXPECT_TRUE(m_out.contains("--help")) << command.join(' ').toStdString();
        EXPECT_TRUE(m_errors.isEmpty());
    }
    Run({"--help"});
    EXPECT_TRUE(m_out.contains("--export FILE"));
    EXPECT_TRUE(m_out.contains("check MAP"));
}

TEST_F(CommandLineTest, TheVersionIsTold)
{
    EXPECT_EQ(Run({"--version"}), ExitCode::Done);
    EXPECT_TRUE(m_out.startsWith(QCoreApplication::applicationName()));
}

TEST_F(CommandLineTest, MistakesAreUsageErrorsAndPointToTheHelp)
{
    for (const QStringList& command :
         {QStringList("--nonsense"),
          {"a.orvane", "b.orvane"},
          {"check"},
          {"check", "a", "b"},
          {"check", "--fix", "a"},
          {"import", "a.shp"},
          {"import", "--to", "a.orvane"},
          {"--export", "a.pdf"},
          {"a", "--export", "a.gif"}}) {
        EXPECT_EQ(Run(command), ExitCode::Usage) << command.join(' ').toStdString();
        EXPECT_TRUE(m_errors.contains("--help")) << m_errors.toStdString();
        EXPECT_TRUE(m_out.isEmpty());
    }
}

TEST(TerminalText, ShowsWhatATerminalObeysAsQuestionMarks)
{
    EXPECT_EQ(TerminalText("a\x1b[2J\x07\r\n\t\x7f"), "a?[2J?????");
    EXPECT_EQ(TerminalText(QString::fromUtf16(u"\x009b\x202e\x2066\x2028\xfeff|")), "?????|");
    EXPECT_EQ(TerminalText(QString(QChar(0xD800)) + "|"), QString(QChar(QChar::ReplacementCharacter)) + "|");
}

TEST(TerminalText, LeavesTextsOfAllScriptsAsTheyAre)
{
    const QString text
        = QString::fromUtf8("Größe 東京 \xf0\x9f\x97\xba \xd9\x85\xdb\x8c\xe2\x80\x8c\xd8\xae e\xcc\x81 ?");
    EXPECT_EQ(TerminalText(text), text);
}

} // namespace Orvane
