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

/// A georeferenced picture that one of GDAL's raster drivers opens, such as an aerial photograph, read only.
/// Grids of heights and the like are shown in shades of grey from their least to their greatest value.
///
///     const RasterSource photo(path);
///     QImage image = photo.Draw(map.System(), view.Extent(), window.size(), cancelled);
///
/// Any thread may draw; one at a time does. Errors are RunTimeError with SourceUnreadable and a sentence that
/// names the file.
class RasterSource
{
public:
    /// Raises when no driver can open the file, or it does not say where on earth its pixels lie.
    explicit RasterSource(const QString& path);
    ~RasterSource();
    RasterSource(const RasterSource&) = delete;
    RasterSource& operator=(const RasterSource&) = delete;

    const QString& Path() const { return m_path; }
    /// Its coordinate system, as in CoordinateSystems.h; empty when it names none, and then the map's is
    /// taken for it.
    QString System() const;
    /// What it covers, in units of its own system, and of the map's; empty where the two do not meet.
    Box Extent() const;
    Box ExtentIn(const QString& mapSystem) const;

    /// Draws the part of the map, warped into its system, transparent where there is no picture. Reads no
    /// more than such an image needs. Null when nothing is in view, or once cancelled becomes true. Raises
    /// for damaged data.
    QImage
    Draw(const QString& mapSystem, const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const;

private:
    QString m_path;
    std::unique_ptr<GDALDataset> m_dataset;
    std::unique_ptr<const RasterShades> m_shades;
    mutable QMutex m_mutex; // a GDAL dataset is used by one thread at a time
};

} // namespace Orvane
