// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/GroundScale.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/coordinates/SystemReference.h"

#include <QtMath>

#include <array>
#include <cmath>
#include <ogr_spatialref.h>
#include <optional>

namespace Orvane {

namespace {

constexpr double SemiMajorAxis = 6378137; // metres, WGS 84
constexpr double EccentricitySquared = 0.00669437999014;
constexpr double MostStretch = 1000; // above it the point is outside the projection's valid area
constexpr double StepMetres = 100; // small for the earth's curvature, large for rounding errors

using DegreePair = std::array<QPointF, 2>;

std::optional<DegreePair> ToDegrees(const QString& system, const DegreePair& map)
{
    const OGRSpatialReference known = ReferenceOf(system);
    if (known.IsEmpty())
        return std::nullopt;
    if (known.IsGeographic())
        return map;
    const auto transformation = TransformationTo(QStringLiteral("EPSG:4326"), &known);
    std::array<double, 2> x{map[0].x(), map[1].x()};
    std::array<double, 2> y{map[0].y(), map[1].y()};
    if (!transformation || !transformation->Transform(2, x.data(), y.data()))
        return std::nullopt;
    return DegreePair{QPointF(x[0], y[0]), QPointF(x[1], y[1])};
}

// The distance of two points that are so near each other that the ellipsoid between them is almost flat.
double Metres(const DegreePair& points)
{
    const double latitude = qDegreesToRadians((points[0].y() + points[1].y()) / 2);
    const double east = qDegreesToRadians(points[1].x() - points[0].x());
    const double north = qDegreesToRadians(points[1].y() - points[0].y());
    const double bend = 1 - EccentricitySquared * std::pow(std::sin(latitude), 2);
    const double acrossRadius = SemiMajorAxis / std::sqrt(bend);
    const double alongRadius = SemiMajorAxis * (1 - EccentricitySquared) / std::pow(bend, 1.5);
    return std::hypot(acrossRadius * std::cos(latitude) * east, alongRadius * north);
}

} // namespace

double GroundMetresPerUnit(const QString& system, QPointF map)
{
    const double nominal = MetresPerUnit(system);
    const QPointF half(StepMetres / nominal / 2, 0);
    const auto degrees = ToDegrees(system, {map - half, map + half});
    if (!degrees)
        return nominal;
    const double metres = Metres(*degrees) / (2 * half.x());
    const bool credible = std::abs(degrees->front().y()) <= 90 && metres > nominal / MostStretch
        && metres < nominal * MostStretch;
    return credible ? metres : nominal;
}

} // namespace Orvane
