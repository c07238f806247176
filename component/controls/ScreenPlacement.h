// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QRect>

namespace Orvane {

/// The rectangle, moved no more than needed to lie inside the area. If it is too large, it starts at the
/// area's upper left corner. In pixels.
QRect MovedInside(QRect rectangle, const QRect& area);

/// The area without task bars of the screen that contains the point, or of the primary screen.
QRect AvailableAreaAt(QPoint point);

} // namespace Orvane
