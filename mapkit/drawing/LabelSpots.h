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

/// The places where a feature's label may stand, best first; none where it would not fit. All lengths are
/// pixels; size is that of the text.
namespace LabelSpots {

/// Around a point symbol of that radius: right, left, above, below.
std::vector<LabelSpot> AroundPoint(QPointF point, double radius, QSizeF size);

/// Along the line where it is straight enough, first in its middle: above a thin line, on one as wide as the
/// text. width: of the pen.
std::vector<LabelSpot> AlongLine(const QPolygonF& line, double width, QSizeF size);

/// Inside the rings' area, holes left out: where there is room, and near to its middle.
std::vector<LabelSpot> InsideArea(std::span<const QPolygonF> rings, QSizeF size);

} // namespace LabelSpots

} // namespace Orvane
