// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/RasterSource.h"
#include "mapkit/drawing/MapView.h"

#include <QImage>

#include <atomic>

class QPainter;

namespace Orvane {

/// The picture under all layers of a map, warped into the map's system. Any thread may draw it.
class RasterBackdrop
{
public:
    /// Opens the file; raises what RasterSource raises.
    RasterBackdrop(const QString& path, const QString& mapSystem);

    /// In map units; empty if the picture cannot be shown in the map's system.
    const Box& Extent() const { return m_extent; }
    /// The system of the map that it was opened for.
    const QString& System() const { return m_system; }
    /// The picture itself.
    const RasterSource& Source() const { return m_source; }

    /// The view's part of the picture, transparent where there is none. Null if nothing is in view, or if
    /// cancelled becomes true. Raises for damaged data.
    QImage Draw(const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled) const;

    /// Paints the view's part in the resolution of the painter's device, for paper and files. painter: in
    /// logical pixels of the view. Raises for damaged data.
    void Paint(QPainter& painter, const MapView& view, const std::atomic<bool>& cancelled) const;

private:
    RasterSource m_source;
    QString m_system;
    Box m_extent;
};

} // namespace Orvane
