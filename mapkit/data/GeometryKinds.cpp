// SPDX-License-Identifier: MIT
#include "mapkit/data/GeometryKinds.h"

#include "mapkit/data/GeometryChoice.h"

#include <algorithm>
#include <ogrsf_frmts.h>
#include <optional>

namespace Orvane {

namespace {

constexpr int MostFeaturesLookedAt = 500;

// Nothing for a type that may hold any kind.
std::optional<FeatureKind> KindOfType(OGRwkbGeometryType type)
{
    switch (wkbFlatten(OGR_GT_GetLinear(type))) {
    case wkbPoint:
    case wkbMultiPoint:
        return FeatureKind::Point;
    case wkbLineString:
    case wkbMultiLineString:
        return FeatureKind::Line;
    case wkbUnknown:
    case wkbGeometryCollection:
        return std::nullopt;
    default:
        return FeatureKind::Area;
    }
}

} // namespace

void ForEachKind(
    const OGRGeometry& geometry, const std::function<void(const OGRGeometry&, FeatureKind)>& visit)
{
    const OGRwkbGeometryType type = geometry.getGeometryType();
    if (const auto kind = KindOfType(type)) {
        visit(geometry, *kind);
    } else if (OGR_GT_IsSubClassOf(type, wkbGeometryCollection)) {
        for (const OGRGeometry* member : geometry.toGeometryCollection())
            ForEachKind(*member, visit);
    }
}

void KindCollector::Add(const OGRGeometry& geometry)
{
    ForEachKind(geometry, [this](const OGRGeometry& part, FeatureKind kind) {
        m_found[size_t(kind)] = m_found[size_t(kind)] || !part.IsEmpty();
    });
}

std::vector<FeatureKind> KindCollector::Kinds() const
{
    std::vector<FeatureKind> kinds;
    for (const FeatureKind kind : {FeatureKind::Point, FeatureKind::Line, FeatureKind::Area}) {
        if (m_found[size_t(kind)])
            kinds.push_back(kind);
    }
    return kinds;
}

std::vector<FeatureKind> KindsOf(OGRLayer& layer)
{
    if (const auto declared = KindOfType(layer.GetGeomType()))
        return {*declared};
    KindCollector collector;
    layer.ResetReading();
    for (int i = 0; i < MostFeaturesLookedAt; ++i) {
        const OGRFeatureUniquePtr feature(layer.GetNextFeature());
        if (!feature)
            break;
        if (const OGRGeometry* geometry = feature->GetGeometryRef())
            collector.Add(*geometry);
    }
    layer.ResetReading();
    const std::vector<FeatureKind> found = collector.Kinds();
    return found.empty() ? std::vector<FeatureKind>{FeatureKind::Area} : found;
}

bool HasAnyOf(const OGRGeometry& geometry, const GeometryChoice& choice)
{
    KindCollector collector;
    collector.Add(geometry);
    const std::vector<FeatureKind> kinds = collector.Kinds();
    return std::any_of(kinds.begin(), kinds.end(), [&](FeatureKind kind) { return choice.Takes(kind); });
}

bool HasFeatures(OGRLayer& layer)
{
    layer.ResetReading();
    const OGRFeatureUniquePtr feature(layer.GetNextFeature());
    layer.ResetReading();
    return feature != nullptr;
}

} // namespace Orvane
