// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace Orvane {

/// Cuts the segment to the rectangle. False when no part of it is inside; the ends are then unchanged.
bool ClipSegment(QPointF& from, QPointF& to, const QRectF& area);

/// A stretch of a line that is inside a rectangle.
struct ClippedRun {
    QPolygonF points; ///< at least two
    double lengthBefore = 0; ///< of the line, up to the first of them
};

/// Cuts a line to the rectangle; as many runs as there are stretches of it inside.
std::vector<ClippedRun> ClipLine(const QPolygonF& line, const QRectF& area);

/// Cuts a ring to the rectangle; what lies outside follows the rectangle's edge. The result may be empty.
QPolygonF ClipRing(const QPolygonF& ring, const QRectF& area);

} // namespace Orvane
