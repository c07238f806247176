// SPDX-License-Identifier: MIT
#include "mapkit/drawing/MapView.h"

#include <cmath>

namespace Orvane {

namespace {

constexpr double MinUnitsPerPixel = 1e-9;
constexpr double MaxUnitsPerPixel = 1e9;
constexpr double FittingMargin = 1.04;

} // namespace

MapView::MapView(QPointF centre, double unitsPerPixel, QSize size)
    : m_centre(centre), m_unitsPerPixel(std::clamp(unitsPerPixel, MinUnitsPerPixel, MaxUnitsPerPixel)),
      m_size(size.expandedTo(QSize(1, 1)))
{
}

MapView MapView::Fitting(const Box& box, QSize size)
{
    if (box.IsEmpty())
        return MapView({}, 1, size);
    const QSize shown = size.expandedTo(QSize(1, 1));
    const double wanted
        = FittingMargin * std::max(box.Width() / shown.width(), box.Height() / shown.height());
    const QPointF centre((box.minX + box.maxX) / 2, (box.minY + box.maxY) / 2);
    return MapView(centre, wanted > 0 ? wanted : 1, size);
}

QPointF MapView::ToPixel(QPointF map) const
{
    return {
        (map.x() - m_centre.x()) / m_unitsPerPixel + m_size.width() / 2.0,
        (m_centre.y() - map.y()) / m_unitsPerPixel + m_size.height() / 2.0};
}

QPointF MapView::ToMap(QPointF pixel) const
{
    return {
        m_centre.x() + (pixel.x() - m_size.width() / 2.0) * m_unitsPerPixel,
        m_centre.y() - (pixel.y() - m_size.height() / 2.0) * m_unitsPerPixel};
}

Box MapView::Extent() const
{
    Box extent;
    extent.Add(ToMap({0, 0}));
    extent.Add(ToMap(QPointF(m_size.width(), m_size.height())));
    return extent;
}

MapView MapView::Panned(QPointF pixels) const
{
    const QPointF moved(-pixels.x() * m_unitsPerPixel, pixels.y() * m_unitsPerPixel);
    return MapView(m_centre + moved, m_unitsPerPixel, m_size);
}

MapView MapView::ZoomedAt(QPointF pixel, double factor) const
{
    const MapView zoomed(m_centre, m_unitsPerPixel / factor, m_size);
    const QPointF drift = ToMap(pixel) - zoomed.ToMap(pixel);
    return MapView(m_centre + drift, zoomed.m_unitsPerPixel, m_size);
}

MapView MapView::Resized(QSize size) const
{
    return MapView(m_centre, m_unitsPerPixel, size);
}

double MapView::ScaleDenominator(double metresPerUnit, double dotsPerInch) const
{
    return m_unitsPerPixel * metresPerUnit * dotsPerInch / MetresPerInch;
}

} // namespace Orvane
