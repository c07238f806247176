// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/MapRaster.h"
#include "mapkit/drawing/MapView.h"

#include <atomic>

class QPainter;

namespace Orvane {

/// Paints the view's part of a raster in the resolution of the painter's device, for the screen, paper and
/// files. painter: in logical pixels of the view. May be called on any thread that owns the painter. Paints
/// nothing if cancelled becomes true. Raises for damaged data.
void PaintRaster(
    QPainter& painter, const MapRaster& raster, const MapView& view, const std::atomic<bool>& cancelled);

} // namespace Orvane
