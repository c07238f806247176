// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <QColor>

#include <atomic>
#include <vector>

class QPainter;

namespace Orvane {

/// Paints a map with any painter, on the calling thread: what the canvas shows, for paper, pictures and
/// files. Lines stay lines if the painter's device supports them.
///
/// The painter works in logical pixels of the view, the unit of the layers' looks. For a page, use the pixels
/// of a screen of the same size for the view, and scale the painter to the page:
///
///     const MapView view(centre, unitsPerPixel, pageMillimetres * pixelsPerMillimetre); // as for LookOf
///     painter.scale(dotsPerMillimetre / pixelsPerMillimetre, dotsPerMillimetre / pixelsPerMillimetre);
///     PaintMap(painter, layers, view, view.ScaleDenominator(metresPerUnit, 25.4 * pixelsPerMillimetre),
///     cancelled);
///
/// Nothing is painted outside the view, and no background: it is what the painter's device has already, which
/// the halos of labels need to know. layers: in any order; invisible and hidden ones
/// and those out of scale are left out. Stops soon after cancelled becomes true, with part of the map
/// painted, and returns false then. The painter's state is restored. Raises for a raster with damaged data.
bool PaintMap(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled, const QColor& background = Qt::white);

/// Paints only the labels of the map, for callers that paint the layers one by one.
void PaintMapLabels(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled, const QColor& background = Qt::white);

} // namespace Orvane
