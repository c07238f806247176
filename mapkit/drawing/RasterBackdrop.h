// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/RasterSource.h"
#include "mapkit/drawing/MapView.h"

#include <QImage>

#include <atomic>

class QPainter;

namespace Orvane {

/// The picture that lies under all layers of a map, warped into the map's system. Any thread may draw it.
class RasterBackdrop
{
public:
    /// Opens the file; raises what RasterSource does.
    RasterBackdrop(const QString& path, const QString& mapSystem);

    /// In map units; empty when the picture does not meet the map.
    const Box& Extent() const { return m_extent; }
    /// The picture itself.
    const RasterSource& Source() const { return m_source; }

    /// The view's part of the picture, transparent where there is none. Null when nothing is in view or once
    /// cancelled becomes true. Raises for damaged data.
    QImage Draw(const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled) const;

    /// Paints the view's part, as fine as the painter's device is, for paper and files. The painter stands on
    /// the view's logical pixels. Raises for damaged data.
    void Paint(QPainter& painter, const MapView& view, const std::atomic<bool>& cancelled) const;

private:
    RasterSource m_source;
    QString m_system;
    Box m_extent;
};

} // namespace Orvane
