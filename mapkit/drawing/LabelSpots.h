// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QSizeF>

#include <span>
#include <vector>

namespace Orvane {

/// A place for a label, in pixels.
struct LabelSpot {
    QPointF centre;
    double angle = 0; ///< degrees, clockwise, -90 to 90: the text is never upside down
};

/// The possible places for a feature's label, best first; none if the label does not fit. All lengths are in
/// pixels; size is the size of the text.
namespace LabelSpots {

/// Around a point symbol of that radius: right, left, above, below.
std::vector<LabelSpot> AroundPoint(QPointF point, double radius, QSizeF size);

/// Along the line where it is straight enough, first in its middle: above a thin line, or on a line that is
/// about as wide as the text is high. width: of the pen.
std::vector<LabelSpot> AlongLine(const QPolygonF& line, double width, QSizeF size);

/// Inside the rings' area without its holes, where there is enough room; places near its middle are
/// preferred.
std::vector<LabelSpot> InsideArea(std::span<const QPolygonF> rings, QSizeF size);

} // namespace LabelSpots

} // namespace Orvane
