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

} // namespace Orvane
