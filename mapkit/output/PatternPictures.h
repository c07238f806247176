// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

#include <functional>

class QPainter;

namespace Orvane {

/// True when the painter's device fills areas with patterns; Qt's SVG generator leaves them empty.
bool KnowsPatterns(const QPainter& painter);

/// Paints into a transparent picture of that area and lays it down. area: page pixels; resolution: dots an
/// inch. paint gets a painter that stands on page pixels as the first one does. Nothing is painted when the
/// picture is too large for the memory.
void PaintAsPicture(
    QPainter& painter, const QRectF& area, int resolution, const std::function<void(QPainter&)>& paint);

} // namespace Orvane
