// SPDX-License-Identifier: MIT
#include "mapkit/data/RasterSource.h"

#include "mapkit/DataFolder.h"
#include "mapkit/RasterFile.h"
#include "mapkit/data/DataSource.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QDir>

#include <cpl_conv.h>
#include <gtest/gtest.h>
#include <memory>
#include <ogr_spatialref.h>
#include <sys/resource.h>
#include <vector>

namespace Orvane {

using namespace Testing;

namespace {

constexpr auto Degrees = "EPSG:4326";
const Box World{0, 0, 10, 10}; // what the pictures cover

class RasterSourceTest : public testing::Test
{
protected:
    QString Path() const { return m_folder.Path("photo.tif"); }

    QImage Draw(const Box& extent, QSize pixels, const char* system = Degrees)
    {
        return RasterSource(Path()).Draw(system, extent, pixels, m_cancelled);
    }

    QString ErrorOf(const QString& path, int number = SourceUnreadable)
    {
        try {
            RasterSource source(path);
        } catch (const RunTimeError& error) {
            EXPECT_EQ(error.Number(), number);
            return error.Description();
        }
        ADD_FAILURE() << "no error";
        return {};
    }

    DataFolder m_folder;
    std::atomic<bool> m_cancelled = false;
};

/// While it exists the program can have no more files open than that.
class OpenFilesLimit
{
public:
    explicit OpenFilesLimit(int files)
    {
        EXPECT_EQ(getrlimit(RLIMIT_NOFILE, &m_before), 0);
        rlimit limit = m_before;
        limit.rlim_cur = rlim_t(files);
        EXPECT_EQ(setrlimit(RLIMIT_NOFILE, &limit), 0);
    }
    ~OpenFilesLimit() { setrlimit(RLIMIT_NOFILE, &m_before); }
    OpenFilesLimit(const OpenFilesLimit&) = delete;
    OpenFilesLimit& operator=(const OpenFilesLimit&) = delete;

private:
    rlimit m_before = {};
};

// West is red, east is blue.
double Halves(int column, int, int band)
{
    const bool west = column < 50;
    return (band == 1 && west) || (band == 3 && !west) ? 255 : 0;
}

} // namespace

TEST_F(RasterSourceTest, OpensNoFileThatTheTextForTheMapsSystemNames)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    OGRSpatialReference mercator;
    ASSERT_EQ(mercator.importFromEPSG(3857), OGRERR_NONE);
    char* text = nullptr;
    mercator.exportToWkt(&text);
    const QString file = m_folder.Write("system.wkt", text);
    CPLFree(text);
    const RasterSource source(Path());
    EXPECT_EQ(source.ExtentIn(file), source.Extent());
    EXPECT_NE(source.ExtentIn("EPSG:3857"), source.Extent());
}

TEST_F(RasterSourceTest, MoreAreDrawnThanTheSystemLetsBeOpen)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    const OpenFilesLimit limit(RasterSource::MostKeptOpen + 60);
    std::vector<std::unique_ptr<const RasterSource>> rasters;
    for (int i = 0; i < 300; ++i)
        rasters.push_back(std::make_unique<const RasterSource>(Path()));
    for (const auto& raster : rasters)
        EXPECT_EQ(raster->Draw(Degrees, World, {20, 20}, m_cancelled).pixelColor(5, 5), QColor(Qt::red));
}

TEST_F(RasterSourceTest, ARasterThatIsGoneWhenItIsDrawnIsNamed)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    std::vector<std::unique_ptr<const RasterSource>> rasters;
    for (int i = 0; i <= RasterSource::MostKeptOpen; ++i)
        rasters.push_back(std::make_unique<const RasterSource>(Path()));
    QFile::remove(Path());
    EXPECT_FALSE(rasters.front()->Draw(Degrees, World, {20, 20}, m_cancelled).isNull());
    try {
        rasters.back()->Draw(Degrees, World, {20, 20}, m_cancelled);
        ADD_FAILURE() << "no error";
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Description().contains("photo.tif"));
    }
}

TEST_F(RasterSourceTest, DrawsColoursWhereTheyLie)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    const QImage image = Draw(World, {200, 200});
    ASSERT_EQ(image.size(), QSize(200, 200));
    EXPECT_EQ(image.pixelColor(50, 100), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(150, 100), QColor(Qt::blue));
}

TEST_F(RasterSourceTest, IsTransparentWhereThereIsNoPicture)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    const QImage image = Draw({-10, 0, 10, 10}, {200, 100});
    EXPECT_EQ(qAlpha(image.pixel(50, 50)), 0);
    EXPECT_EQ(image.pixelColor(120, 50), QColor(Qt::red));
}

TEST_F(RasterSourceTest, WarpsIntoTheMapsSystem)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    const RasterSource source(Path());
    const Box extent = source.ExtentIn("EPSG:3857");
    EXPECT_NEAR(extent.maxX, 1113194.9, 20000);
    EXPECT_EQ(source.Extent(), World);
    EXPECT_EQ(source.System(), "EPSG:4326");
    const QImage image = Draw(extent, {100, 100}, "EPSG:3857");
    EXPECT_EQ(image.pixelColor(25, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(75, 50), QColor(Qt::blue));
}

TEST_F(RasterSourceTest, NothingIsDrawnBesideTheGlobe)
{
    WriteRaster(Path(), {.transform = {-180, 3.6, 0, 90, 0, -1.8}}, [](int, int, int) { return 99; });
    const Box globe = RasterSource(Path()).ExtentIn("EPSG:8857");
    const QImage image = Draw(globe, {300, 150}, "EPSG:8857");
    EXPECT_EQ(qAlpha(image.pixel(150, 75)), 255);
    EXPECT_EQ(qAlpha(image.pixel(3, 3)), 0);
    EXPECT_EQ(qAlpha(image.pixel(296, 146)), 0);
}

TEST_F(RasterSourceTest, AWorldUpToThePolesFitsIntoWebMercator)
{
    WriteRaster(Path(), {.bands = 3, .transform = {-180, 3.6, 0, 90, 0, -1.8}}, Halves);
    const Box world = RasterSource(Path()).ExtentIn("EPSG:3857");
    EXPECT_NEAR(world.minX, -20037508, 1);
    EXPECT_NEAR(world.maxX, 20037508, 1);
    EXPECT_NEAR(world.maxY, 20048966, 20000);
    const QImage image = Draw(world, {100, 100}, "EPSG:3857");
    EXPECT_EQ(image.pixelColor(25, 50), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(75, 5), QColor(Qt::blue));
}

TEST_F(RasterSourceTest, AWorldFromZeroTo360IsDrawnOnBothSidesOfGreenwich)
{
    WriteRaster(Path(), {.bands = 3, .transform = {0, 3.6, 0, 90, 0, -1.8}}, Halves);
    const std::pair<const char*, double> halves[] = {{"EPSG:8857", 17243959}, {"EPSG:3857", 20037508}};
    for (const auto& [system, half] : halves) {
        const QImage image = Draw({-half, -half / 2, half, half / 2}, {200, 100}, system);
        EXPECT_EQ(image.pixelColor(4, 50), QColor(Qt::blue)) << system;
        EXPECT_EQ(image.pixelColor(90, 50), QColor(Qt::blue)) << system;
        EXPECT_EQ(image.pixelColor(110, 50), QColor(Qt::red)) << system;
        EXPECT_EQ(image.pixelColor(196, 50), QColor(Qt::red)) << system;
    }
}

TEST_F(RasterSourceTest, APictureOfThePoleReachesTheTopOfWebMercator)
{
    WriteRaster(
        Path(), {.transform = {-4e6, 8e4, 0, 4e6, 0, -8e4}, .system = "EPSG:3413"},
        [](int, int, int) { return 99; });
    const Box place = RasterSource(Path()).ExtentIn("EPSG:3857");
    const QImage image = Draw(place, {200, 100}, "EPSG:3857");
    for (int x = 0; x < image.width(); ++x)
        EXPECT_EQ(qAlpha(image.pixel(x, 1)), 255) << x;
}

TEST_F(RasterSourceTest, ARasterThatIsTurnedHasItsPlaceToo)
{
    WriteRaster(Path(), {.bands = 3, .transform = {5, 0.05, 0.05, 5, 0.05, -0.05}}, Halves);
    const Box place = RasterSource(Path()).ExtentIn("EPSG:3857");
    EXPECT_NEAR(place.minX, 556597, 20000);
    EXPECT_NEAR(place.maxX, 1669792, 20000);
}

TEST_F(RasterSourceTest, APictureWithoutASystemLiesInTheMaps)
{
    WriteRaster(Path(), {.bands = 3, .transform = {0, 10, 0, 1000, 0, -10}, .system = nullptr}, Halves);
    EXPECT_EQ(RasterSource(Path()).System(), "");
    const QImage image = Draw({0, 0, 1000, 1000}, {100, 100}, "EPSG:32632");
    EXPECT_EQ(image.pixelColor(25, 50), QColor(Qt::red));
}

TEST_F(RasterSourceTest, ShowsHeightsInShadesOfGrey)
{
    WriteRaster(Path(), {.type = GDT_Float32}, [](int column, int, int) { return 1000 + column * 10; });
    const QImage image = Draw(World, {100, 100});
    EXPECT_LT(qRed(image.pixel(2, 50)), 20);
    EXPECT_GT(qRed(image.pixel(97, 50)), 235);
    EXPECT_EQ(qRed(image.pixel(50, 50)), qBlue(image.pixel(50, 50)));
    EXPECT_EQ(qAlpha(image.pixel(50, 50)), 255);
}

TEST_F(RasterSourceTest, HeightsThatAreAllTheSameAreDrawn)
{
    WriteRaster(Path(), {.type = GDT_Int16}, [](int, int, int) { return 7; });
    EXPECT_EQ(qAlpha(Draw(World, {50, 50}).pixel(25, 25)), 255);
}

TEST_F(RasterSourceTest, ShowsTheColoursOfAPalette)
{
    WriteRaster(Path(), {}, [](int column, int, int) { return column < 50 ? 1 : 2; });
    {
        const std::unique_ptr<GDALDataset> file(
            GDALDataset::Open(Path().toUtf8().constData(), GDAL_OF_RASTER | GDAL_OF_UPDATE));
        GDALColorTable table;
        const GDALColorEntry green{0, 255, 0, 255};
        table.SetColorEntry(1, &green);
        file->GetRasterBand(1)->SetColorTable(&table);
    }
    EXPECT_EQ(Draw(World, {100, 100}).pixelColor(25, 50), QColor(0, 255, 0));
}

TEST_F(RasterSourceTest, ReadsLittleOfAHugePicture)
{
    GDALAllRegister();
    CPLStringList options;
    options.SetNameValue("SPARSE_OK", "TRUE").SetNameValue("TILED", "YES").SetNameValue("BIGTIFF", "YES");
    {
        const std::unique_ptr<GDALDataset> file(GetGDALDriverManager()->GetDriverByName("GTiff")->Create(
            Path().toUtf8().constData(), 100000, 100000, 1, GDT_Byte, options.List()));
        std::array<double, 6> transform = {0, 0.0001, 0, 10, 0, -0.0001};
        file->SetGeoTransform(transform.data());
    }
    EXPECT_EQ(Draw(World, {64, 64}).size(), QSize(64, 64));
}

TEST_F(RasterSourceTest, NothingInViewIsNoImage)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    EXPECT_TRUE(Draw({50, 50, 60, 60}, {100, 100}).isNull());
}

TEST_F(RasterSourceTest, CancelledDrawingEnds)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    m_cancelled = true;
    EXPECT_TRUE(Draw(World, {100, 100}).isNull());
}

TEST_F(RasterSourceTest, APictureThatDoesNotSayWhereItLiesIsRefused)
{
    WriteRaster(Path(), {.system = nullptr, .isPlaced = false}, Halves);
    const QString error = ErrorOf(Path(), RasterNotPlaced);
    EXPECT_TRUE(error.contains("photo.tif") && error.contains("photo.tfw")) << qPrintable(error);
}

TEST_F(RasterSourceTest, BrokenFilesAreNamed)
{
    WriteRaster(Path(), {.bands = 3}, Halves);
    QFile whole(Path());
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    EXPECT_TRUE(ErrorOf(m_folder.Write("cut.tif", whole.read(50))).contains("cut.tif"));
    EXPECT_TRUE(ErrorOf(m_folder.Write("text.tif", "no picture")).contains("text.tif"));
    EXPECT_TRUE(ErrorOf(m_folder.Write("empty.png", "")).contains("empty.png"));
    EXPECT_TRUE(ErrorOf(m_folder.Path("missing.tif")).contains("missing.tif"));
}

TEST_F(RasterSourceTest, APictureThatIsCutShortIsAnErrorWhenItIsDrawn)
{
    WriteRaster(Path(), {.width = 1000, .height = 1000, .bands = 3}, Halves);
    ASSERT_TRUE(QFile::resize(Path(), 500000));
    EXPECT_THROW(Draw({0, -90, 100, 10}, {1000, 1000}), RunTimeError);
}

TEST_F(RasterSourceTest, AVirtualPictureThatReadsItselfEnds)
{
    const QString path = m_folder.Write(
        "self.vrt",
        R"(<VRTDataset rasterXSize="10" rasterYSize="10"><GeoTransform>0,1,0,10,0,-1</GeoTransform>)"
        R"(<VRTRasterBand dataType="Byte" band="1"><SimpleSource>)"
        R"(<SourceFilename relativeToVRT="1">self.vrt</SourceFilename><SourceBand>1</SourceBand>)"
        R"(<SrcRect xOff="0" yOff="0" xSize="10" ySize="10"/><DstRect xOff="0" yOff="0" xSize="10" ySize="10"/>)"
        R"(</SimpleSource></VRTRasterBand></VRTDataset>)");
    try {
        RasterSource(path).Draw(Degrees, World, {20, 20}, m_cancelled);
    } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.Description().contains("self.vrt"));
    }
}

TEST_F(RasterSourceTest, TellsTheValuesOfAllBandsAtAPlace)
{
    WriteRaster(
        Path(), {.bands = 2}, [](int column, int row, int band) { return band * 100 + column - row; });
    const std::vector<RasterValue> values = RasterSource(Path()).ValuesAt(Degrees, {5.05, 9.95});
    ASSERT_EQ(values.size(), 2u);
    EXPECT_EQ(values[0].band, 1);
    EXPECT_EQ(values[0].number, 150);
    EXPECT_EQ(values[1].number, 250);
}

TEST_F(RasterSourceTest, TellsNoValuesBesideThePicture)
{
    WriteRaster(Path(), {}, [](int, int, int) { return 1; });
    const RasterSource source(Path());
    EXPECT_TRUE(source.ValuesAt(Degrees, {10.01, 5}).empty());
    EXPECT_TRUE(source.ValuesAt(Degrees, {-0.01, 5}).empty());
    EXPECT_EQ(source.ValuesAt(Degrees, {0.01, 0.01}).size(), 1u);
}

TEST_F(RasterSourceTest, FindsTheValuesInTheMapsSystemAndInAChosenOne)
{
    WriteRaster(Path(), {.system = nullptr}, [](int column, int row, int) { return column + row; });
    const RasterSource source(Path(), {}, Degrees);
    EXPECT_EQ(source.ValuesAt({}, {5.05, 9.95}).size(), 1u);
    const std::vector<RasterValue> inMercator = source.ValuesAt("EPSG:3857", {562163, 1113000});
    ASSERT_EQ(inMercator.size(), 1u);
    EXPECT_EQ(inMercator[0].number, 50);
}

TEST_F(RasterSourceTest, TellsWhereThereAreNoDataAndWhatANumberMeans)
{
    WriteRaster(
        Path(), {.type = GDT_Float32}, [](int column, int, int) { return column < 50 ? -9999 : 0.1; });
    {
        const std::unique_ptr<GDALDataset> file(
            GDALDataset::Open(Path().toUtf8().constData(), GDAL_OF_RASTER | GDAL_OF_UPDATE));
        GDALRasterBand& band = *file->GetRasterBand(1);
        band.SetNoDataValue(-9999);
        band.SetUnitType("m");
        band.SetDescription("Height");
        band.SetScale(2);
        band.SetOffset(100);
    }
    const RasterSource source(Path());
    const std::vector<RasterValue> none = source.ValuesAt(Degrees, {1, 5});
    ASSERT_EQ(none.size(), 1u);
    EXPECT_EQ(none[0].number, std::nullopt);
    const std::vector<RasterValue> some = source.ValuesAt(Degrees, {9, 5});
    ASSERT_EQ(some.size(), 1u);
    EXPECT_EQ(some[0].number, 2 * 0.1 + 100);
    EXPECT_EQ(some[0].unit, "m");
    EXPECT_EQ(some[0].description, "Height");
}

} // namespace Orvane
