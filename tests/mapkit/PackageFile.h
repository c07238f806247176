// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/RawDatabase.h"
#include "mapkit/common/GdalErrors.h"
#include "mapkit/files/GdalSetup.h"

#include <QByteArrayList>

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <ogr_spatialref.h>
#include <ogrsf_frmts.h>

namespace Orvane::Testing {

/// A layer of a PackageFile.
struct PackageSpec {
    QByteArray name = "roads";
    OGRwkbGeometryType type = wkbUnknown;
    int system = 4326; ///< EPSG's number
    QByteArrayList geometries = {"POINT (1 2)"}; ///< WKT; an empty text for a feature without one
};

/// Adds a layer, as GDAL writes it, to a GeoPackage, which is made if there is none.
inline void AddToPackage(const QString& path, const PackageSpec& spec)
{
    PrepareGdal();
    const GdalErrors quiet;
    const QByteArray name = path.toUtf8();
    constexpr unsigned flags = GDAL_OF_VECTOR | GDAL_OF_UPDATE;
    VSIStatBufL status;
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("GPKG");
    const std::unique_ptr<GDALDataset> file(
        VSIStatL(name.constData(), &status) == 0
            ? GDALDataset::Open(name.constData(), flags)
            : driver->Create(name.constData(), 0, 0, 0, GDT_Unknown, nullptr));
    ASSERT_TRUE(file);
    OGRSpatialReference system;
    system.importFromEPSG(spec.system);
    system.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    OGRLayer* layer = file->CreateLayer(spec.name.constData(), &system, spec.type);
    ASSERT_TRUE(layer);
    OGRFieldDefn field("name", OFTString);
    layer->CreateField(&field);
    file->StartTransaction();
    for (const QByteArray& text : spec.geometries) {
        OGRFeature feature(layer->GetLayerDefn());
        OGRGeometry* geometry = nullptr;
        if (!text.isEmpty())
            ASSERT_EQ(OGRGeometryFactory::createFromWkt(text.constData(), nullptr, &geometry), OGRERR_NONE)
                << text.constData();
        feature.SetGeometryDirectly(geometry);
        feature.SetField(0, "some name");
        ASSERT_EQ(layer->CreateFeature(&feature), OGRERR_NONE);
    }
    file->CommitTransaction();
}

/// Runs statements on a GeoPackage, without its triggers.
inline void ChangePackage(const QString& path, const QByteArray& sql)
{
    RawDatabase file(path);
    file.LeaveTriggersOut();
    file.Run(sql.constData());
}

} // namespace Orvane::Testing
