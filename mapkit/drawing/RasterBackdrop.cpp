// SPDX-License-Identifier: MIT
#include "mapkit/drawing/RasterBackdrop.h"

#include <QPainter>

#include <cmath>

namespace Orvane {

namespace {

constexpr double MostPixels = 8000; // per side, to limit memory; more would not be visible

} // namespace

RasterBackdrop::RasterBackdrop(const QString& path, const QString& mapSystem)
    : m_source(path), m_system(mapSystem), m_extent(m_source.ExtentIn(mapSystem))
{
}

QImage
RasterBackdrop::Draw(const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled) const
{
    const QSize pixels = (QSizeF(view.Size()) * devicePixelRatio).toSize();
    QImage image = m_source.Draw(m_system, view.Extent(), pixels, cancelled);
    image.setDevicePixelRatio(devicePixelRatio);
    return image;
}

void RasterBackdrop::Paint(QPainter& painter, const MapView& view, const std::atomic<bool>& cancelled) const
{
    const QTransform toDevice = painter.deviceTransform();
    const double longest = std::max(view.Size().width(), view.Size().height());
    const double finest = std::hypot(toDevice.m11(), toDevice.m12());
    const double ratio = std::clamp(finest, 1.0, std::max(1.0, MostPixels / longest));
    const QImage image = Draw(view, ratio, cancelled);
    if (!image.isNull())
        painter.drawImage(QRectF({0, 0}, QSizeF(view.Size())), image);
}

} // namespace Orvane
