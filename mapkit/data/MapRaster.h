// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/data/RasterSource.h"

#include <QImage>
#include <QString>

#include <atomic>

namespace Orvane {

struct LayerSource;

/// A raster at its place in a map, warped into the map's system. Any thread may draw it.
class MapRaster
{
public:
    /// Opens the data of a raster layer; raises what RasterSource raises.
    MapRaster(const LayerSource& source, const QString& mapSystem);

    /// In map units; empty if the raster cannot be shown in the map's system.
    const Box& Extent() const { return m_extent; }
    /// The coordinate system of its data: the chosen one, or the one that the file names; empty for none.
    const QString& SourceSystem() const { return m_sourceSystem; }
    const RasterSource& Source() const { return m_source; }

    /// Draws that part of the map, as RasterSource::Draw does.
    QImage Draw(const Box& extent, QSize pixels, const std::atomic<bool>& cancelled) const;

    /// The values at a place in map units, as RasterSource::ValuesAt returns them.
    std::vector<RasterValue> ValuesAt(QPointF place) const { return m_source.ValuesAt(m_mapSystem, place); }

private:
    RasterSource m_source;
    QString m_mapSystem;
    QString m_sourceSystem;
    Box m_extent;
};

} // namespace Orvane
