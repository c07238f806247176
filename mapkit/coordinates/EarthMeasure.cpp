// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/EarthMeasure.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/SystemReference.h"

#include <QLocale>

#include <array>
#include <cmath>
#include <geodesic.h>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

constexpr double LargestDegrees = 90; // of latitude
constexpr double Tolerance = 1; // map units
constexpr int Digits = 3; // significant digits; pointing with the mouse is no more exact

std::unique_ptr<OGRCoordinateTransformation> ToDegreesOf(const OGRSpatialReference& system)
{
    const GdalErrors quiet;
    const std::unique_ptr<OGRSpatialReference> degrees(system.CloneGeogCS());
    if (!degrees)
        return nullptr;
    degrees->SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return std::unique_ptr<OGRCoordinateTransformation>(
        OGRCreateCoordinateTransformation(&system, degrees.get()));
}

std::unique_ptr<geod_geodesic> EllipsoidOf(const OGRSpatialReference& system)
{
    auto ellipsoid = std::make_unique<geod_geodesic>();
    const double inverse = system.GetInvFlattening();
    geod_init(ellipsoid.get(), system.GetSemiMajor(), inverse > 0 ? 1 / inverse : 0);
    return ellipsoid;
}

double PlaneLength(std::span<const QPointF> line)
{
    double length = 0;
    for (size_t i = 1; i < line.size(); ++i)
        length += std::hypot(line[i].x() - line[i - 1].x(), line[i].y() - line[i - 1].y());
    return length;
}

double PlaneArea(std::span<const QPointF> ring)
{
    double twice = 0;
    for (size_t i = 0; i < ring.size(); ++i) {
        const QPointF from = ring[i] - ring[0]; // small numbers lose no digits
        const QPointF to = ring[(i + 1) % ring.size()] - ring[0];
        twice += from.x() * to.y() - to.x() * from.y();
    }
    return std::abs(twice) / 2;
}

struct Unit {
    double size;
    const char* name;
};

template <size_t Count> QString InUnit(double value, const std::array<Unit, Count>& units)
{
    size_t i = 0;
    while (i + 1 < Count && value < units[i].size)
        ++i;
    const double number = value / units[i].size;
    const int decimals = number > 0 ? std::clamp(Digits - 1 - int(std::floor(std::log10(number))), 0, 2) : 0;
    return QLocale().toString(number, 'f', decimals) + QString::fromUtf8(units[i].name);
}

constexpr std::array<Unit, 2> LengthUnits = {{{1000, " km"}, {1, " m"}}};
constexpr std::array<Unit, 3> AreaUnits = {{{1e6, " km²"}, {1e4, " ha"}, {1, " m²"}}};
constexpr std::array<Unit, 1> Plain = {{{1, ""}}};

} // namespace

EarthMeasure::EarthMeasure(const QString& mapSystem)
{
    const OGRSpatialReference known = ReferenceOf(mapSystem);
    if (known.IsEmpty())
        return;
    if (!known.IsGeographic()) {
        m_toDegrees = ToDegreesOf(known);
        m_fromDegrees.reset(m_toDegrees ? m_toDegrees->GetInverse() : nullptr);
        if (!m_fromDegrees)
            return;
    }
    m_ellipsoid = EllipsoidOf(known);
}

EarthMeasure::EarthMeasure(EarthMeasure&&) noexcept = default;
EarthMeasure& EarthMeasure::operator=(EarthMeasure&&) noexcept = default;
EarthMeasure::~EarthMeasure() = default;

std::optional<double> EarthMeasure::Length(std::span<const QPointF> line) const
{
    if (!KnowsEarth())
        return PlaneLength(line);
    const auto degrees = InDegrees(line);
    if (!degrees)
        return std::nullopt;
    double length = 0;
    for (size_t i = 1; i < degrees->size(); ++i) {
        const QPointF& from = (*degrees)[i - 1];
        const QPointF& to = (*degrees)[i];
        double part = 0;
        geod_inverse(m_ellipsoid.get(), from.y(), from.x(), to.y(), to.x(), &part, nullptr, nullptr);
        length += part;
    }
    return length;
}

std::optional<double> EarthMeasure::Area(std::span<const QPointF> ring) const
{
    if (!KnowsEarth())
        return PlaneArea(ring);
    const auto degrees = InDegrees(ring);
    if (!degrees)
        return std::nullopt;
    geod_polygon polygon;
    geod_polygon_init(&polygon, 0);
    for (const QPointF& point : *degrees)
        geod_polygon_addpoint(m_ellipsoid.get(), &polygon, point.y(), point.x());
    double area = 0;
    geod_polygon_compute(m_ellipsoid.get(), &polygon, 0, 1, &area, nullptr);
    return std::abs(area);
}

std::optional<std::vector<QPointF>> EarthMeasure::InDegrees(std::span<const QPointF> points) const
{
    const GdalErrors quiet;
    std::vector<QPointF> degrees;
    for (const QPointF& point : points) {
        const auto place = InDegrees(point);
        if (!place)
            return std::nullopt;
        degrees.push_back(*place);
    }
    return degrees;
}

// Outside its valid area a projection gives positions that transform back to a different place.
std::optional<QPointF> EarthMeasure::InDegrees(QPointF map) const
{
    double x = map.x();
    double y = map.y();
    if (m_toDegrees && !m_toDegrees->Transform(1, &x, &y))
        return std::nullopt;
    if (!std::isfinite(x) || !(std::abs(y) <= LargestDegrees))
        return std::nullopt;
    const QPointF degrees(x, y);
    const bool same = !m_fromDegrees
        || (m_fromDegrees->Transform(1, &x, &y) && std::hypot(x - map.x(), y - map.y()) < Tolerance);
    return same ? std::optional(degrees) : std::nullopt;
}

QString LengthText(double length, bool metres)
{
    return metres ? InUnit(length, LengthUnits) : InUnit(length, Plain);
}

QString AreaText(double area, bool metres)
{
    return metres ? InUnit(area, AreaUnits) : InUnit(area, Plain);
}

} // namespace Orvane
