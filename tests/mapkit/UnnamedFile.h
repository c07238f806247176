// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/files/GdalSetup.h"

#include <QFileInfo>
#include <QString>

#include <gdal_priv.h>
#include <gtest/gtest.h>
#include <memory>
#include <ogrsf_frmts.h>

namespace Orvane::Testing {

/// Writes a shapefile with one rectangle that names no coordinate system. Returns its path.
inline QString WriteUnnamed(const QString& path, const Box& box)
{
    PrepareGdal();
    GDALDriver* driver = GetGDALDriverManager()->GetDriverByName("ESRI Shapefile");
    const std::unique_ptr<GDALDataset> file(
        driver->Create(path.toUtf8().constData(), 0, 0, 0, GDT_Unknown, nullptr));
    OGRLayer* layer = file->CreateLayer(
        QFileInfo(path).completeBaseName().toUtf8().constData(), nullptr, wkbPolygon, nullptr);
    OGRFeature feature(layer->GetLayerDefn());
    OGRLinearRing ring;
    ring.addPoint(box.minX, box.minY);
    ring.addPoint(box.minX, box.maxY);
    ring.addPoint(box.maxX, box.maxY);
    ring.addPoint(box.maxX, box.minY);
    ring.closeRings();
    OGRPolygon polygon;
    polygon.addRing(&ring);
    feature.SetGeometry(&polygon);
    EXPECT_EQ(layer->CreateFeature(&feature), OGRERR_NONE);
    return path;
}

} // namespace Orvane::Testing
