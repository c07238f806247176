// SPDX-License-Identifier: MIT
// Files that would be read for ever: they name a pipe, or hold a query without an end.
#include "mapkit/DataFolder.h"
#include "mapkit/RawDatabase.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/AttributeColumn.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/EmptyLayer.h"
#include "mapkit/data/RasterSource.h"
#include "mapkit/data/SourceEditor.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/files/ReadingBound.h"
#include "support/ProcessorTime.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QFile>

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

namespace Orvane {

using namespace Testing;

namespace {

constexpr std::chrono::milliseconds Short{50};
constexpr auto Counting = "WITH RECURSIVE n (i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n)";

class EndlessDataTest : public testing::Test
{
protected:
    // What the action raises; empty if it raises nothing.
    template <typename Action> static QString ErrorOf(Action&& action)
    {
        try {
            action();
        } catch (const RunTimeError& error) {
            return error.Description();
        }
        return {};
    }

    QString Pipe(const QString& name) const
    {
        const QString path = m_folder.Path(name);
        EXPECT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
        return path;
    }

    QString Vrt(const QString& name, const QString& source) const
    {
        return m_folder.Write(
            name,
            "<OGRVRTDataSource><OGRVRTLayer name=\"a\"><SrcDataSource>" + source.toUtf8()
                + "</SrcDataSource><SrcLayer>a</SrcLayer></OGRVRTLayer></OGRVRTDataSource>");
    }

    // A GeoPackage with an empty layer "roads", and a layer "endless" of that query.
    QString WithView(const QByteArray& query) const
    {
        const QString path = m_folder.Path("view.gpkg");
        EXPECT_EQ(CreateEmptyLayer(path, "roads", FeatureKind::Point, "EPSG:4326"), "roads");
        RawDatabase file(path);
        file.Run(("CREATE VIEW endless AS " + query).constData());
        file.Run("INSERT INTO gpkg_contents (table_name, data_type, identifier, srs_id)"
                 " VALUES ('endless', 'features', 'endless', 4326)");
        file.Run("INSERT INTO gpkg_geometry_columns VALUES ('endless', 'geom', 'POINT', 4326, 0, 0)");
        return path;
    }

    QString WithEndlessView() const
    {
        return WithView(
            QByteArray(Counting) + " SELECT i AS fid, NULL AS geom, 'a' AS name FROM n ORDER BY -i");
    }

    QString ErrorOfReading(const QString& path, const QString& layer)
    {
        return ErrorOf([&] {
            const ReadingBound bound(Short);
            DataSource(path).Read(layer, {}, "EPSG:4326", m_progress);
        });
    }

    QString ErrorOfDrawing(const QString& source) const
    {
        const QString path = m_folder.Write(
            "picture.vrt",
            "<VRTDataset rasterXSize=\"9\" rasterYSize=\"9\"><SRS>EPSG:4326</SRS><GeoTransform>0,1,0,9,0,-1"
            "</GeoTransform><VRTRasterBand dataType=\"Byte\" band=\"1\"><SimpleSource><SourceFilename>"
                + source.toUtf8()
                + "</SourceFilename><SourceBand>1</SourceBand></SimpleSource></VRTRasterBand></VRTDataset>");
        const std::atomic<bool> cancelled = false;
        return ErrorOf([&] { RasterSource(path).Draw("EPSG:4326", {0, 0, 9, 9}, {9, 9}, cancelled); });
    }

    const ProcessorTime m_time{std::chrono::seconds(20)};
    DataFolder m_folder;
    Progress m_progress;
};

} // namespace

TEST_F(EndlessDataTest, APipeThatAVirtualFileNamesIsRefusedByName)
{
    const QString path = Vrt("layers.vrt", Pipe("pipe.geojson"));
    const QString error = ErrorOfReading(path, "a");
    EXPECT_TRUE(error.contains("layers.vrt")) << qPrintable(error);
    EXPECT_TRUE(error.contains("pipe.geojson")) << qPrintable(error);
}

TEST_F(EndlessDataTest, APipeBehindTheNameOfAFormatIsNotWaitedFor)
{
    const QString pipe = Pipe("pipe");
    for (const QString& source :
         {"GPKG:" + pipe + ":a",
          "SQLITE:" + pipe,
          "NETCDF:" + pipe + ":a",
          "HDF5:" + pipe + "://a",
          "HDF4_SDS:UNKNOWN:" + pipe + ":0",
          "FITS:" + pipe + ":1",
          "/vsizip/" + pipe,
          "/vsigzip/" + pipe,
          "/vsitar/" + pipe,
          "/vsisubfile/0_9," + pipe,
          "CSV:" + pipe,
          "S57:" + pipe,
          "MVT:" + pipe,
          "PDF:1:" + pipe,
          "GTIFF_DIR:1:" + pipe,
          "ZARR:" + pipe,
          "JP2:" + pipe,
          "TOPOJSON:" + pipe,
          "GeoJSON:" + pipe,
          "GML:" + pipe,
          "XLSX:" + pipe,
          "DXF:" + pipe})
        EXPECT_FALSE(ErrorOfReading(Vrt("named.vrt", source), "a").isEmpty()) << qPrintable(source);
}

TEST_F(EndlessDataTest, APipeWithTheExtensionOfAFormatIsNotWaitedFor)
{
    for (const char* name :
         {"p.gpkg", "p.sqlite", "p.db",  "p.mbtiles", "p.shp",  "p.nc",  "p.h5",  "p.hdf", "p.xls",
          "p.xlsx", "p.ods",    "p.sos", "p.vfk",     "p.fits", "p.dgn", "p.dwg", "p.dxf", "p.pdf",
          "p.tab",  "p.mif",    "p.gml", "p.osm.pbf", "p.000",  "p.map", "p.e00", "p.fgb", "p.jp2",
          "p.tif",  "p.kmz",    "p.kml", "p.gdb.zip", "p.mdb",  "p.csv"})
        EXPECT_FALSE(ErrorOfReading(Vrt("named.vrt", Pipe(name)), "a").isEmpty()) << name;
}

TEST_F(EndlessDataTest, APipeInPlaceOfAJournalIsNotWaitedFor)
{
    for (const char* suffix : {"-journal", "-wal", "-shm"}) {
        const QString path = m_folder.Path("roads.gpkg");
        CreateEmptyLayer(path, "a", FeatureKind::Point, "EPSG:4326");
        const QString pipe = Pipe("roads.gpkg" + QString(suffix));
        ErrorOfReading(Vrt("named.vrt", path), "a"); // must only end
        EXPECT_TRUE(QFile::remove(pipe));
        EXPECT_TRUE(QFile::remove(path));
    }
}

TEST_F(EndlessDataTest, APipeThatAVirtualPictureNamesIsNotWaitedFor)
{
    const QString pipe = Pipe("pipe.tif");
    for (const QString& source :
         {pipe,
          "NETCDF:" + pipe + ":a",
          "HDF5:" + pipe + "://a",
          "HDF4_SDS:UNKNOWN:" + pipe + ":0",
          "HDF4_EOS:EOS_GRID:" + pipe + ":a:b",
          "FITS:" + pipe + ":1",
          "GTIFF_DIR:1:" + pipe,
          "BAG:" + pipe,
          "RASTERLITE:" + pipe,
          "GPKG:" + pipe + ":a",
          "ZARR:" + pipe,
          "NITF_IM:0:" + pipe,
          "PDF:1:" + pipe,
          "SENTINEL2_L1C:" + pipe + ":10m:EPSG_32632",
          "NITF_TOC_ENTRY:a:" + pipe,
          "DERIVED_SUBDATASET:LOGAMPLITUDE:" + pipe,
          "KEA:" + pipe,
          "GRIB:" + pipe,
          "JPEG_SUBFILE:0,9," + pipe,
          "SAFE:" + pipe,
          "ISIS3:" + pipe})
        EXPECT_FALSE(ErrorOfDrawing(source).isEmpty()) << qPrintable(source);
}

TEST_F(EndlessDataTest, OrdinaryFilesThatAVirtualFileNamesAreRead)
{
    const QString path = m_folder.WriteSquare("a.geojson");
    EXPECT_EQ(ErrorOfReading(Vrt("layers.vrt", path), "a"), QString());
}

TEST_F(EndlessDataTest, AViewWithoutAnEndIsGivenUpByName)
{
    const QString error = ErrorOfReading(WithEndlessView(), "endless");
    EXPECT_TRUE(error.contains("view.gpkg") && error.contains("too long")) << qPrintable(error);
}

TEST_F(EndlessDataTest, AQueryWithoutAnEndInAVirtualFileIsGivenUp)
{
    const QString source = WithEndlessView();
    for (const char* dialect : {"", " dialect=\"SQLITE\""}) {
        const QString path = m_folder.Write(
            "query.vrt",
            "<OGRVRTDataSource><OGRVRTLayer name=\"a\"><SrcDataSource>" + source.toUtf8()
                + "</SrcDataSource><SrcSQL" + dialect + ">" + Counting
                + " SELECT max(i) AS n FROM n</SrcSQL></OGRVRTLayer></OGRVRTDataSource>");
        EXPECT_FALSE(ErrorOfReading(path, "a").isEmpty()) << dialect;
    }
}

TEST_F(EndlessDataTest, AViewWhoseRowsHaveNoGeometryIsGivenUpToo)
{
    const QString path = WithView(QByteArray(Counting) + " SELECT i AS fid, NULL AS geom FROM n");
    const QString error = ErrorOfReading(path, "endless");
    EXPECT_TRUE(error.contains("too long")) << qPrintable(error);
}

TEST_F(EndlessDataTest, AnAttributeOfAViewWithoutAnEndIsGivenUp)
{
    const QString path = WithEndlessView();
    const auto readField = [&] {
        const ReadingBound bound(Short);
        DataSource(path).ReadField("endless", {}, "name", m_progress);
    };
    const auto readAll = [&] {
        const ReadingBound bound(Short);
        DataSource(path).Attributes("endless", -1);
    };
    EXPECT_TRUE(ErrorOf(readField).contains("too long")) << qPrintable(ErrorOf(readField));
    EXPECT_TRUE(ErrorOf(readAll).contains("too long")) << qPrintable(ErrorOf(readAll));
}

TEST_F(EndlessDataTest, CancellingEndsAQueryWithoutAnEnd)
{
    const QString path = WithEndlessView();
    std::thread user([&] { m_progress.Cancel(); });
    const SourceContents contents = ReadSources({{1, path, "endless", {}}}, "EPSG:4326", m_progress);
    user.join();
    EXPECT_TRUE(contents.features.empty());
    EXPECT_TRUE(contents.failures.empty());
}

TEST_F(EndlessDataTest, ATriggerWithoutAnEndIsGivenUp)
{
    const QString path = WithEndlessView();
    {
        RawDatabase file(path);
        file.Run("DROP TRIGGER rtree_roads_geom_insert"); // it uses functions of GDAL's
        file.Run("INSERT INTO roads (fid) VALUES (1)");
        file.Run("CREATE TRIGGER slow BEFORE UPDATE ON roads BEGIN SELECT max(fid) FROM endless; END");
    }
    const QString error = ErrorOf([&] {
        const ReadingBound bound(Short);
        SourceEditor({1, path, "roads", {}}).SetGeometry(1, QByteArray());
    });
    EXPECT_TRUE(error.contains("view.gpkg") && error.contains("too long")) << qPrintable(error);
}

TEST_F(EndlessDataTest, VirtualFilesThatMultiplyAreGivenUp)
{
    m_folder.WriteSquare("layer0.geojson");
    QString inner = m_folder.Path("layer0.geojson");
    for (int i = 1; i <= 25; ++i) {
        const QByteArray one = "<OGRVRTLayer name=\"layer0\"><SrcDataSource>" + inner.toUtf8()
            + "</SrcDataSource><SrcLayer>layer0</SrcLayer></OGRVRTLayer>";
        inner = m_folder.Write(
            "layer" + QString::number(i) + ".vrt",
            "<OGRVRTDataSource><OGRVRTUnionLayer name=\"layer0\">" + one + one
                + "</OGRVRTUnionLayer></OGRVRTDataSource>");
    }
    EXPECT_FALSE(ErrorOfReading(inner, "layer0").isEmpty());
}

TEST_F(EndlessDataTest, WhatIsReadInTimeIsRead)
{
    const QString path = WithView("SELECT 1 AS fid, NULL AS geom, 'Main Street' AS name");
    const auto values = DataSource(path).ReadField("endless", {}, "name", m_progress);
    ASSERT_EQ(values.size(), 1u);
    EXPECT_EQ(values.at(1).text, "Main Street");
}

} // namespace Orvane
