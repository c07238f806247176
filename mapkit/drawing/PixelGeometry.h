// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapView.h"

#include <QPolygonF>

#include <span>

namespace Orvane {

/// Converts a part to the view's pixels. Vertices that are nearer to the last kept one than the tolerance, in
/// pixels, are left out; the first and last vertices are always kept.
QPolygonF ToPixels(std::span<const QPointF> part, const MapView& view, double tolerance);

/// The rectangle that a box covers, in the view's pixels.
QRectF ToPixels(const Box& box, const MapView& view);

} // namespace Orvane
