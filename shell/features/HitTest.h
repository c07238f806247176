// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <QPointF>
#include <QRectF>

#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace Orvane {

/// A feature that was found. Valid as long as the layers that were searched.
struct Hit {
    const MapLayer* layer = nullptr;
    size_t feature = 0; ///< index into the layer's features
    double distance = 0; ///< pixels from the pointer; 0 inside an area
};

/// Finds the features under the pointer, by their geometry alone: bounding boxes first, then each vertex of
/// the few features that are left.
///
///     HitTest test(canvas.Layers(), canvas.View());
///     for (const Hit& hit : test.At(pixel, [](const MapLayer& layer) { return layer.flags.enquirable; }))
///
/// Refers to the layers, which outlive it. Layers without data are never found; the condition decides
/// whether a layer must be shown.
class HitTest
{
public:
    using Condition = std::function<bool(const MapLayer&)>;

    HitTest(std::span<const MapLayer> layers, const MapView& view) : m_layers(layers), m_view(view) { }

    /// The features within a few pixels of the pixel, of layers that meet the condition: topmost layer first,
    /// within a layer the nearest, then the last drawn; areas without fill that are hit inside come last.
    std::vector<Hit> At(QPointF pixel, const Condition& wanted) const;
    /// The layers that meet the condition and whose raster covers the pixel; topmost first.
    std::vector<const MapLayer*> RastersAt(QPointF pixel, const Condition& wanted) const;
    /// The features that touch the rectangle, in pixels; topmost layer first.
    std::vector<Hit> Within(const QRectF& pixels, const Condition& wanted) const;
    /// The map point to snap to: the nearest vertex in reach of the pixel, else the nearest point of an edge.
    std::optional<QPointF> SnapPoint(QPointF pixel, const Condition& wanted) const;

private:
    std::vector<const MapLayer*> Searched(const Box& area, double morePixels, const Condition& wanted) const;

    std::span<const MapLayer> m_layers;
    MapView m_view;
};

/// The distance from the point to the feature, in map units; 0 inside an area.
double DistanceTo(const FeatureSet& features, size_t feature, QPointF point);

/// True when the feature and the box share a point.
bool Touches(const FeatureSet& features, size_t feature, const Box& box);

} // namespace Orvane
