// SPDX-License-Identifier: MIT
#include "shell/servers/ServerSettings.h"

#include <QSettings>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QString Team = QStringLiteral("postgresql:///?service=team");
const QString Other = QStringLiteral("postgresql://maps.org/maps");

class ServerSettingsTest : public testing::Test
{
protected:
    void SetUp() override { QSettings().clear(); }
};

} // namespace

TEST_F(ServerSettingsTest, ServersStayInTheOrderInWhichTheyWereAddedEachOnce)
{
    for (const QString& server : {Team, Other, Team})
        ServerSettings::AddServer(server);
    EXPECT_EQ(ServerSettings::Servers(), QStringList({Team, Other}));
    ServerSettings::RemoveServer(Team);
    EXPECT_EQ(ServerSettings::Servers(), QStringList({Other}));
}

TEST_F(ServerSettingsTest, EachMapHasAFolderOfItsOwn)
{
    const QString town = Team + "&schema=Town";
    const QString lake = Team + "&schema=Lake";
    EXPECT_EQ(ServerSettings::DataFolder(town), "");
    ServerSettings::SetDataFolder(town, "/data/town");
    ServerSettings::SetDataFolder(lake, "/data/lake");
    EXPECT_EQ(ServerSettings::DataFolder(town), "/data/town");
    ServerSettings::SetDataFolder(town, {});
    EXPECT_EQ(ServerSettings::DataFolder(town), "");
    EXPECT_EQ(ServerSettings::DataFolder(lake), "/data/lake");
}

} // namespace Orvane
