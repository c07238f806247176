// SPDX-License-Identifier: MIT
#include "hostkit/common/MapNotes.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "mapkit/DataFolder.h"
#include "mapkit/RawDatabase.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/document/MapThemes.h"
#include "store/ILayerStore.h"
#include "store/opening/ServerMaps.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/RawLink.h"
#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QFile>
#include <QTemporaryDir>

#include <functional>
#include <gtest/gtest.h>
#include <stdexcept>
#include <utility>

namespace Orvane {

using namespace Testing;

namespace {

/// Maps in a server that the tests have for themselves.
class MapOnServerTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
    }

    // Each test has a map of its own.
    static QString Place()
    {
        return SharedServer().Place(testing::UnitTest::GetInstance()->current_test_info()->name());
    }
};

// Before the store hears the first statement that begins so.
void Interrupt(ILayerStore& store, const char* beginning, const std::function<void()>& act)
{
    store.SetQueryListener([=, isDone = false](const QString& sql) mutable {
        if (!std::exchange(isDone, isDone || sql.startsWith(QLatin1String(beginning))) && isDone)
            act();
    });
}

} // namespace

TEST_F(MapOnServerTest, WhatIsAddedIsThereWhenItIsOpenedAgain)
{
    NewLayer roads;
    roads.name = "Roads";
    roads.path = "/data/roads.gpkg";
    const auto created = MapDocument::Create(Place());
    const std::vector<qint32> layerIDs = created->AddLayers({roads, NewLayer::OfRaster()});
    const qint32 groupID = created->AddGroup("Ways", true);
    created->AddMember(groupID, layerIDs.front());
    created->SetSystem("EPSG:4326");

    const auto opened = MapDocument::Open(Place());
    EXPECT_EQ(opened->Sources().size(), 2u);
    EXPECT_EQ(opened->SourceOf(layerIDs.front())->path, "/data/roads.gpkg");
    EXPECT_EQ(opened->SourceOf(layerIDs.back())->kind, DataKind::Raster);
    EXPECT_EQ(opened->System(), "EPSG:4326");
    EXPECT_EQ(opened->AddGroup("Water", true), groupID + 1);
    EXPECT_EQ(opened->Name(), QString::fromLatin1("WhatIsAddedIsThereWhenItIsOpenedAgain"));
    EXPECT_EQ(opened->FilePath(), QString());
}

TEST_F(MapOnServerTest, SchemesThemesAndNotesHaveTheirTablesFromTheBeginning)
{
    const auto map = MapDocument::Create(Place());
    map->AddLayer(NewLayer());
    int made = 0;
    map->Database().SetQueryListener(
        [&](const QString& sql) { made += sql.startsWith("CREATE") || sql.startsWith("ALTER") ? 1 : 0; });
    LayerSchemes(map->Database()).Create("Night");
    MapThemes(map->Database()).Prepare();
    const qint32 themeID = MapThemes(map->Database()).StoreVisibleLayers("All");
    MapNotes::Write(map->Database(), "key", "text");
    map->Database().SetQueryListener({});
    EXPECT_EQ(made, 0);
    EXPECT_EQ(LayerSchemes(map->Database()).Current(), "Night");
    EXPECT_EQ(MapThemes(map->Database()).LayersOf(themeID).size(), 1);
    EXPECT_EQ(MapNotes::Read(map->Database(), "key"), "text");
}

TEST_F(MapOnServerTest, AThousandNewLayersTakeAHandfulOfRoundTrips)
{
    const auto map = MapDocument::Create(Place());
    const auto& store = dynamic_cast<const PostgresLayerDatabase&>(map->Database());
    const quint64 before = store.RoundTrips();
    EXPECT_EQ(map->AddLayers(std::vector<NewLayer>(1000)).size(), 1000u);
    EXPECT_LE(store.RoundTrips() - before, 5u);
    EXPECT_EQ(MapDocument::Open(Place())->Sources().size(), 1000u);
}

TEST_F(MapOnServerTest, LayersThatTwoAddAtTheSameMomentAllGetNumbersAndCodesOfTheirOwn)
{
    const auto ours = MapDocument::Create(Place());
    const auto theirs = MapDocument::Open(Place());
    const qint32 before = ours->AddLayer(NewLayer());
    qint32 other = 0;
    Interrupt(ours->Database(), "INSERT INTO Layers", [&] { other = theirs->AddLayer(NewLayer()); });
    const std::vector<qint32> added = ours->AddLayers(std::vector<NewLayer>(2));
    EXPECT_EQ(other, before + 1);
    EXPECT_EQ(added, (std::vector{before + 2, before + 3}));
    const auto codes = ours->Database().OpenQuery("SELECT count(DISTINCT Code) AS Codes FROM Layers");
    EXPECT_EQ(ToInt32(codes->Field("Codes")), 4);
}

TEST_F(MapOnServerTest, GroupsThatTwoAddAtTheSameMomentAllGetNumbersOfTheirOwn)
{
    const auto ours = MapDocument::Create(Place());
    const auto theirs = MapDocument::Open(Place());
    qint32 other = 0;
    Interrupt(ours->Database(), "INSERT INTO LayerGroups", [&] { other = theirs->AddGroup("Theirs", true); });
    const std::vector<qint32> added = ours->AddGroups({"A", "B"}, true);
    EXPECT_EQ(added, (std::vector{other + 1, other + 2}));
}

TEST_F(MapOnServerTest, AMapThatCannotBeFilledIsNotThereAfterwards)
{
    const auto fail = [](MapDocument& map) {
        map.AddLayer(NewLayer());
        throw std::runtime_error("full");
    };
    EXPECT_THROW(MapDocument::Make(Place(), IfExists::Refuse, fail), std::runtime_error);
    EXPECT_FALSE(MapDocument::Create(Place())->HasLayers());
}

TEST_F(MapOnServerTest, DataAreFoundInTheFolderThatTheUserHasForThem)
{
    const DataFolder folder;
    const QString roads = folder.Write("roads.gpkg", "data");
    MapAccess access;
    access.dataFolder = folder.Path("");
    NewLayer layer;
    layer.name = "Roads";
    layer.path = roads;
    MapDocument::Make(
        Place(), IfExists::Refuse, [&](MapDocument& map) { map.AddLayer(layer); }, access);

    const DataFolder other;
    EXPECT_EQ(MapDocument::Open(Place(), access)->Sources().at(0).path, roads);
    access.dataFolder = other.Path("");
    const QString moved = other.Write("roads.gpkg", "data");
    EXPECT_EQ(MapDocument::Open(Place(), access)->Sources().at(0).path, moved);
}

TEST_F(MapOnServerTest, WhoMayOnlyReadOpensAMapThatCannotBeChanged)
{
    RawLink owner(SharedServer().Connection());
    owner.Run("DROP ROLE IF EXISTS map_reader");
    owner.Run("CREATE ROLE map_reader LOGIN");
    NewLayer layer;
    layer.name = "Roads";
    MapDocument::Make(Place(), IfExists::Refuse, [&](MapDocument& map) { map.AddLayer(layer); });
    ServerMaps::SetHolders(Place(), {{"map_reader", MapRight::Read}}, {});
    {
        const auto map = MapDocument::Open(SharedServer().Place(
            testing::UnitTest::GetInstance()->current_test_info()->name(), "map_reader"));
        EXPECT_TRUE(map->IsReadOnly());
        EXPECT_TRUE(map->HasLayers());
        EXPECT_EQ(ErrorOf([&] { map->AddGroup("Ways", true); }), int(ErrorNumber::DatabaseReadOnly));
    }
    EXPECT_FALSE(MapDocument::Open(Place())->IsReadOnly());
    owner.Run("DROP OWNED BY map_reader");
    owner.Run("DROP ROLE map_reader");
}

TEST_F(MapOnServerTest, AMapIsSavedOnAServerAndFromThereToAFile)
{
    const QTemporaryDir folder;
    QFile data(folder.filePath("roads.gpkg"));
    ASSERT_TRUE(data.open(QIODevice::WriteOnly));
    NewLayer roads;
    roads.name = "Roads";
    roads.path = data.fileName();
    const auto map = MapDocument::Create(folder.filePath("map.orvane"));
    const qint32 layerID = map->AddLayer(roads);
    LayerSchemes(map->Database()).Create("Night");
    map->SetSystem("EPSG:4326");

    map->SaveCopy(Place());
    const auto onServer = MapDocument::Open(Place());
    EXPECT_EQ(onServer->SourceOf(layerID)->path, data.fileName());
    EXPECT_EQ(onServer->System(), "EPSG:4326");
    LayerSchemes(onServer->Database()).Create("Day");
    EXPECT_EQ(LayerSchemes(onServer->Database()).Names(), (QStringList{"Day", "Night", "Standard"}));

    const QString back = folder.filePath("back.orvane");
    onServer->SaveCopy(back);
    EXPECT_EQ(MapDocument::Open(back)->SourceOf(layerID)->path, data.fileName());
    EXPECT_EQ(LayerSchemes(MapDocument::Open(back)->Database()).Current(), "Day");
}

TEST_F(MapOnServerTest, AMapThatAppearedMeanwhileIsNotReplacedUnlessThatIsWanted)
{
    MapDocument::Create(Place())->AddLayer({}); // a colleague's
    const auto own = MapDocument::Untitled();
    EXPECT_EQ(
        ErrorOf([&] { own->SaveCopy(Place(), {}, IfExists::Refuse); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_TRUE(MapDocument::Open(Place())->HasLayers());
    own->SaveCopy(Place(), {}, IfExists::Replace);
    EXPECT_FALSE(MapDocument::Open(Place())->HasLayers());
}

TEST_F(MapOnServerTest, AMapOfAnEarlierVersionIsCopiedWithoutBeingChanged)
{
    const DataFolder folder;
    const QString earlier = folder.Path("old.orvane");
    QFile script(QStringLiteral(FIXTURE_FOLDER "/map_0_1.sql"));
    ASSERT_TRUE(script.open(QIODevice::ReadOnly));
    RawDatabase(earlier).Run(script.readAll().constData());
    QFile file(earlier);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray before = file.readAll();

    MapDocument::Copy(earlier, Place(), IfExists::Refuse);
    file.seek(0);
    EXPECT_EQ(file.readAll(), before);
    const auto map = MapDocument::Open(Place());
    EXPECT_EQ(map->Sources().at(0).path, folder.Path("land.gpkg"));
    EXPECT_EQ(map->Renderings().Of(3).classAttribute, "height");
    LayerSchemes schemes(map->Database());
    EXPECT_EQ(schemes.Names(), (QStringList{"Night", "Standard"}));
    EXPECT_EQ(schemes.Load("Standard"), QSet<qint32>{2});
}

} // namespace Orvane
