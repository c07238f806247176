// SPDX-License-Identifier: MIT
// Rasters among the data that are opened.
#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/RawDatabase.h"
#include "mapkit/UnnamedFile.h"
#include "mapkit/ZipFile.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/MapRaster.h"
#include "mapkit/document/MapDocument.h"
#include "mapkit/files/ReadingBound.h"
#include "shell/map/ImportPlan.h"
#include "support/ProcessorTime.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>
#include <QFile>

#include <gmock/gmock.h>

namespace Orvane {

using namespace Testing;

namespace {

const std::array<double, 6> UtmPlace = {500000, 100, 0, 5510000, 0, -100};

double Grey(int, int, int)
{
    return 99;
}

QByteArray ReadAll(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

class RasterImportTest : public testing::Test
{
protected:
    QString Raster(const QString& name, const RasterSpec& spec = {}) const
    {
        WriteRaster(m_folder.Path(name), spec, Grey);
        return m_folder.Path(name);
    }

    FoundData Found(const QStringList& paths) { return LookInto(paths, m_progress); }
    ImportPlan Plan(const QStringList& paths, const ImportTarget& target = {})
    {
        return PlanImport(Found(paths), target, m_progress);
    }

    DataFolder m_folder;
    Progress m_progress;
    std::atomic<bool> m_cancelled = false;
};

} // namespace

TEST_F(RasterImportTest, ARasterIsALayer)
{
    const FoundData data = Found({Raster("photo.tif")});
    ASSERT_EQ(LayerCount(data), 1u);
    const SourceLayer& layer = data.sources[0].layers[0];
    EXPECT_EQ(layer.dataKind, DataKind::Raster);
    EXPECT_EQ(layer.system, "EPSG:4326");
    EXPECT_EQ(layer.extent, (Box{0, 0, 10, 10}));
    EXPECT_TRUE(data.problems.empty());
}

TEST_F(RasterImportTest, ItIsNamedAfterItsFileAndLiesBelowAllOthers)
{
    const FoundData data = Found({Raster("photo.tif"), m_folder.WriteSquare("square.geojson")});
    const NewLayer raster = LayerFor(data.sources[0].path, data.sources[0].layers[0], 0);
    const NewLayer square = LayerFor(data.sources[1].path, data.sources[1].layers[0], 1);
    EXPECT_EQ(raster.name, "photo");
    EXPECT_GT(raster.priority, square.priority);
    EXPECT_EQ(raster.kind, DataKind::Raster);
    EXPECT_EQ(square.kind, DataKind::Features);
}

TEST_F(RasterImportTest, ItsDataAreReadWithTheOthers)
{
    auto document = MapDocument::Untitled();
    const FoundData data = Found({m_folder.WriteSquare("square.geojson"), Raster("photo.tif")});
    const QString system = SystemFor(*document, data);
    const SourceContents read = ReadFound(data, system, m_progress);
    const std::vector<qint32> layerIDs = AddToMap(*document, data);
    const SourceContents contents = WithIDs(read, layerIDs);
    ASSERT_EQ(layerIDs.size(), 2u);
    EXPECT_TRUE(contents.features.contains(layerIDs[0]));
    EXPECT_TRUE(contents.rasters.contains(layerIDs[1]));
    EXPECT_EQ(document->SourceOf(layerIDs[1])->kind, DataKind::Raster);
}

TEST_F(RasterImportTest, APictureWithoutAPlaceIsRefusedWithWhatIsMissing)
{
    const FoundData data = Found({Raster("photo.tif", {.system = nullptr, .isPlaced = false})});
    EXPECT_EQ(LayerCount(data), 0u);
    ASSERT_EQ(data.problems.size(), 1u);
    EXPECT_TRUE(data.problems[0].text.contains("photo.tif") && data.problems[0].text.contains("photo.tfw"))
        << qPrintable(data.problems[0].text);
}

TEST_F(RasterImportTest, AWorldFileIsEnough)
{
    const QString path = Raster("photo.tif", {.system = nullptr, .isPlaced = false});
    m_folder.Write("photo.tfw", "0.1\n0\n0\n-0.1\n20.05\n29.95\n");
    const FoundData data = Found({path});
    ASSERT_EQ(LayerCount(data), 1u);
    EXPECT_EQ(data.sources[0].layers[0].extent, (Box{20, 20, 30, 30}));
    EXPECT_EQ(data.sources[0].layers[0].system, "");
}

TEST_F(RasterImportTest, RastersInAnArchiveAreLayersAmongItsOtherData)
{
    const QString square = m_folder.WriteSquare("square.geojson");
    const QString zip = m_folder.Path("town.zip");
    WriteZip(
        zip,
        {{"square.geojson", ReadAll(square)},
         {"photos/east.tif", ReadAll(Raster("a.tif"))},
         {"west.tif", ReadAll(Raster("b.tif"))}});
    const FoundData data = Found({zip});
    EXPECT_TRUE(data.problems.empty()) << qPrintable(data.ProblemText());
    ASSERT_EQ(data.sources.size(), 1u);
    QStringList names;
    for (const SourceLayer& layer : data.sources[0].layers)
        names << LayerFor(zip, layer, 0).name;
    EXPECT_EQ(names, QStringList({"square", "east", "west"}));
    const SourceContents contents = ReadFound(data, "EPSG:4326", m_progress);
    ASSERT_EQ(contents.rasters.size(), 2u) << qPrintable(contents.FailureText());
    EXPECT_EQ(contents.rasters.at(1)->Extent(), (Box{0, 0, 10, 10}));
}

TEST_F(RasterImportTest, EachRasterOfAGeoPackageIsALayerBesideItsFeatures)
{
    const QString path
        = WriteVector("GPKG", m_folder.Path("town.gpkg"), "roads", wkbLineString, {"LINESTRING(0 0,1 1)"});
    WriteRasterTable(path, "ortho.2020", 50);
    WriteRasterTable(path, "ortho.2021", 150);
    const FoundData data = Found({path});
    EXPECT_TRUE(data.problems.empty()) << qPrintable(data.ProblemText());
    ASSERT_EQ(data.sources.size(), 1u);
    QStringList names;
    for (const SourceLayer& layer : data.sources[0].layers)
        names << LayerFor(path, layer, 0).name;
    EXPECT_EQ(names, QStringList({"roads", "ortho.2020", "ortho.2021"}));
    const SourceContents contents = ReadFound(data, "EPSG:4326", m_progress);
    ASSERT_EQ(contents.rasters.size(), 2u) << qPrintable(contents.FailureText());
    for (const auto& [number, grey] : {std::pair(1, 50), std::pair(2, 150)}) {
        const QImage image = contents.rasters.at(number)->Draw({0, 0, 10, 10}, {10, 10}, m_cancelled);
        EXPECT_EQ(image.pixelColor(5, 5), QColor(grey, grey, grey));
    }
}

TEST_F(RasterImportTest, TheOnlyRasterOfAGeoPackageStaysTheSameBesideALaterOne)
{
    const QString path = m_folder.Path("photo.gpkg");
    WriteRasterTable(path, "tiles", 50);
    const FoundData data = Found({path});
    ASSERT_EQ(LayerCount(data), 1u) << qPrintable(data.ProblemText());
    EXPECT_EQ(data.sources[0].layers[0].name, "tiles");
    EXPECT_EQ(LayerFor(path, data.sources[0].layers[0], 0).name, "tiles");
    WriteRasterTable(path, "later", 150);
    const SourceContents contents = ReadFound(data, "EPSG:4326", m_progress);
    ASSERT_EQ(contents.rasters.size(), 1u) << qPrintable(contents.FailureText());
    const QImage image = contents.rasters.at(0)->Draw({0, 0, 10, 10}, {10, 10}, m_cancelled);
    EXPECT_EQ(image.pixelColor(5, 5), QColor(50, 50, 50));
}

TEST_F(RasterImportTest, AGeoPackageWhoseRastersAreCountedWithoutAnEndIsGivenUpByName)
{
    const QString path = m_folder.Path("photo.gpkg");
    WriteRasterTable(path, "tiles", 50);
    {
        RawDatabase file(path);
        file.Run("DROP TABLE gpkg_tile_matrix_set");
        file.Run("CREATE VIEW gpkg_tile_matrix_set AS"
                 " WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)"
                 " SELECT 'x' || i AS table_name, 4326 AS srs_id, 0 AS min_x, 0 AS min_y, 9 AS max_x,"
                 " 9 AS max_y FROM n");
    }
    const ProcessorTime time{std::chrono::seconds(20)};
    const ReadingBound soon(std::chrono::milliseconds(200));
    const FoundData data = Found({path});
    ASSERT_EQ(data.problems.size(), 1u) << qPrintable(data.ProblemText());
    EXPECT_TRUE(data.problems[0].text.contains("photo.gpkg")) << qPrintable(data.ProblemText());
    EXPECT_TRUE(data.problems[0].text.contains("takes too long")) << qPrintable(data.ProblemText());
}

TEST_F(RasterImportTest, ARasterThatIsNotInItsGeoPackageIsNotReplacedByAnother)
{
    const QString path = m_folder.Path("photo.gpkg");
    WriteRasterTable(path, "tiles", 50);
    EXPECT_THROW(RasterSource(path, "others"), RunTimeError);
}

TEST_F(RasterImportTest, ABrokenRasterInAnArchiveIsNamedAndTheOthersAreFound)
{
    const QString zip = m_folder.Path("town.zip");
    WriteZip(zip, {{"cut.tif", "II*"}, {"west.tif", ReadAll(Raster("b.tif"))}});
    const FoundData data = Found({zip});
    EXPECT_EQ(LayerCount(data), 1u);
    EXPECT_EQ(data.problems.size(), 1u);
}

TEST_F(RasterImportTest, ABrokenRasterIsNamed)
{
    const FoundData data = Found({m_folder.Write("cut.tif", "II*")});
    ASSERT_EQ(data.problems.size(), 1u);
    EXPECT_TRUE(data.problems[0].text.contains("cut.tif"));
}

TEST_F(RasterImportTest, AFolderGivesItsRastersButNoPhotosFromElsewhere)
{
    QDir(m_folder.Path("")).mkpath("data");
    Raster("data/photo.tif");
    m_folder.Write("data/holiday.jpg", "any picture");
    const FoundData data = Found({m_folder.Path("data")});
    EXPECT_EQ(LayerCount(data), 1u);
    EXPECT_TRUE(data.problems.empty()) << qPrintable(data.ProblemText());
}

TEST_F(RasterImportTest, DegreesAreAssumedForARasterThatNamesNoSystemAndTold)
{
    const ImportPlan plan = Plan({Raster("photo.tif", {.system = nullptr})});
    EXPECT_EQ(plan.data.sources[0].layers[0].chosenSystem, "EPSG:4326");
    ASSERT_EQ(plan.notes.size(), 1u);
    EXPECT_EQ(plan.notes[0].names, QStringList("photo.tif"));
}

TEST_F(RasterImportTest, TheChosenSystemHoldsForARasterThatNamesNone)
{
    const ImportPlan plan
        = Plan({Raster("photo.tif", {.transform = UtmPlace, .system = nullptr})}, {{}, {}, "EPSG:32632"});
    EXPECT_EQ(plan.data.sources[0].layers[0].chosenSystem, "EPSG:32632");
}

TEST_F(RasterImportTest, TheRastersOfAMapCountForThePlaceOfOtherData)
{
    auto document = MapDocument::Untitled();
    AddToMap(*document, Found({Raster("photo.tif", {.transform = UtmPlace, .system = "EPSG:32632"})}));
    document->SetSystem("EPSG:3857");
    const Box placed
        = ReadFound(Found({m_folder.Path("photo.tif")}), "EPSG:3857", m_progress).rasters.at(0)->Extent();
    const QString beside = WriteUnnamed(m_folder.Path("beside.shp"), placed);
    const ImportPlan plan = Plan({beside}, TargetOf(*document));
    EXPECT_EQ(plan.data.sources[0].layers[0].chosenSystem, "EPSG:3857");
}

} // namespace Orvane
