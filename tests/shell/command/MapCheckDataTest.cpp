// SPDX-License-Identifier: MIT
#include "mapkit/RasterFile.h"
#include "mapkit/document/MapSettings.h"
#include "shell/command/MapCheckFixture.h"

namespace Orvane {

using namespace Testing;

namespace {

using Kind = MapProblem::Kind;
using MapCheckDataTest = MapCheckFixture;

} // namespace

TEST_F(MapCheckDataTest, MissingDataAreNamedOnceAndStay)
{
    ASSERT_TRUE(QFile::remove(m_folder.Path("a.geojson")));
    const std::vector<MapProblem> problems = RepairMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::MissingData));
    EXPECT_TRUE(problems[0].text.contains(m_folder.Path("a.geojson")));
    EXPECT_FALSE(problems[0].repairable);
    EXPECT_EQ(Count("LayerSources"), 2);
}

TEST_F(MapCheckDataTest, DataThatCannotBeReadAreNamed)
{
    m_folder.Write("a.geojson", "broken");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::UnreadableData));
    EXPECT_TRUE(problems[0].text.contains("a.geojson"));
}

TEST_F(MapCheckDataTest, ALayerThatItsDataNoLongerHoldIsNamed)
{
    RawDatabase(m_map).Run("UPDATE LayerSources SET OgrLayer = 'roads' WHERE LayerID = 1");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::UnreadableData));
    EXPECT_TRUE(problems[0].text.contains("roads"));
}

TEST_F(MapCheckDataTest, ATableWithoutTheColumnsOfTheMapIsNamed)
{
    NewLayer towns;
    towns.path = m_folder.Write("towns.csv", "name,lon,lat\nA,13,52\n");
    towns.ogrLayer = "towns";
    towns.choice.columns = {"Lon", "lat", {}};
    MapDocument::Open(m_map)->AddLayer(towns);
    EXPECT_TRUE(CheckMap(m_map).empty());
    m_folder.Write("towns.csv", "name,x,lat\nA,13,52\n");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::UnreadableData));
    EXPECT_TRUE(problems[0].text.contains("\"Lon\"")) << qPrintable(problems[0].text);
    EXPECT_TRUE(problems[0].text.contains(towns.path)) << qPrintable(problems[0].text);
}

TEST_F(MapCheckDataTest, EachLayerOfAFileWithAnUnknownSystemIsNamedOnce)
{
    const auto document = MapDocument::Open(m_map);
    for (const FeatureKind kind : {FeatureKind::Point, FeatureKind::Area}) {
        NewLayer part;
        part.path = m_folder.Path("a.geojson");
        part.ogrLayer = "plan";
        part.system = "EPSG:0";
        part.choice.kinds = {kind};
        document->AddLayer(part);
    }
    RawDatabase(m_map).Run("UPDATE LayerSources SET System = 'EPSG:0' WHERE LayerID = 1");
    QStringList texts;
    for (const MapProblem& problem : CheckMap(m_map)) {
        if (problem.text.contains("EPSG:0"))
            texts << problem.text;
    }
    ASSERT_EQ(texts.size(), 2) << qPrintable(texts.join(' '));
    EXPECT_TRUE(texts[0].contains(m_folder.Path("a.geojson")));
    EXPECT_TRUE(texts[1].contains("a.geojson (plan)"));
}

TEST_F(MapCheckDataTest, AnUnknownSystemOfALayerIsNamed)
{
    RawDatabase(m_map).Run("UPDATE LayerSources SET System = 'EPSG:25832' WHERE LayerID = 1");
    EXPECT_TRUE(CheckMap(m_map).empty());
    RawDatabase(m_map).Run("UPDATE LayerSources SET System = 'EPSG:0' WHERE LayerID = 1");
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::UnreadableData));
    EXPECT_TRUE(problems[0].text.contains("EPSG:0"));
}

TEST_F(MapCheckDataTest, AMapOfAnEarlierVersionWithoutSystemsOfLayersIsSound)
{
    RawDatabase(m_map).Run("ALTER TABLE LayerSources DROP COLUMN System");
    EXPECT_TRUE(CheckMap(m_map).empty());
}

TEST_F(MapCheckDataTest, ARasterThatIsMissingOrCannotBeReadIsAProblem)
{
    const QString picture = m_folder.Path("photo.tif");
    WriteRaster(picture, {}, [](int, int, int) { return 1; });
    NewLayer raster = NewLayer::OfRaster();
    raster.path = picture;
    MapDocument::Open(m_map)->AddLayer(raster);
    EXPECT_TRUE(CheckMap(m_map).empty());
    ASSERT_TRUE(QFile::remove(picture));
    EXPECT_THAT(Kinds(CheckMap(m_map)), testing::ElementsAre(Kind::MissingData));
    m_folder.Write("photo.tif", "no picture");
    EXPECT_THAT(Kinds(CheckMap(m_map)), testing::ElementsAre(Kind::UnreadableData));
}

TEST_F(MapCheckDataTest, AMissingFileIsNamedOnceForItsFeaturesAndAllItsRasters)
{
    const auto document = MapDocument::Open(m_map);
    NewLayer raster = NewLayer::OfRaster();
    for (const auto& [file, member] :
         {std::pair("a.geojson", "x"), std::pair("gone.gpkg", "x"), std::pair("gone.gpkg", "y")}) {
        raster.path = m_folder.Path(file);
        raster.ogrLayer = member;
        document->AddLayer(raster);
    }
    ASSERT_TRUE(QFile::remove(m_folder.Path("a.geojson")));
    const std::vector<MapProblem> problems = CheckMap(m_map);
    ASSERT_THAT(Kinds(problems), testing::ElementsAre(Kind::MissingData, Kind::MissingData));
    EXPECT_TRUE(problems[0].text.contains("a.geojson"));
    EXPECT_TRUE(problems[1].text.contains("gone.gpkg"));
}

TEST_F(MapCheckDataTest, ThePictureUnderAMapOfAnEarlierVersionIsCheckedToo)
{
    MapSettings::Write(*SqliteLayerDatabase::Open(m_map), "Backdrop", "gone.tif");
    EXPECT_THAT(Kinds(CheckMap(m_map)), testing::ElementsAre(Kind::MissingData));
}

} // namespace Orvane
