// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <atomic>
#include <vector>

class QPainter;

namespace Orvane {

/// Paints a map into any painter, in the calling thread: what the canvas shows, for paper, pictures and
/// files. Lines stay lines where the painter's device knows them.
///
/// The painter stands on the view's logical pixels, the unit of the layers' looks. For a page the view counts
/// the pixels of a screen of the same size, and the painter is scaled to the page:
///
///     const MapView view(centre, unitsPerPixel, pageMillimetres * pixelsPerMillimetre); // as for LookOf
///     painter.scale(dotsPerMillimetre / pixelsPerMillimetre, dotsPerMillimetre / pixelsPerMillimetre);
///     PaintMap(painter, layers, view, view.ScaleDenominator(metresPerUnit, 25.4 * pixelsPerMillimetre),
///     cancelled);
///
/// Nothing is painted outside the view, and no background. layers: in any order; invisible, hidden and out of
/// scale ones are left out. Stops soon after cancelled becomes true, with part of the map painted, and is
/// false then. The painter's state is kept.
bool PaintMap(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled);

/// Paints only the labels of the map, for those who paint its layers one by one.
void PaintMapLabels(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled);

} // namespace Orvane
