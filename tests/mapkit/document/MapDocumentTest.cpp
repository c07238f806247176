// SPDX-License-Identifier: MIT
#include "mapkit/document/MapDocument.h"

#include "mapkit/DataFolder.h"
#include "store/sqlite/SqliteLayerDatabase.h"
#include "support/FileSizeLimit.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QDir>

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

namespace {

class MapDocumentTest : public testing::Test
{
protected:
    NewLayer LayerOf(const QString& path) const
    {
        NewLayer layer;
        layer.name = "Roads";
        layer.path = path;
        layer.ogrLayer = "roads";
        layer.filter = "kind = 1";
        return layer;
    }

    static int Count(MapDocument& document, const QString& table)
    {
        return ToInt32(document.Database().OpenRecordset("SELECT count(*) AS N FROM " + table)->Field("N"));
    }

    // Tries the act with more and more room on the disk until it works. After each failure the files are as
    // they were: only a map with these bytes, or none.
    void TryWithGrowingRoom(const QByteArray& old, const std::function<void()>& act) const
    {
        int failures = 0;
        for (qint64 room = 0; room < 4000000; room += 8000) {
            if (WorksWithRoom(room, act)) {
                EXPECT_GT(failures, 2);
                return;
            }
            ++failures;
            EXPECT_EQ(Files(), old.isEmpty() ? QStringList() : QStringList("map.orvane"));
            EXPECT_TRUE(old.isEmpty() || Bytes() == old);
        }
        FAIL() << "everything failed";
    }

    static bool WorksWithRoom(qint64 room, const std::function<void()>& act)
    {
        const FileSizeLimit limit(room);
        try {
            act();
            return true;
        } catch (const RunTimeError& error) {
            EXPECT_FALSE(error.Description().contains(".part")) << error.what();
            return false;
        }
    }

    QStringList Files() const { return QDir(m_folder.Path("")).entryList(QDir::Files | QDir::Hidden); }
    QByteArray Bytes() const
    {
        QFile file(m_folder.Path("map.orvane"));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    DataFolder m_folder;
};

} // namespace

TEST_F(MapDocumentTest, ALayerKeepsWhatItBeganWith)
{
    const auto document = MapDocument::Untitled();
    NewLayer layer = LayerOf("/data/roads.gpkg");
    layer.values.color = 0x112233;
    layer.priority = 7;
    const qint32 layerID = document->AddLayer(layer);
    const auto row = document->Database().OpenRecordset("SELECT * FROM Layers");
    EXPECT_EQ(ToInt32(row->Field("LayerID")), layerID);
    EXPECT_EQ(ToText(row->Field("Name")), "Roads");
    EXPECT_EQ(ToInt32(row->Field("Color")), 0x112233);
    EXPECT_EQ(ToInt32(row->Field("Priority")), 7);
    EXPECT_EQ(ToInt32(row->Field("MinVisScale")), 0);
    EXPECT_EQ(ToInt32(row->Field("MaxVisScale")), 0);
}

TEST_F(MapDocumentTest, ASourceWithAnIDBeyond32BitsHidesNoOther)
{
    const auto document = MapDocument::Untitled();
    document->AddLayer(LayerOf("/data/roads.gpkg"));
    document->Database().Execute("INSERT INTO Layers (LayerID) VALUES (2147483648)");
    document->Database().Execute(
        "INSERT INTO LayerSources (LayerID, Path, OgrLayer) VALUES (2147483648, 'a', 'a')");
    EXPECT_EQ(document->Sources().size(), 1u);
}

TEST_F(MapDocumentTest, AGroupIsAddedBesideOneWithAnIDBeyond32Bits)
{
    const auto document = MapDocument::Untitled();
    document->Database().Execute("INSERT INTO LayerGroups (ID, Name, GroupOrdering)"
                                 " VALUES (4294967296, 'Far', 4294967296), (2147483647, 'Last', 'x')");
    EXPECT_EQ(document->AddGroup("First", true), 1);
    EXPECT_EQ(document->AddGroup("Second", true), 2);
}

TEST_F(MapDocumentTest, AMapOnAServerHasANameAndNoFile)
{
    const QString data = m_folder.WriteSquare("square.geojson");
    const QString place = "postgresql:///?service=team&schema=Old%20town";
    MapDocument::Create(m_folder.Path("map.orvane"));
    const auto document = MapDocument::OpenCopy(m_folder.Path("map.orvane"), place);
    const qint32 layerID = document->AddLayer(LayerOf(data));
    EXPECT_EQ(document->Path(), place);
    EXPECT_EQ(document->FilePath(), QString());
    EXPECT_EQ(document->Name(), "Old town");
    EXPECT_TRUE(document->IsAt(place));
    EXPECT_FALSE(document->IsAt(m_folder.Path("map.orvane")));
    EXPECT_EQ(document->SourceOf(layerID)->path, data);
}

TEST_F(MapDocumentTest, TheSourceOfALayerIsFoundAgain)
{
    const auto document = MapDocument::Untitled();
    const qint32 layerID = document->AddLayer(LayerOf("/data/roads.gpkg"));
    ASSERT_EQ(document->Sources().size(), 1u);
    const LayerSource source = document->Sources()[0];
    EXPECT_EQ(source.layerID, layerID);
    EXPECT_EQ(source.path, "/data/roads.gpkg");
    EXPECT_EQ(source.ogrLayer, "roads");
    EXPECT_EQ(source.filter, "kind = 1");
}

TEST_F(MapDocumentTest, WhatALayerTakesOfItsGeometriesIsFoundAgain)
{
    const auto document = MapDocument::Untitled();
    NewLayer layer;
    layer.path = m_folder.Path("towns.csv");
    layer.choice.columns = {"lon", "lat", {}};
    const qint32 layerID = document->AddLayer(layer);
    EXPECT_EQ(document->SourceOf(layerID)->choice, layer.choice);
    LayerSource changed = *document->SourceOf(layerID);
    changed.choice = {};
    document->SetSource(changed);
    EXPECT_EQ(document->SourceOf(layerID)->choice, GeometryChoice());
}

TEST_F(MapDocumentTest, TheSourceOfOneLayerIsFound)
{
    const auto document = MapDocument::Untitled();
    document->AddLayer(LayerOf("/data/rivers.gpkg"));
    const qint32 layerID = document->AddLayer(LayerOf("/data/roads.gpkg"));
    EXPECT_EQ(document->SourceOf(layerID).value_or(LayerSource()).path, "/data/roads.gpkg");
    EXPECT_FALSE(document->SourceOf(77));
}

TEST_F(MapDocumentTest, LayersGetCodesOfTheirOwnWhileThereAreAny)
{
    const auto document = MapDocument::Untitled();
    const auto codeOfNewLayer = [&] {
        const qint32 layerID = document->AddLayer(LayerOf("a"));
        const auto row
            = document->Database().OpenQuery("SELECT Code FROM Layers WHERE LayerID = ?1", {layerID});
        return ToInt32(row->Field("Code"));
    };
    EXPECT_EQ(codeOfNewLayer(), 0);
    EXPECT_EQ(codeOfNewLayer(), 1);
    document->Database().Execute("UPDATE Layers SET Code = 3 WHERE Code = 1");
    EXPECT_EQ(codeOfNewLayer(), 1);
    document->Database().Execute(
        "WITH RECURSIVE Codes (Code) AS (SELECT 4 UNION ALL SELECT Code + 1 FROM Codes WHERE Code < 32767)"
        " INSERT INTO Layers (Code) SELECT Code FROM Codes UNION ALL SELECT 2");
    EXPECT_EQ(codeOfNewLayer(), -1);
}

TEST_F(MapDocumentTest, ADeletedLayerTakesItsSourceAlong)
{
    const auto document = MapDocument::Untitled();
    document->AddLayer(LayerOf("a"));
    document->Database().Execute("DELETE FROM Layers");
    EXPECT_TRUE(document->Sources().empty());
}

TEST_F(MapDocumentTest, GroupsAndMembersKeepTheOrderInWhichTheyCame)
{
    const auto document = MapDocument::Untitled();
    const qint32 first = document->AddGroup("First", true);
    const qint32 second = document->AddGroup("Second", false);
    const qint32 below = document->AddLayer(LayerOf("a"));
    const qint32 above = document->AddLayer(LayerOf("b"));
    document->AddMember(second, above);
    document->AddMember(second, below);
    document->AddMember(first, below);
    const auto rows = document->Database().OpenRecordset(
        "SELECT LayerGroupMembers.* FROM LayerGroupMembers, LayerGroups WHERE ID = GroupID"
        " ORDER BY GroupOrdering, Ordering");
    std::vector<std::pair<qint32, qint32>> members;
    for (; !rows->AtEOF(); rows->MoveNext())
        members.emplace_back(ToInt32(rows->Field("GroupID")), ToInt32(rows->Field("LayerID")));
    EXPECT_EQ(members, (decltype(members){{first, below}, {second, above}, {second, below}}));
}

TEST_F(MapDocumentTest, TheBackgroundIsWhiteUnlessTheFileHasAnother)
{
    EXPECT_EQ(MapDocument::Untitled()->Background(), QColor(Qt::white));
    MapDocument::Create(m_folder.Path("map.orvane"))->SetBackground(QColor(1, 2, 3));
    EXPECT_EQ(MapDocument::Open(m_folder.Path("map.orvane"))->Background(), QColor(1, 2, 3));
}

TEST_F(MapDocumentTest, TheSystemIsKeptInTheFile)
{
    EXPECT_EQ(MapDocument::Untitled()->System(), "");
    MapDocument::Create(m_folder.Path("map.orvane"))->SetSystem("EPSG:3857");
    EXPECT_EQ(MapDocument::Open(m_folder.Path("map.orvane"))->System(), "EPSG:3857");
}

TEST_F(MapDocumentTest, DataThatMoveAlongWithTheMapAreFoundAgain)
{
    QDir(m_folder.Path("")).mkpath("old/data");
    const QString data = m_folder.WriteSquare("old/data/square.geojson");
    MapDocument::Create(m_folder.Path("old/map.orvane"))->AddLayer(LayerOf(data));
    ASSERT_TRUE(QDir(m_folder.Path("")).rename("old", "new"));
    EXPECT_EQ(
        MapDocument::Open(m_folder.Path("new/map.orvane"))->Sources()[0].path,
        m_folder.Path("new/data/square.geojson"));
}

TEST_F(MapDocumentTest, DataElsewhereKeepTheirPath)
{
    QDir(m_folder.Path("")).mkpath("maps");
    const QString data = m_folder.WriteSquare("square.geojson");
    const auto document = MapDocument::Create(m_folder.Path("maps/map.orvane"));
    document->AddLayer(LayerOf(data));
    EXPECT_EQ(document->Sources()[0].path, data);
}

TEST_F(MapDocumentTest, ACopyHoldsEverythingAndStillFindsItsData)
{
    QDir(m_folder.Path("")).mkpath("elsewhere");
    const QString data = m_folder.WriteSquare("square.geojson");
    const auto document = MapDocument::Create(m_folder.Path("map.orvane"));
    document->AddLayer(LayerOf(data));
    document->AddGroup("Group", true);
    document->SaveCopy(m_folder.Path("elsewhere/copy.orvane"));
    const auto copy = MapDocument::Open(m_folder.Path("elsewhere/copy.orvane"));
    EXPECT_EQ(Count(*copy, "Layers"), 1);
    EXPECT_EQ(Count(*copy, "LayerGroups"), 1);
    EXPECT_EQ(copy->Sources()[0].path, data);
}

TEST_F(MapDocumentTest, ACopyReplacesAFileOfThatName)
{
    m_folder.Write("copy.orvane", "anything");
    MapDocument::Untitled()->SaveCopy(m_folder.Path("copy.orvane"));
    EXPECT_FALSE(MapDocument::Open(m_folder.Path("copy.orvane"))->HasLayers());
}

TEST_F(MapDocumentTest, ACopyThatCannotBeStoredLeavesTheFileThatIsThere)
{
    QDir(m_folder.Path("")).mkpath("closed");
    const QString path = m_folder.Write("closed/map.orvane", "precious");
    const QString folder = m_folder.Path("closed/map.orvane.part/in the way");
    ASSERT_TRUE(QDir().mkpath(folder)); // fails like a full disk, also for root
    EXPECT_THROW(MapDocument::Untitled()->SaveCopy(path), RunTimeError);
    EXPECT_THROW(MapDocument::CreateOver(path), RunTimeError);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "precious");
}

TEST_F(MapDocumentTest, WithoutRoomForACopyTheOldMapStays)
{
    const QString path = MapDocument::Create(m_folder.Path("map.orvane"))->Path();
    const auto document = MapDocument::Untitled();
    for (int i = 0; i < 300; ++i)
        document->AddLayer(LayerOf("/data/roads.gpkg"));
    TryWithGrowingRoom(Bytes(), [&] { document->SaveCopy(path); });
    EXPECT_EQ(Files(), QStringList("map.orvane"));
    EXPECT_EQ(MapDocument::Open(path)->Sources().size(), 300u);
}

TEST_F(MapDocumentTest, WithoutRoomForANewMapTheOldOneStays)
{
    const QString path = m_folder.Path("map.orvane");
    MapDocument::Create(path)->AddLayer(LayerOf("a"));
    TryWithGrowingRoom(Bytes(), [&] { MapDocument::CreateOver(path); });
    EXPECT_FALSE(MapDocument::Open(path)->HasLayers());
}

TEST_F(MapDocumentTest, WithoutRoomNoMapIsCreated)
{
    const QString path = m_folder.Path("map.orvane");
    TryWithGrowingRoom({}, [&] { MapDocument::Create(path); });
    EXPECT_FALSE(MapDocument::Open(path)->HasLayers());
}

TEST_F(MapDocumentTest, AMapThatCannotBeFilledIsNotMade)
{
    const auto fail = [this](MapDocument& map) {
        map.AddLayer(LayerOf("a"));
        throw RunTimeError(ErrorNumber::DatabaseFailure, "no more");
    };
    EXPECT_THROW(MapDocument::Make(m_folder.Path("map.orvane"), IfExists::Refuse, fail), RunTimeError);
    EXPECT_EQ(Files(), QStringList());
}

TEST_F(MapDocumentTest, AMapThatIsOpenIsNotReplacedAndGoesOn)
{
    const QString path = m_folder.Path("map.orvane");
    const auto open = MapDocument::Create(path);
    EXPECT_THROW(MapDocument::Untitled()->SaveCopy(path), RunTimeError);
    EXPECT_THROW(MapDocument::CreateOver(path), RunTimeError);
    open->AddLayer(LayerOf("a"));
    EXPECT_TRUE(MapDocument::Open(path)->HasLayers());
    EXPECT_EQ(QDir(m_folder.Path("")).entryList({"*.part*"}), QStringList());
}

TEST_F(MapDocumentTest, APathLeadsToTheMapHoweverItIsWritten)
{
    const auto document = MapDocument::Create(m_folder.Path("map.orvane"));
    ASSERT_TRUE(QFile::link(document->Path(), m_folder.Path("link.orvane")));
    EXPECT_TRUE(document->IsAt(document->Path()));
    EXPECT_TRUE(document->IsAt(m_folder.Path("./link.orvane")));
    EXPECT_FALSE(document->IsAt(m_folder.Path("other.orvane")));
    EXPECT_FALSE(MapDocument::Untitled()->IsAt({}));
}

TEST_F(MapDocumentTest, ANewMapReplacesTheOldOneWithAllItLeft)
{
    MapDocument::Create(m_folder.Path("map.orvane"))->AddLayer(LayerOf("a"));
    m_folder.Write("map.orvane-wal", "left behind");
    EXPECT_FALSE(MapDocument::CreateOver(m_folder.Path("map.orvane"))->HasLayers());
    EXPECT_EQ(MapDocument::Open(m_folder.Path("map.orvane"))->Path(), m_folder.Path("map.orvane"));
}

TEST_F(MapDocumentTest, AFileThatIsNoMapIsRefusedAndStays)
{
    const QString path = m_folder.Write("text.orvane", "not a map");
    EXPECT_THROW(MapDocument::Open(path), RunTimeError);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "not a map");
}

TEST_F(MapDocumentTest, TheSystemThatWasChosenForALayerIsKeptInCopiesToo)
{
    const auto document = MapDocument::Create(m_folder.Path("map.orvane"));
    NewLayer layer = LayerOf(m_folder.WriteSquare("square.geojson"));
    layer.system = "EPSG:25832";
    const qint32 layerID = document->AddLayer(layer);
    document->AddLayer(LayerOf(m_folder.Path("square.geojson")));
    document->SaveCopy(m_folder.Path("copy.orvane"));
    for (const char* name : {"map.orvane", "copy.orvane"}) {
        const auto opened = MapDocument::Open(m_folder.Path(name));
        EXPECT_EQ(opened->Sources()[0].system, "EPSG:25832") << name;
        EXPECT_EQ(opened->Sources()[1].system, "") << name;
        EXPECT_EQ(opened->ChosenReadings(), (std::map<qint32, QString>{{layerID, "EPSG:25832\n"}})) << name;
    }
}

} // namespace Orvane
