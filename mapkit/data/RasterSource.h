// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QImage>
#include <QMutex>
#include <QSize>
#include <QString>

#include <atomic>
#include <memory>

class GDALDataset;

namespace Orvane {

class RasterShades;

/// A georeferenced picture that one of GDAL's raster drivers opens, such as an aerial photograph, read-only.
/// Elevation grids and similar data are shown in shades of grey from their lowest to their highest value.
///
///     const RasterSource photo(path);
///     QImage image = photo.Draw(map.System(), view.Extent(), window.size(), cancelled);
///
/// Any thread may draw, but only one draws at a time. Errors are RunTimeError with SourceUnreadable and a
/// sentence that names the file.
class RasterSource
{
public:
    /// Raises if no driver can open the file, or if the file is not georeferenced.
    explicit RasterSource(const QString& path);
    ~RasterSource();
    RasterSource(const RasterSource&) = delete;
    RasterSource& operator=(const RasterSource&) = delete;

    const QString& Path() const { return m_path; }
    /// Its coordinate system, as in CoordinateSystems.h; empty if it has none; then the map's system is
    /// assumed.
    QString System() const;
    /// The area that it covers, in units of its own system; ExtentIn uses the map's system. Empty if it
    /// cannot be shown in that system.
    Box Extent() const;
    Box ExtentIn(const QString& mapSystem) const;

    /// Draws the part of the map, warped into its system, transparent where there is no picture. Reads only
    /// the data that the image needs. Null if nothing is in view, or if cancelled becomes true. Raises for
    /// damaged data.
    QImage
    Draw(const QString& mapSystem, const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const;

private:
    QString m_path;
    std::unique_ptr<GDALDataset> m_dataset;
    std::unique_ptr<const RasterShades> m_shades;
    mutable QMutex m_mutex; // a GDAL dataset may be used by only one thread at a time
};

} // namespace Orvane
