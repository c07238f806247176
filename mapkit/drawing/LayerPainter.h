// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <atomic>

class QPainter;

namespace Orvane {

/// Paints a layer's features, without labels, according to its renderer style, or its raster. layer: its data
/// must be read. painter: in logical pixels of the view. May be called on any thread that owns the painter.
/// Stops soon after cancelled becomes true. Raises for a raster with damaged data.
void PaintLayer(
    QPainter& painter, const MapLayer& layer, const MapView& view, const std::atomic<bool>& cancelled);

} // namespace Orvane
