// SPDX-License-Identifier: MIT
#include "shell/command/CopyCommand.h"

#include "shell/command/CommandFixture.h"

namespace Orvane {

using namespace Testing;

using CopyCommandTest = CommandFixture;

TEST_F(CopyCommandTest, TheCopyOfAFileFindsTheSameData)
{
    QDir(m_folder.Path("")).mkpath("elsewhere");
    const QString map = MakeMap("map.orvane");
    const QByteArray before = Content(map);
    const QString copy = m_folder.Path("elsewhere/copy.orvane");
    EXPECT_EQ(Run({"copy", map, copy}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(m_out, "\"map.orvane\" was copied to \"copy.orvane\".\n");
    EXPECT_EQ(Content(map), before);
    EXPECT_EQ(MapDocument::Open(copy)->Sources().front().path, m_folder.Path("square.geojson"));
}

TEST_F(CopyCommandTest, AMapIsReplacedOnlyOnRequest)
{
    const QString map = MakeMap("map.orvane");
    const QString other = m_folder.Path("other.orvane");
    MapDocument::Create(other);
    EXPECT_EQ(Run({"copy", map, other}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("other.orvane")) << m_errors.toStdString();
    EXPECT_FALSE(MapDocument::Open(other)->HasLayers());
    EXPECT_EQ(Run({"copy", map, other, "--replace"}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(MapDocument::Open(other)->HasLayers());
}

TEST_F(CopyCommandTest, AMapIsNotCopiedToItself)
{
    const QString map = MakeMap("map.orvane");
    const QByteArray before = Content(map);
    EXPECT_EQ(Run({"copy", map, map, "--replace"}), ExitCode::Problems);
    EXPECT_EQ(Content(map), before);
}

TEST_F(CopyCommandTest, TwoMapsAreNeeded)
{
    EXPECT_EQ(Run({"copy", "map.orvane"}), ExitCode::Usage);
    EXPECT_EQ(Run({"copy", "a", "b", "c"}), ExitCode::Usage);
    EXPECT_EQ(Run({"copy", m_folder.Path("none.orvane"), m_folder.Path("new.orvane")}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("none.orvane")) << m_errors.toStdString();
    EXPECT_FALSE(QFile::exists(m_folder.Path("new.orvane")));
}

TEST_F(CopyCommandTest, ARepairOfAMapOnAServerIsRefusedBeforeAnythingIsAsked)
{
    EXPECT_EQ(Run({"check", "--repair", "postgresql://nowhere.invalid/maps?schema=Town"}), ExitCode::Usage);
    EXPECT_TRUE(m_errors.contains("--repair")) << m_errors.toStdString();
}

} // namespace Orvane
