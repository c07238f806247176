// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

namespace Orvane {

/// The rectangle moved, by no more than needed, so that it lies inside the area. One that is too large starts
/// at the area's upper left corner. Pixels.
QRect MovedInside(QRect rectangle, const QRect& area);

/// The area for windows on the screen that holds the point, or on the primary screen; without task bars.
QRect AvailableAreaAt(QPoint point);

} // namespace Orvane
