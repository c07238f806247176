// SPDX-License-Identifier: MIT
#include "shell/features/HitTest.h"

#include "mapkit/drawing/Clipping.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace Orvane {

namespace {

constexpr double Reach = 5; // pixels around the pointer
constexpr double SnapReach = 10; // pixels
constexpr double Infinite = std::numeric_limits<double>::infinity();

Box Around(QPointF point, double margin)
{
    return {point.x() - margin, point.y() - margin, point.x() + margin, point.y() + margin};
}

Box Grown(const Box& box, double margin)
{
    return {box.minX - margin, box.minY - margin, box.maxX + margin, box.maxY + margin};
}

bool Holds(const Box& box, QPointF point)
{
    return point.x() >= box.minX && point.x() <= box.maxX && point.y() >= box.minY && point.y() <= box.maxY;
}

// How far a feature is drawn beyond its geometry.
double InkPixels(const MapLayer& layer, FeatureKind kind)
{
    return kind == FeatureKind::Point ? layer.look.symbolRadius : layer.look.outline.widthF() / 2;
}

QPointF NearestOnSegment(QPointF from, QPointF to, QPointF point)
{
    const QPointF along = to - from;
    const double square = QPointF::dotProduct(along, along);
    if (square == 0)
        return from;
    return from + along * std::clamp(QPointF::dotProduct(point - from, along) / square, 0.0, 1.0);
}

double SquareTo(QPointF point, QPointF other)
{
    const QPointF way = other - point;
    return QPointF::dotProduct(way, way);
}

// True when a ray from the point to the east crosses the edge.
bool Crosses(QPointF from, QPointF to, QPointF point)
{
    if ((from.y() > point.y()) == (to.y() > point.y()))
        return false;
    const double x = from.x() + (point.y() - from.y()) / (to.y() - from.y()) * (to.x() - from.x());
    return x > point.x();
}

// Calls action(from, to) for each edge of the feature, including the closing edges of areas.
template <typename Action> void ForEachEdge(const FeatureSet& features, size_t feature, Action action)
{
    const FeatureSet::Feature& entry = features.Features()[feature];
    for (quint32 part = entry.firstPart; part < entry.endPart; ++part) {
        const auto points = features.Part(part);
        for (size_t i = 1; i < points.size(); ++i)
            action(points[i - 1], points[i]);
        if (entry.kind == FeatureKind::Area || points.size() == 1)
            action(points.back(), points.front());
    }
}

template <typename Action> void ForEachVertex(const FeatureSet& features, size_t feature, Action action)
{
    const FeatureSet::Feature& entry = features.Features()[feature];
    for (quint32 part = entry.firstPart; part < entry.endPart; ++part) {
        for (const QPointF& point : features.Part(part))
            action(point);
    }
}

bool IsInside(const FeatureSet& features, size_t feature, QPointF point)
{
    bool inside = false;
    ForEachEdge(features, feature, [&](QPointF from, QPointF to) { inside ^= Crosses(from, to, point); });
    return inside;
}

double DistanceToVertices(const FeatureSet& features, size_t feature, QPointF point)
{
    double nearest = Infinite;
    ForEachVertex(
        features, feature, [&](QPointF vertex) { nearest = std::min(nearest, SquareTo(point, vertex)); });
    return std::sqrt(nearest);
}

double DistanceToEdges(const FeatureSet& features, size_t feature, QPointF point)
{
    double nearest = Infinite;
    ForEachEdge(features, feature, [&](QPointF from, QPointF to) {
        nearest = std::min(nearest, SquareTo(point, NearestOnSegment(from, to, point)));
    });
    return std::sqrt(nearest);
}

void AddHitsAt(std::vector<Hit>& hits, const MapLayer& layer, QPointF point, double unitsPerPixel)
{
    const auto& features = layer.features->Features();
    const auto first = std::ptrdiff_t(hits.size());
    for (size_t i = features.size(); i-- > 0;) {
        const double reach = Reach + InkPixels(layer, features[i].kind);
        if (!features[i].bounds.Intersects(Around(point, reach * unitsPerPixel)))
            continue;
        const double distance = DistanceTo(*layer.features, i, point) / unitsPerPixel;
        if (distance <= reach)
            hits.push_back({&layer, i, distance});
    }
    std::stable_sort(
        hits.begin() + first, hits.end(), [](const Hit& a, const Hit& b) { return a.distance < b.distance; });
}

// An area without a fill shows what is below it.
bool IsSeenThrough(const Hit& hit, QPointF point, double unitsPerPixel)
{
    if (hit.distance > 0 || hit.layer->look.fill.style() != Qt::NoBrush
        || hit.layer->features->Features()[hit.feature].kind != FeatureKind::Area)
        return false;
    return DistanceToEdges(*hit.layer->features, hit.feature, point) > Reach * unitsPerPixel;
}

// The nearest of the points that were given to Look, within a reach.
struct Nearest {
    QPointF from;
    double square; // of the reach, then of the smallest distance so far
    std::optional<QPointF> point;

    void Look(QPointF candidate)
    {
        const double distance = SquareTo(from, candidate);
        if (distance > square)
            return;
        square = distance;
        point = candidate;
    }
};

} // namespace

double DistanceTo(const FeatureSet& features, size_t feature, QPointF point)
{
    switch (features.Features()[feature].kind) {
    case FeatureKind::Point:
        return DistanceToVertices(features, feature, point);
    case FeatureKind::Area:
        if (IsInside(features, feature, point))
            return 0;
        break;
    case FeatureKind::Line:
        break;
    }
    return DistanceToEdges(features, feature, point);
}

bool Touches(const FeatureSet& features, size_t feature, const Box& box)
{
    const FeatureSet::Feature& entry = features.Features()[feature];
    if (!entry.bounds.Intersects(box))
        return false;
    bool touches = false;
    ForEachVertex(features, feature, [&](QPointF vertex) { touches |= Holds(box, vertex); });
    if (touches || entry.kind == FeatureKind::Point)
        return touches;
    const QRectF area(QPointF(box.minX, box.minY), QPointF(box.maxX, box.maxY));
    ForEachEdge(features, feature, [&](QPointF from, QPointF to) { touches |= ClipSegment(from, to, area); });
    return touches || (entry.kind == FeatureKind::Area && IsInside(features, feature, area.topLeft()));
}

std::vector<Hit> HitTest::At(QPointF pixel, const Condition& wanted) const
{
    const QPointF point = m_view.ToMap(pixel);
    std::vector<Hit> hits;
    for (const MapLayer* layer : Searched(Around(point, 0), Reach, wanted))
        AddHitsAt(hits, *layer, point, m_view.UnitsPerPixel());
    std::stable_partition(hits.begin(), hits.end(), [&](const Hit& hit) {
        return !IsSeenThrough(hit, point, m_view.UnitsPerPixel());
    });
    return hits;
}

std::vector<const MapLayer*> HitTest::RastersAt(QPointF pixel, const Condition& wanted) const
{
    Box place;
    place.Add(m_view.ToMap(pixel));
    std::vector<const MapLayer*> rasters;
    for (const MapLayer& layer : m_layers) {
        if (layer.raster && layer.Bounds().Intersects(place) && wanted(layer))
            rasters.push_back(&layer);
    }
    std::sort(rasters.begin(), rasters.end(), [](const MapLayer* a, const MapLayer* b) {
        return b->Height() < a->Height();
    });
    return rasters;
}

std::vector<Hit> HitTest::Within(const QRectF& pixels, const Condition& wanted) const
{
    Box box;
    box.Add(m_view.ToMap(pixels.topLeft()));
    box.Add(m_view.ToMap(pixels.bottomRight()));
    std::vector<Hit> hits;
    for (const MapLayer* layer : Searched(box, 0, wanted)) {
        for (size_t i = 0; i < layer->features->Features().size(); ++i) {
            if (Touches(*layer->features, i, box))
                hits.push_back({layer, i, 0});
        }
    }
    return hits;
}

std::optional<QPointF> HitTest::SnapPoint(QPointF pixel, const Condition& wanted) const
{
    const QPointF point = m_view.ToMap(pixel);
    const double reach = SnapReach * m_view.UnitsPerPixel();
    const Box area = Around(point, reach);
    Nearest vertex{point, reach * reach, {}};
    Nearest onEdge = vertex;
    for (const MapLayer* layer : Searched(area, 0, wanted)) {
        for (size_t i = 0; i < layer->features->Features().size(); ++i) {
            if (!layer->features->Features()[i].bounds.Intersects(area))
                continue;
            ForEachVertex(*layer->features, i, [&](QPointF candidate) { vertex.Look(candidate); });
            if (layer->features->Features()[i].kind == FeatureKind::Point)
                continue;
            ForEachEdge(*layer->features, i, [&](QPointF from, QPointF to) {
                onEdge.Look(NearestOnSegment(from, to, point));
            });
        }
    }
    return vertex.point ? vertex.point : onEdge.point;
}

// Topmost first.
std::vector<const MapLayer*>
HitTest::Searched(const Box& area, double morePixels, const Condition& wanted) const
{
    std::vector<const MapLayer*> searched;
    for (const MapLayer& layer : m_layers) {
        if (!layer.features)
            continue;
        const double ink
            = std::max(InkPixels(layer, FeatureKind::Point), InkPixels(layer, FeatureKind::Line));
        const Box reached = Grown(area, (morePixels + ink) * m_view.UnitsPerPixel());
        if (layer.features->Bounds().Intersects(reached) && wanted(layer))
            searched.push_back(&layer);
    }
    std::sort(searched.begin(), searched.end(), [](const MapLayer* a, const MapLayer* b) {
        return b->Height() < a->Height();
    });
    return searched;
}

} // namespace Orvane
