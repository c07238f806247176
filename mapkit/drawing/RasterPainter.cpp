// SPDX-License-Identifier: MIT
#include "mapkit/drawing/RasterPainter.h"

#include "mapkit/drawing/PixelGeometry.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double MostPixels = 8000; // per side, to limit memory; more would not be visible

// The device's pixels in a logical pixel, or fewer for a large area.
double PixelRatio(const QPainter& painter, const QSize& area)
{
    const QTransform toDevice = painter.deviceTransform();
    const double finest = std::hypot(toDevice.m11(), toDevice.m12());
    const double longest = std::max(area.width(), area.height());
    return std::clamp(finest, 1.0, std::max(1.0, MostPixels / longest));
}

Box MapBox(const QRect& area, const MapView& view)
{
    Box box;
    box.Add(view.ToMap(area.topLeft()));
    box.Add(view.ToMap(QPointF(area.topLeft()) + QPointF(area.width(), area.height())));
    return box;
}

} // namespace

void PaintRaster(
    QPainter& painter, const MapRaster& raster, const MapView& view, const std::atomic<bool>& cancelled)
{
    if (!raster.Extent().Intersects(view.Extent()))
        return;
    const QRect window({0, 0}, view.Size());
    const QRect area = ToPixels(raster.Extent(), view).intersected(QRectF(window)).toAlignedRect();
    if (area.isEmpty())
        return;
    const QSize pixels = (QSizeF(area.size()) * PixelRatio(painter, area.size())).toSize();
    const QImage image = raster.Draw(MapBox(area, view), pixels, cancelled);
    if (!image.isNull())
        painter.drawImage(area, image);
}

} // namespace Orvane
