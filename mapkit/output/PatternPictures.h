// SPDX-License-Identifier: MIT
#pragma once

#include <QRectF>

#include <functional>

class QPainter;

namespace Orvane {

/// True when the painter's device can fill areas with patterns; Qt's SVG generator leaves such areas empty.
bool KnowsPatterns(const QPainter& painter);

/// Calls paint with a transparent picture of that area, then paints the picture. area: in page pixels;
/// resolution: in dots per inch. paint gets a painter with the same page pixels as the first painter. Nothing
/// is painted if the picture is too large for memory.
void PaintAsPicture(
    QPainter& painter, const QRectF& area, int resolution, const std::function<void(QPainter&)>& paint);

} // namespace Orvane
