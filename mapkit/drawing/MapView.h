// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QPointF>
#include <QSize>

namespace Orvane {

inline constexpr double MetresPerInch = 0.0254;

/// The part of the map that a window shows: an immutable value. Map coordinates increase to the east and
/// north, logical pixels to the right and down from the window's top left corner.
///
///     MapView view = MapView::Fitting(bounds, size());
///     view = view.ZoomedAt(wheel->position(), 2);
class MapView
{
public:
    /// One map unit per pixel, around the origin.
    MapView() = default;
    /// unitsPerPixel: map units that one pixel covers, more than 0; limited to a range in which doubles are
    /// exact enough.
    MapView(QPointF centre, double unitsPerPixel, QSize size);

    /// The view that shows the whole box with a small margin; the default view of that size for an empty box.
    static MapView Fitting(const Box& box, QSize size);

    QPointF Centre() const { return m_centre; }
    double UnitsPerPixel() const { return m_unitsPerPixel; }
    QSize Size() const { return m_size; }

    QPointF ToPixel(QPointF map) const;
    QPointF ToMap(QPointF pixel) const;
    /// The area that the window shows, in map units.
    Box Extent() const;

    /// The map moved by that many pixels, as if dragged.
    MapView Panned(QPointF pixels) const;
    /// Zoomed in by the factor (below 1: zoomed out); the map point under the pixel stays there.
    MapView ZoomedAt(QPointF pixel, double factor) const;
    /// Another window size around the same centre, at the same scale.
    MapView Resized(QSize size) const;

    /// The n of the scale 1:n on a screen with that many logical pixels per inch. metresPerUnit: length of a
    /// map unit.
    double ScaleDenominator(double metresPerUnit, double dotsPerInch) const;

    bool operator==(const MapView&) const = default;

private:
    QPointF m_centre;
    double m_unitsPerPixel = 1;
    QSize m_size{1, 1};
};

} // namespace Orvane
