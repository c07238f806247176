// SPDX-License-Identifier: MIT
#pragma once

#include <QFile>
#include <QString>

#include <array>
#include <cpl_string.h>
#include <functional>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>

namespace Orvane::Testing {

/// The properties of the file that WriteRaster writes.
struct RasterSpec {
    int width = 100;
    int height = 100;
    int bands = 1;
    GDALDataType type = GDT_Byte;
    std::array<double, 6> transform = {0, 0.1, 0, 10, 0, -0.1}; ///< 0 to 10 degrees east and north
    const char* system = "EPSG:4326"; ///< nullptr for none
    bool isPlaced = true; ///< false: without georeference
};

/// Writes a GeoTIFF whose values come from a function of column, row and band; bands count from 1.
inline void
WriteRaster(const QString& path, const RasterSpec& spec, const std::function<double(int, int, int)>& value)
{
    GDALAllRegister();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GTiff");
    const std::unique_ptr<GDALDataset> file(
        driver->Create(path.toUtf8().constData(), spec.width, spec.height, spec.bands, spec.type, nullptr));
    ASSERT_TRUE(file);
    auto transform = spec.transform;
    if (spec.isPlaced)
        file->SetGeoTransform(transform.data());
    OGRSpatialReference system;
    if (spec.system && system.SetFromUserInput(spec.system) == OGRERR_NONE)
        file->SetSpatialRef(&system);
    std::vector<double> line(size_t(spec.width));
    for (int band = 1; band <= spec.bands; ++band) {
        for (int row = 0; row < spec.height; ++row) {
            for (int column = 0; column < spec.width; ++column)
                line[size_t(column)] = value(column, row, band);
            EXPECT_EQ(
                file->GetRasterBand(band)->RasterIO(
                    GF_Write, 0, row, spec.width, 1, line.data(), spec.width, 1, GDT_Float64, 0, 0, nullptr),
                CE_None);
        }
    }
}

/// Writes a GeoTIFF from 0 to 10 degrees that can be opened, but not drawn as a whole: its end is cut off.
inline void WriteDamagedRaster(const QString& path)
{
    WriteRaster(
        path, {.width = 400, .height = 400, .bands = 3, .transform = {0, 0.025, 0, 10, 0, -0.025}},
        [](int, int, int) { return 9; });
    EXPECT_TRUE(QFile::resize(path, 100000));
}

/// Writes a raster of that value into a table of a GeoPackage, which is made if it does not exist.
inline void WriteRasterTable(const QString& path, const char* table, int value)
{
    const bool isNew = !QFile::exists(path);
    const QString picture = QStringLiteral("/vsimem/") + QLatin1String(table) + QStringLiteral(".tif");
    WriteRaster(picture, {.bands = 3}, [value](int, int, int) { return value; });
    const std::unique_ptr<GDALDataset> from(GDALDataset::Open(picture.toUtf8().constData(), GDAL_OF_RASTER));
    CPLStringList options;
    options.SetNameValue("RASTER_TABLE", table);
    options.SetNameValue("TILE_FORMAT", "PNG");
    if (!isNew)
        options.SetNameValue("APPEND_SUBDATASET", "YES");
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    const std::unique_ptr<GDALDataset> made(
        driver->CreateCopy(path.toUtf8().constData(), from.get(), FALSE, options.List(), nullptr, nullptr));
    EXPECT_TRUE(made) << table;
}

} // namespace Orvane::Testing
