// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

namespace Orvane {

/// Cuts the segment to the rectangle. False when no part of it is inside; the ends are then unchanged.
bool ClipSegment(QPointF& from, QPointF& to, const QRectF& area);

/// Cuts a ring to the rectangle; what lies outside follows the rectangle's edge. The result may be empty.
QPolygonF ClipRing(const QPolygonF& ring, const QRectF& area);

} // namespace Orvane
