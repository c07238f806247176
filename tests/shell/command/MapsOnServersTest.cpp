// SPDX-License-Identifier: MIT
#include "shell/command/CommandFixture.h"
#include "shell/servers/ServerSettings.h"
#include "store/ILayerStore.h"
#include "store/opening/ServerMaps.h"
#include "store/postgres/RawLink.h"
#include "support/PrivateServer.h"

#include <atomic>
#include <csignal>
#include <thread>
#include <unistd.h>
#include <vector>

namespace Orvane {

using namespace Testing;

namespace {

/// The commands on maps in a server that the tests have for themselves.
class MapsOnServersTest : public CommandFixture
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_place = SharedServer().Place(testing::UnitTest::GetInstance()->current_test_info()->name());
        m_map = MakeMap("map.orvane");
    }

    QString m_place; // each test has a map of its own
    QString m_map;
};

} // namespace

TEST_F(MapsOnServersTest, AMapIsCopiedToAServerAndBack)
{
    ASSERT_EQ(Run({"copy", m_map, m_place}), ExitCode::Done) << m_errors.toStdString();
    const QString back = m_folder.Path("back.orvane");
    ASSERT_EQ(Run({"copy", m_place, back}), ExitCode::Done) << m_errors.toStdString();
    ASSERT_EQ(Run({"list", back}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(m_out, "EPSG:4326\nSquare: features 1, extent 0 0 10 10\n");
}

TEST_F(MapsOnServersTest, ACopyThatIsInterruptedLeavesNothingOnTheServer)
{
    const auto parts = [] {
        return RawLink(SharedServer().Connection())
            .Text("SELECT count(*) FROM pg_namespace WHERE nspname LIKE 'orvane.part%'");
    };
    MapDocument::Open(m_map)->AddLayers(std::vector<NewLayer>(5000));
    std::atomic<bool> isOver = false;
    std::thread user([&] { // presses Ctrl+C when the copy has begun
        while (!isOver && parts() == "0")
            std::this_thread::yield();
        if (!isOver)
            kill(getpid(), SIGINT);
    });
    EXPECT_EQ(Run({"copy", m_map, m_place}), ExitCode::Problems);
    isOver = true;
    user.join();
    EXPECT_TRUE(m_errors.contains("ancelled")) << m_errors.toStdString();
    EXPECT_EQ(parts(), "0");
    EXPECT_EQ(Run({"list", m_place}), ExitCode::Problems);
}

TEST_F(MapsOnServersTest, AMapThatIsThereIsReplacedOnlyOnRequest)
{
    MapDocument::Create(m_place);
    EXPECT_EQ(Run({"copy", m_map, m_place}), ExitCode::Problems);
    EXPECT_FALSE(MapDocument::Open(m_place)->HasLayers());
    EXPECT_EQ(Run({"copy", m_map, m_place, "--replace"}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(MapDocument::Open(m_place)->HasLayers());
}

TEST_F(MapsOnServersTest, ValuesThatDoNotFitAreNamedAndARepairHelps)
{
    MapDocument::Open(m_map)->Database().Execute("UPDATE Layers SET Code = 'red'");
    EXPECT_EQ(Run({"copy", m_map, m_place}), ExitCode::Problems);
    EXPECT_TRUE(m_errors.contains("Code: \"red\"")) << m_errors.toStdString();
    EXPECT_TRUE(m_errors.contains("orvane check --repair")) << m_errors.toStdString();
    EXPECT_EQ(Run({"check", m_map, "--repair"}), ExitCode::Done) << m_out.toStdString();
    EXPECT_EQ(Run({"copy", m_map, m_place}), ExitCode::Done) << m_errors.toStdString();
}

TEST_F(MapsOnServersTest, AMapIsListedAndExported)
{
    ASSERT_EQ(Run({"copy", m_map, m_place}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(Run({"list", m_place}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(m_out.contains("Square: features 1")) << m_out.toStdString();
    const QString picture = m_folder.Path("map.png");
    EXPECT_EQ(Run({m_place, "--export", picture}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(QFile::exists(picture));
}

TEST_F(MapsOnServersTest, AMapIsChecked)
{
    ASSERT_EQ(Run({"copy", m_map, m_place}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_EQ(Run({"check", m_place}), ExitCode::Done) << m_out.toStdString();
    EXPECT_TRUE(m_out.contains("AMapIsChecked")) << m_out.toStdString();
    MapDocument::Open(m_place)->Database().Execute("UPDATE Layers SET FillStyle = 99");
    QFile::remove(m_folder.Path("square.geojson"));
    EXPECT_EQ(Run({"check", m_place}), ExitCode::Problems);
    EXPECT_TRUE(m_out.contains("FillStyle")) << m_out.toStdString();
    EXPECT_TRUE(m_out.contains("square.geojson")) << m_out.toStdString();
}

TEST_F(MapsOnServersTest, DataAreImportedIntoANewMapAndIntoOneThatIsThere)
{
    const QString data = m_folder.WriteSquare("square.geojson");
    for (int layers = 1; layers <= 2; ++layers) {
        EXPECT_EQ(Run({"import", data, "--to", m_place}), ExitCode::Done) << m_errors.toStdString();
        EXPECT_EQ(MapDocument::Open(m_place)->Sources().size(), size_t(layers));
    }
}

TEST_F(MapsOnServersTest, DataAreFoundInTheFolderThatTheUserHasChosenForTheMap)
{
    const QString place = ServerMaps::Canonical(m_place);
    ServerSettings::SetDataFolder(place, m_folder.Path(""));
    MapAccess access;
    access.dataFolder = m_folder.Path("");
    MapDocument::Open(m_map)->SaveCopy(m_place, access);
    EXPECT_EQ(Run({"check", m_place}), ExitCode::Done) << m_out.toStdString();
    EXPECT_EQ(Run({"list", m_place}), ExitCode::Done) << m_errors.toStdString();
    EXPECT_TRUE(m_out.contains("Square: features 1")) << m_out.toStdString();

    ServerSettings::SetDataFolder(place, {});
    const QString before = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_folder.Path("")));
    EXPECT_EQ(Run({"check", m_place}), ExitCode::Problems);
    QDir::setCurrent(before);
    EXPECT_TRUE(m_out.contains("square.geojson")) << m_out.toStdString();
}

TEST_F(MapsOnServersTest, AMissingMapIsNamed)
{
    for (const char* command : {"list", "check"}) {
        EXPECT_EQ(Run({command, m_place}), ExitCode::Problems);
        EXPECT_TRUE(m_errors.contains("AMissingMapIsNamed")) << m_errors.toStdString();
    }
}

} // namespace Orvane
