// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QPair>
#include <QString>

#include <cpl_vsi.h>
#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <ogrsf_frmts.h>

namespace Orvane::Testing {

/// Writes a file through one of GDAL's file systems.
inline void WriteThroughGdal(const QString& name, const QByteArray& content)
{
    VSILFILE* file = VSIFOpenL(name.toUtf8().constData(), "wb");
    ASSERT_TRUE(file) << qPrintable(name);
    EXPECT_EQ(VSIFWriteL(content.constData(), 1, size_t(content.size()), file), size_t(content.size()));
    VSIFCloseL(file);
}

/// Writes a zip archive with these files; their names may have folders. Returns the path.
inline QString WriteZip(const QString& path, std::initializer_list<QPair<const char*, QByteArray>> files)
{
    const QString archive = "/vsizip/" + path;
    VSILFILE* all = VSIFOpenL(archive.toUtf8().constData(), "wb");
    EXPECT_TRUE(all) << qPrintable(path);
    for (const auto& [name, content] : files)
        WriteThroughGdal(archive + "/" + name, content);
    VSIFCloseL(all);
    return path;
}

/// Writes a vector file with GDAL's driver: one layer with these geometries, as well-known text in degrees.
inline QString WriteVector(
    const char* driver, const QString& path, const char* layer, OGRwkbGeometryType type,
    std::initializer_list<const char*> geometries)
{
    GDALAllRegister();
    GDALDriver* writer = GetGDALDriverManager()->GetDriverByName(driver);
    EXPECT_TRUE(writer) << driver;
    const std::unique_ptr<GDALDataset> file(
        writer->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRSpatialReference degrees;
    degrees.SetFromUserInput("EPSG:4326");
    OGRLayer* made = file->CreateLayer(layer, &degrees, type, nullptr);
    EXPECT_TRUE(made);
    for (const char* text : geometries) {
        OGRGeometry* geometry = nullptr;
        OGRGeometryFactory::createFromWkt(text, nullptr, &geometry);
        OGRFeature feature(made->GetLayerDefn());
        feature.SetGeometryDirectly(geometry);
        EXPECT_EQ(made->CreateFeature(&feature), OGRERR_NONE);
    }
    return path;
}

} // namespace Orvane::Testing
