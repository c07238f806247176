// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapView.h"

#include <QPolygonF>

#include <span>

namespace Orvane {

/// The part in the view's pixels, without vertices that are closer than the tolerance, in pixels, to the one
/// kept before. First and last stay.
QPolygonF ToPixels(std::span<const QPointF> part, const MapView& view, double tolerance);

/// The upright rectangle that a box covers, in the view's pixels.
QRectF ToPixels(const Box& box, const MapView& view);

} // namespace Orvane
