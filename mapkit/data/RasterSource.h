// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QImage>
#include <QMutex>
#include <QPointF>
#include <QSize>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

class GDALDataset;

namespace Orvane {

class RasterShades;
struct RasterPlace;
struct SourceLayer;

/// The number of the RunTimeError for a picture that does not say where it lies.
inline constexpr int RasterNotPlaced = 10105;

/// What a file tells about its raster.
struct RasterDetails {
    QString driver; ///< the format, "GeoTIFF"
    QSize size; ///< pixels
    int bands = 0;
    QSizeF pixelSize; ///< in units of its system; empty if it has no fixed size
};

/// What one band of a raster has at one place.
struct RasterValue {
    int band = 1; ///< from 1
    QString description; ///< of the band; empty if the file gives none
    std::optional<double>
        number; ///< as it is meant: scaled as the file says; nothing where there are no data
    QString unit; ///< of the number, such as "m"; empty if the file names none
    QString category; ///< what the number stands for, such as "Forest"; empty if the file names none
};

/// A georeferenced picture that one of GDAL's raster drivers opens, such as an aerial photograph, read-only.
/// Elevation grids and similar data are shown in shades of grey from their lowest to their highest value.
///
///     const RasterSource photo(path);
///     QImage image = photo.Draw(map.System(), view.Extent(), window.size(), cancelled);
///
/// Any thread may draw and ask for values, but only one does so at a time; asking for values is cancelled by
/// a ReadingBound while it waits for its turn. Errors are RunTimeError with SourceUnreadable and a sentence
/// that names the file, unless another number is stated.
///
/// The system limits how many files a program has open. So only the files of some rasters stay open, the
/// first ones; each other one is opened whenever it is read, which takes little time compared with reading.
class RasterSource
{
public:
    /// How many rasters of the program stay open.
    static constexpr int MostKeptOpen = 100;

    /// Raises if no driver can open the file, and RasterNotPlaced if the file is not georeferenced.
    /// member: of an archive or a GeoPackage, as RastersWithin names it; empty for a file by itself.
    /// chosenSystem: its coordinate system, instead of the one that it names; empty for that one.
    explicit RasterSource(const QString& path, const QString& member = {}, const QString& chosenSystem = {});
    ~RasterSource();
    RasterSource(const RasterSource&) = delete;
    RasterSource& operator=(const RasterSource&) = delete;

    const QString& Path() const { return m_path; }
    /// The coordinate system that it names, as in CoordinateSystems.h; empty if it names none; then the map's
    /// system is assumed, unless one was chosen.
    const QString& System() const { return m_system; }
    /// The area that it covers, in units of its own system.
    Box Extent() const;
    /// The same in the map's system. Empty if it cannot be shown in that system.
    Box ExtentIn(const QString& mapSystem) const;
    const RasterDetails& Details() const { return m_details; }

    /// Draws the part of the map, warped into its system, transparent where there is no picture. Reads only
    /// the data that the image needs. Null if nothing is in view, or if cancelled becomes true. Raises for
    /// damaged data.
    QImage
    Draw(const QString& mapSystem, const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const;

    /// The values of all bands at a place in units of the map's system; none where the raster has no pixel.
    /// Raises for damaged data.
    std::vector<RasterValue> ValuesAt(const QString& mapSystem, QPointF place) const;

private:
    class Use;

    const RasterPlace& PlaceIn(const QString& mapSystem, GDALDataset& raster) const;

    QString m_path;
    QString m_member;
    QString m_chosenSystem;
    QString m_system;
    RasterDetails m_details;
    mutable std::unique_ptr<GDALDataset> m_dataset; // nullptr while it is closed
    mutable bool m_isKept = false; // it stays open
    mutable std::unique_ptr<const RasterPlace> m_place; // in the map's system that was asked for last
    mutable QString m_placeSystem;
    std::unique_ptr<const RasterShades> m_shades;
    mutable QMutex m_mutex; // a GDAL dataset may be used by only one thread at a time
};

/// The raster of a file, or one of those in it, as a layer that was found. Raises as RasterSource does.
SourceLayer DescribeRaster(const QString& path, const QString& member = {});

} // namespace Orvane
