// SPDX-License-Identifier: MIT
#include "mapkit/files/OpenedData.h"

#include "mapkit/DataFolder.h"
#include "mapkit/ZipFile.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/DataSource.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Point
    = R"({"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[1,2]}})";
constexpr auto OtherPoint
    = R"({"type":"Feature","properties":{},"geometry":{"type":"Point","coordinates":[8,9]}})";

/// Archives and compressed files, opened as sources.
class OpenedDataTest : public testing::Test
{
protected:
    static QStringList Names(const QString& path)
    {
        QStringList names;
        for (const SourceLayer& layer : DataSource(path).Layers())
            names << layer.name;
        return names;
    }
    Box BoundsOf(const QString& path, const QString& layer)
    {
        return DataSource(path).Read(layer, {}, "EPSG:4326", m_progress).Bounds();
    }
    QString ErrorOf(const QString& path)
    {
        try {
            const DataSource source(path);
        } catch (const RunTimeError& error) {
            return error.Description();
        }
        return {};
    }
    QByteArray Content(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        return file.readAll();
    }

    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(OpenedDataTest, StreetDataNeedNoOrderOfNumbers)
{
    const QString path = m_folder.Write(
        "streets.osm",
        R"(<osm version="0.6"><node id="9" lat="2" lon="1"/><node id="3" lat="4" lon="3"/>
        <way id="1"><nd ref="9"/><nd ref="3"/><tag k="highway" v="path"/></way></osm>)");
    EXPECT_EQ(BoundsOf(path, "lines"), (Box{1, 2, 3, 4}));
}

TEST_F(OpenedDataTest, AnArchiveIsOneSourceWithTheLayersOfItsFiles)
{
    const QString path
        = WriteZip(m_folder.Path("a town.zip"), {{"roads.geojson", Point}, {"sub/b.geojson", OtherPoint}});
    EXPECT_EQ(Names(path), QStringList({"roads", "b"}));
    EXPECT_EQ(BoundsOf(path, "roads"), (Box{1, 2, 1, 2}));
    EXPECT_EQ(BoundsOf(path, "b"), (Box{8, 9, 8, 9}));
}

TEST_F(OpenedDataTest, LayersOfOneNameAreToldApartByTheirFolders)
{
    const QString path = WriteZip(
        m_folder.Path("a.zip"), {{"north/roads.geojson", Point}, {"south/roads.geojson", OtherPoint}});
    EXPECT_EQ(Names(path), QStringList({"north/roads", "south/roads"}));
    EXPECT_EQ(BoundsOf(path, "south/roads"), (Box{8, 9, 8, 9}));
}

TEST_F(OpenedDataTest, FilesOfOneNameAreToldApartByTheirSuffixes)
{
    const QString path = WriteZip(
        m_folder.Path("a.zip"),
        {{"roads.csv", "lon,lat\n13.5,52.5\n"}, {"roads.geojson", Point}, {"town.geojson", OtherPoint}});
    EXPECT_EQ(Names(path), QStringList({"roads.geojson", "town", "roads.csv"}));
    EXPECT_EQ(BoundsOf(path, "roads.geojson"), (Box{1, 2, 1, 2}));
    EXPECT_EQ(DataSource(path).Tables().at(0).layer, "roads.csv");
    EXPECT_EQ(DataSource(path).TableAsLayer("roads.csv", {"lon", "lat", {}}).extent.minX, 13.5);
}

TEST_F(OpenedDataTest, FilesOfOneNameInOneFolderAreToldApartToo)
{
    const QString path = WriteZip(
        m_folder.Path("a.zip"),
        {{"a/roads.geojson", Point}, {"b/roads.geojson", OtherPoint}, {"b/roads.json", Point}});
    EXPECT_EQ(Names(path), QStringList({"a/roads", "b/roads.geojson", "b/roads.json"}));
    EXPECT_EQ(BoundsOf(path, "b/roads.geojson"), (Box{8, 9, 8, 9}));
    EXPECT_EQ(BoundsOf(path, "b/roads.json"), (Box{1, 2, 1, 2}));
}

TEST_F(OpenedDataTest, AnEarlierNameOfSeveralFilesStillOpensTheFirst)
{
    const QString path
        = WriteZip(m_folder.Path("a.zip"), {{"roads.geojson", Point}, {"roads.json", OtherPoint}});
    EXPECT_TRUE(DataSource(path).Has("roads"));
    EXPECT_EQ(BoundsOf(path, "roads"), (Box{1, 2, 1, 2}));
}

TEST_F(OpenedDataTest, TheFormatOfALayerIsThatOfItsFile)
{
    const QString path = WriteZip(
        m_folder.Path("a.zip"), {{"a.geojson", Point}, {"b.kml", R"(<kml><Document><Folder><name>b</name>
<Placemark><Point><coordinates>1,2</coordinates></Point></Placemark></Folder></Document></kml>)"}});
    EXPECT_EQ(DataSource(path).Details("a").driver, "GeoJSON");
    EXPECT_TRUE(DataSource(path).Details("b").driver.contains("KML"));
}

TEST_F(OpenedDataTest, AZippedShapefileIsReadWithItsCompanions)
{
    QDir(m_folder.Path("")).mkdir("shapes");
    WriteVector(
        "ESRI Shapefile", m_folder.Path("shapes/lake.shp"), "lake", wkbPolygon,
        {"POLYGON((0 0,5 0,5 5,0 0))"});
    const auto part
        = [&](const char* suffix) { return Content(m_folder.Path("shapes/lake.") + QLatin1String(suffix)); };
    const QString path = WriteZip(
        m_folder.Path("lake.zip"),
        {{"data/lake.shp", part("shp")},
         {"data/lake.shx", part("shx")},
         {"data/lake.dbf", part("dbf")},
         {"data/lake.prj", part("prj")},
         {"readme.txt", "about the lake"}});
    EXPECT_EQ(Names(path), QStringList("lake"));
    EXPECT_EQ(DataSource(path).Layers()[0].system, "EPSG:4326");
    EXPECT_EQ(BoundsOf(path, "lake"), (Box{0, 0, 5, 5}));
    EXPECT_TRUE(DataSource(path).UnopenedFiles().isEmpty());
}

TEST_F(OpenedDataTest, FilesInAnArchiveThatCannotBeReadAreNamed)
{
    const QString path = WriteZip(m_folder.Path("a.zip"), {{"bad.shp", "x"}, {"good.geojson", Point}});
    EXPECT_EQ(DataSource(path).UnopenedFiles(), QStringList("bad.shp"));
    EXPECT_EQ(Names(path), QStringList("good"));
}

TEST_F(OpenedDataTest, ATableInAnArchiveStandsBesideItsLayers)
{
    const QString path
        = WriteZip(m_folder.Path("a.zip"), {{"towns.csv", "lon,lat\n13.5,52.5\n"}, {"roads.geojson", Point}});
    EXPECT_EQ(Names(path), QStringList({"roads", "towns"}));
    ASSERT_EQ(DataSource(path).Tables().size(), 1u);
    EXPECT_EQ(DataSource(path).Tables()[0].layer, "towns");
}

TEST_F(OpenedDataTest, AnArchiveWithoutDataIsAnErrorThatNamesIt)
{
    const QString path = WriteZip(m_folder.Path("letters.zip"), {{"letter.doc", "Dear Sir"}});
    EXPECT_TRUE(ErrorOf(path).contains("letters.zip")) << qPrintable(ErrorOf(path));
    EXPECT_TRUE(ErrorOf(m_folder.Write("broken.zip", "no archive")).contains("broken.zip"));
}

TEST_F(OpenedDataTest, ACompressedFileIsReadAndLeavesNoOtherFile)
{
    const QString path = m_folder.Path("towns.geojson.gz");
    WriteThroughGdal("/vsigzip/" + path, Point);
    ASSERT_EQ(Names(path).size(), 1);
    EXPECT_EQ(BoundsOf(path, Names(path)[0]), (Box{1, 2, 1, 2}));
    EXPECT_EQ(QDir(m_folder.Path("")).entryList(QDir::Files), QStringList("towns.geojson.gz"));
}

TEST_F(OpenedDataTest, ACompressedTableIsATable)
{
    const QString path = m_folder.Path("towns.csv.gz");
    WriteThroughGdal("/vsigzip/" + path, "lon,lat\n13.5,52.5\n");
    ASSERT_EQ(DataSource(path).Tables().size(), 1u);
    EXPECT_EQ(DataSource(path).Tables()[0].columns, QStringList({"lon", "lat"}));
}

TEST_F(OpenedDataTest, AFlatGeobufIsRead)
{
    const QString path = WriteVector(
        "FlatGeobuf", m_folder.Path("lines.fgb"), "lines", wkbLineString, {"LINESTRING(1 2,3 4)"});
    EXPECT_EQ(BoundsOf(path, "lines"), (Box{1, 2, 3, 4}));
}

TEST_F(OpenedDataTest, AFormatWithoutDriverIsNamed)
{
    const QString path = m_folder.Write("places.parquet", "PAR1");
    GDALAllRegister();
    if (GetGDALDriverManager()->GetDriverByName("Parquet"))
        GTEST_SKIP() << "GDAL has the driver";
    EXPECT_TRUE(ErrorOf(path).contains("GeoParquet")) << qPrintable(ErrorOf(path));
    EXPECT_TRUE(ErrorOf(path).contains("places.parquet")) << qPrintable(ErrorOf(path));
}

} // namespace Orvane
