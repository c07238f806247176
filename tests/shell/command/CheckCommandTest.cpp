// SPDX-License-Identifier: MIT
#include "shell/command/CheckCommand.h"

#include "shell/command/CommandFixture.h"
#include "store/sqlite/SqliteLayerDatabase.h"

namespace Orvane {

using namespace Testing;

namespace {

class CheckCommandTest : public CommandFixture
{
protected:
    /// A map with a group member whose layer does not exist.
    QString DanglingMap()
    {
        const QString map = MakeMap("map.orvane");
        const auto document = MapDocument::Open(map);
        document->AddGroup("Group", true);
        document->Database().Execute("PRAGMA foreign_keys = OFF");
        document->Database().Execute("INSERT INTO LayerGroupMembers (GroupID, LayerID) VALUES (1, 77)");
        return map;
    }
};

} // namespace

TEST_F(CheckCommandTest, ASoundMapIsSaidToBeSound)
{
    EXPECT_EQ(Run({"check", MakeMap("map.orvane")}), ExitCode::Done) << m_out.toStdString();
    EXPECT_TRUE(m_out.contains("map.orvane"));
}

TEST_F(CheckCommandTest, ProblemsAreListedAndTheFileStaysAsItIs)
{
    const QString map = DanglingMap();
    const QByteArray before = Content(map);
    EXPECT_EQ(Run({"check", map}), ExitCode::Problems);
    EXPECT_FALSE(m_out.isEmpty());
    EXPECT_EQ(Content(map), before);
}

TEST_F(CheckCommandTest, RepairedProblemsAreGone)
{
    const QString map = DanglingMap();
    EXPECT_EQ(Run({"check", map, "--repair"}), ExitCode::Done) << m_out.toStdString();
    EXPECT_EQ(Run({"check", map}), ExitCode::Done) << m_out.toStdString();
}

TEST_F(CheckCommandTest, ARepairListsTheValuesThatItReplaced)
{
    const QString map = MakeMap("map.orvane");
    MapDocument::Open(map)->Database().Execute("UPDATE Layers SET Code = 'red'");
    EXPECT_EQ(Run({"check", map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("red")) << m_out.toStdString();
    EXPECT_EQ(Run({"check", map, "--repair"}), ExitCode::Done) << m_out.toStdString();
    EXPECT_TRUE(m_out.contains("red")) << m_out.toStdString();
    EXPECT_EQ(Run({"check", map}), ExitCode::Done) << m_out.toStdString();
}

TEST_F(CheckCommandTest, WhatCannotBeMendedIsToldAfterARepair)
{
    const QString map = MakeMap("map.orvane");
    QFile::remove(m_folder.Path("square.geojson"));
    EXPECT_EQ(Run({"check", "--repair", map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("square.geojson")) << m_out.toStdString();
}

TEST_F(CheckCommandTest, WhatIsNoMapIsAProblem)
{
    EXPECT_EQ(Run({"check", m_folder.Path("none.orvane")}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("none.orvane"));
}

TEST_F(CheckCommandTest, TheTimeLimitIsAWholeNumberOfSeconds)
{
    const QString map = MakeMap("map.orvane");
    for (const char* seconds : {"0", "60"})
        EXPECT_EQ(Run({"check", map, "--time-limit", seconds}), ExitCode::Done) << seconds;
    for (const char* other : {"-1", "1.5", "soon", "", "99999999999"}) {
        EXPECT_EQ(Run({"check", map, "--time-limit", other}), ExitCode::Usage) << other;
        EXPECT_TRUE(m_errors.contains("--time-limit")) << m_errors.toStdString();
    }
}

TEST_F(CheckCommandTest, CharactersThatATerminalObeysAreNotWritten)
{
    const QString map = MakeMap("map.orvane");
    MapDocument::Open(map)->Database().Execute(
        "UPDATE Layers SET Name = 'a' || char(27) || '[2J', Code = char(27) || char(8238)");
    MapDocument::Open(map)->Database().Execute(
        "UPDATE LayerSources SET OgrLayer = 'b' || char(27) || char(10) || char(155)");
    EXPECT_EQ(Run({"check", map}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("a?[2J")) << m_out.toStdString();
    EXPECT_TRUE(m_out.contains("b???")) << m_out.toStdString();
    for (const char16_t character : {u'\x1b', u'\x9b', u'\x202e'})
        EXPECT_FALSE(m_out.contains(QChar(character)));
}

TEST_F(CheckCommandTest, AnErrorAboutAStrangeNameIsOneLine)
{
    EXPECT_EQ(
        Run({"check", m_folder.Path(QString::fromUtf16(u"no\x1bne\n\x202e.orvane"))}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("no?ne??.orvane")) << m_errors.toStdString();
    EXPECT_EQ(m_errors.count('\n'), 1);
}

} // namespace Orvane
