// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/SystemFacts.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/Antimeridian.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"

#include <cmath>
#include <memory>

namespace Orvane {

namespace {

constexpr int EdgePoints = 21; // as GDAL and others do
const QString LonLat = QStringLiteral("EPSG:4326");

QString UnitOf(const OGRSpatialReference& system)
{
    const char* unit = nullptr;
    if (system.IsGeographic())
        system.GetAngularUnits(&unit);
    else
        system.GetLinearUnits(&unit);
    return QString::fromUtf8(unit);
}

void AddArea(SystemFacts& facts, const OGRSpatialReference& system)
{
    Box area;
    const char* name = nullptr;
    if (!system.GetAreaOfUse(&area.minX, &area.minY, &area.maxX, &area.maxY, &name))
        return;
    facts.area = area;
    facts.areaName = QString::fromUtf8(name);
}

// Geocentric, vertical and local systems say nothing about a place in a map.
bool IsForMaps(const OGRSpatialReference& system)
{
    return system.IsGeographic() || system.IsProjected();
}

// Degrees across 180 have minX above maxX.
Box TransformedBounds(const Box& box, const QString& from, const QString& to)
{
    const GdalErrors quiet;
    const OGRSpatialReference source = ReferenceOf(from);
    const OGRSpatialReference target = ReferenceOf(to);
    if (box.IsEmpty() || source.IsEmpty() || target.IsEmpty())
        return {};
    if (source.IsSame(&target))
        return box;
    const std::unique_ptr<OGRCoordinateTransformation> transformation(
        OGRCreateCoordinateTransformation(&source, &target));
    Box result;
    const bool done = transformation
        && transformation->TransformBounds(
            box.minX, box.minY, box.maxX, box.maxY, &result.minX, &result.minY, &result.maxX, &result.maxY,
            EdgePoints);
    const bool isFinite = done && std::isfinite(result.minX) && std::isfinite(result.maxX)
        && std::isfinite(result.minY) && std::isfinite(result.maxY);
    return isFinite ? result : Box();
}

} // namespace

SystemFacts FactsOf(const QString& system)
{
    const GdalErrors quiet;
    const OGRSpatialReference known = ReferenceOf(system);
    SystemFacts facts;
    if (known.IsEmpty() || !IsForMaps(known))
        return facts;
    facts.isKnown = true;
    facts.isGeographic = known.IsGeographic() != 0;
    facts.name = QString::fromUtf8(known.GetName());
    const QString text = SystemText(&known);
    const bool hasCode = known.GetAuthorityName(nullptr) && known.GetAuthorityCode(nullptr);
    facts.code = hasCode ? text : QString();
    facts.unit = UnitOf(known);
    AddArea(facts, known);
    return facts;
}

QString SystemTitle(const QString& system)
{
    const SystemFacts facts = FactsOf(system);
    if (!facts.isKnown)
        return system;
    return facts.code.isEmpty() ? facts.name : QStringLiteral("%1 (%2)").arg(facts.name, facts.code);
}

Box InDegrees(const Box& box, const QString& system)
{
    Box degrees = TransformedBounds(box, system, LonLat);
    if (std::isfinite(degrees.minX) && degrees.minX > degrees.maxX) // across 180 degrees
        degrees.maxX += Antimeridian::Turn;
    return degrees;
}

Box Transformed(const Box& box, const QString& from, const QString& to)
{
    const Box result = TransformedBounds(box, from, to);
    return result.IsEmpty() ? Box() : result;
}

} // namespace Orvane
