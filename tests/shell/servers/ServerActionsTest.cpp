// SPDX-License-Identifier: MIT
#include "shell/servers/ServerActions.h"

#include "shell/servers/ServerTest.h"
#include "store/postgres/RawLink.h"

#include <QAction>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

namespace Orvane {

using namespace Testing;

namespace {

class ServerActionsTest : public ServerTest
{
protected:
    void SetUp() override
    {
        ServerTest::SetUp();
        if (IsSkipped())
            return;
        QMenu* menu = m_main.menuBar()->addMenu("File");
        m_openData = menu->addAction("Open Data");
        m_openData->setObjectName("actOpenData");
        m_openData->setStatusTip("Add data");
        m_actions = std::make_unique<ServerActions>(*menu, m_openData, m_main);
        m_main.show();
    }
    void Use(std::unique_ptr<MapDocument> document)
    {
        m_actions->Use(*document);
        m_document = std::move(document);
    }
    QAction* Action(const char* name) const { return m_actions->findChild<QAction*>(QLatin1String(name)); }
    QLabel* Mark() const { return m_main.findChild<QLabel*>("lblReadOnly"); }
    void TearDown() override
    {
        m_document.reset();
        ServerTest::TearDown();
        if (!IsSkipped())
            RawLink(SharedServer().Connection()).Run("DROP ROLE IF EXISTS reader");
    }

    QMainWindow m_main;
    QAction* m_openData = nullptr;
    std::unique_ptr<ServerActions> m_actions;
    std::unique_ptr<MapDocument> m_document;
};

} // namespace

TEST_F(ServerActionsTest, RightsFolderAndTablesBelongToMapsOnServers)
{
    Use(MapDocument::Untitled());
    for (const char* name : {"actMapRights", "actDataFolder", "actAddTables"})
        EXPECT_FALSE(Action(name)->isEnabled()) << name;
    Use(MapDocument::Open(PlaceOf("Town")));
    for (const char* name : {"actMapRights", "actDataFolder", "actAddTables"})
        EXPECT_TRUE(Action(name)->isEnabled()) << name;
}

TEST_F(ServerActionsTest, TheTitleNamesTheServer)
{
    Use(MapDocument::Open(PlaceOf("Town")));
    EXPECT_TRUE(m_actions->TitleOfMap().startsWith("Town (")) << m_actions->TitleOfMap().toStdString();
}

TEST_F(ServerActionsTest, AMapThatMayBeChangedHasNoMark)
{
    Use(MapDocument::Open(PlaceOf("Town")));
    EXPECT_FALSE(Mark()->isVisible());
    EXPECT_TRUE(m_openData->isEnabled());
}

TEST_F(ServerActionsTest, TheFolderOfSharedDataIsWhereRelativePathsStart)
{
    ServerSettings::SetDataFolder(PlaceOf("Town"), "/data/town");
    EXPECT_EQ(m_actions->AccessTo(PlaceOf("Town")).dataFolder, "/data/town");
    EXPECT_EQ(m_actions->AccessTo(PlaceOf("Lake")).dataFolder, "");
    EXPECT_EQ(m_actions->AccessTo("/maps/town.orvane").login, nullptr);
}

TEST_F(ServerActionsTest, AMapThatMayOnlyBeReadSaysSoUntilAnotherIsOpen)
{
    RawLink(SharedServer().Connection()).Run("CREATE ROLE reader LOGIN");
    ServerMaps::SetHolders(PlaceOf("Town"), {{"reader", MapRight::Read}}, {});
    Use(MapDocument::Open(SharedServer().Place("Town", "reader")));
    EXPECT_TRUE(m_document->IsReadOnly());
    EXPECT_TRUE(Mark()->isVisible());
    EXPECT_FALSE(m_openData->isEnabled());
    EXPECT_TRUE(m_openData->statusTip().startsWith("You may read this map"));
    EXPECT_FALSE(Action("actAddTables")->isEnabled());
    EXPECT_TRUE(m_actions->TitleOfMap().endsWith("(read-only)"));
    Use(MapDocument::Untitled());
    EXPECT_FALSE(Mark()->isVisible());
    EXPECT_TRUE(m_openData->isEnabled());
    EXPECT_EQ(m_openData->statusTip(), "Add data");
}

} // namespace Orvane
