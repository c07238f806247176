// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QPoint>
#include <QPointF>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>

class GDALDataset;

namespace Orvane {

/// Where a raster lies in a map.
struct RasterPlace {
    Box extent; ///< map units; empty if it cannot be shown in the map's system
    double unitsPerPixel = 0; ///< size of one of its pixels in map units
};

/// The coordinate systems between which a raster is warped.
struct RasterSystems {
    QString map; ///< empty if the map has none
    QString chosen; ///< for the raster, instead of the one that it names; empty for that one
};

/// Part of a map, to be filled with pixels.
struct RasterTarget {
    RasterSystems systems;
    Box extent;
    QSize pixels;
};

/// The coordinate system that the raster names; empty for none.
QString SystemOfRaster(GDALDataset& raster);

/// Finds the raster's place in a map. A raster without a system is assumed to have the map's system.
RasterPlace PlaceRaster(GDALDataset& raster, const RasterSystems& systems);

/// The raster's pixel at a place in map units, counted from its upper left one; nothing where it has none.
std::optional<QPoint> PixelAt(GDALDataset& raster, const RasterSystems& systems, QPointF place);

/// A virtual raster of the target's size whose pixels are computed when they are read, from source pixels
/// thinned to about its resolution. Its last band is 0 where there is no picture. blend: pixels may be mixed
/// with their neighbours. raster: must outlive the result. nullptr if GDAL fails.
std::unique_ptr<GDALDataset>
WarpRaster(GDALDataset& raster, const RasterPlace& place, const RasterTarget& target, bool blend);

} // namespace Orvane
