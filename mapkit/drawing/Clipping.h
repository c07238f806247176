// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace Orvane {

/// Clips the segment to the rectangle. False if no part of it is inside; the ends are then unchanged.
bool ClipSegment(QPointF& from, QPointF& to, const QRectF& area);

/// A part of a line that is inside a rectangle.
struct ClippedRun {
    QPolygonF points; ///< at least two
    double lengthBefore = 0; ///< length of the line up to the first point
};

/// Clips a line to the rectangle. Returns one run for each part that is inside.
std::vector<ClippedRun> ClipLine(const QPolygonF& line, const QRectF& area);

/// Clips a ring to the rectangle; parts outside are replaced by parts of the rectangle's edge. The result may
/// be empty.
QPolygonF ClipRing(const QPolygonF& ring, const QRectF& area);

} // namespace Orvane
