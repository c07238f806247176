// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"
#include "mapkit/drawing/MapLayer.h"

#include <QColor>

#include <initializer_list>
#include <memory>
#include <vector>

namespace Orvane::Testing {

inline std::shared_ptr<const FeatureSet> Area(double west, double south, double east, double north)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Area);
    set.AddPart(
        std::vector<QPointF>{{west, south}, {east, south}, {east, north}, {west, north}, {west, south}});
    return std::make_shared<const FeatureSet>(std::move(set));
}

inline std::shared_ptr<const FeatureSet> Line(std::vector<QPointF> points)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(points);
    return std::make_shared<const FeatureSet>(std::move(set));
}

inline std::shared_ptr<const FeatureSet> Point(double x, double y)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Point);
    set.AddPart(std::vector<QPointF>{{x, y}});
    return std::make_shared<const FeatureSet>(std::move(set));
}

/// A layer without outline that fills its areas.
inline MapLayer
FilledLayer(qint32 layerID, QColor colour, std::shared_ptr<const FeatureSet> features, int priority = 128)
{
    MapLayer layer;
    layer.layerID = layerID;
    layer.priority = priority;
    layer.values.fillForeColor = qint32(colour.rgb() & 0xffffff); // represents the look below
    layer.look.outline = QPen(Qt::NoPen);
    layer.look.fill = colour;
    layer.look.symbol = colour;
    layer.features = std::move(features);
    return layer;
}

} // namespace Orvane::Testing
