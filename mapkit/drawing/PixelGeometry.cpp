// SPDX-License-Identifier: MIT
#include "mapkit/drawing/PixelGeometry.h"

namespace Orvane {

QPolygonF ToPixels(std::span<const QPointF> part, const MapView& view, double tolerance)
{
    QPolygonF kept;
    for (size_t i = 0; i < part.size(); ++i) {
        const QPointF pixel = view.ToPixel(part[i]);
        const bool last = i + 1 == part.size();
        if (i == 0 || last || (pixel - kept.last()).manhattanLength() >= tolerance)
            kept << pixel;
    }
    return kept;
}

QRectF ToPixels(const Box& box, const MapView& view)
{
    return QRectF(view.ToPixel({box.minX, box.maxY}), view.ToPixel({box.maxX, box.minY}));
}

} // namespace Orvane
