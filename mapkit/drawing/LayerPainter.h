// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <atomic>

class QPainter;

namespace Orvane {

/// Paints a layer's features, without labels, the way its renderer style asks for. layer: its features are
/// read. The painter stands on the view's logical pixels; may run in any thread that owns it. Stops soon
/// after cancelled becomes true.
void PaintLayer(
    QPainter& painter, const MapLayer& layer, const MapView& view, const std::atomic<bool>& cancelled);

} // namespace Orvane
