// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <vector>

class OGRCoordinateTransformation;
struct geod_geodesic;

namespace Orvane {

/// Measures on the earth's ellipsoid, independent of how the map's projection distorts lengths and areas. If
/// the map's coordinate system is not known, it measures on the plane, in map units.
///
///     const EarthMeasure measure(document.System());
///     const auto metres = measure.Length(line);
class EarthMeasure
{
public:
    /// mapSystem: as in CoordinateSystems.h.
    explicit EarthMeasure(const QString& mapSystem);
    EarthMeasure(EarthMeasure&&) noexcept;
    EarthMeasure& operator=(EarthMeasure&&) noexcept;
    ~EarthMeasure();

    /// False if lengths and areas are in map units.
    bool KnowsEarth() const { return m_ellipsoid != nullptr; }

    /// Length of a line of map points, each joined to the next by the shortest path, in metres; nothing if a
    /// point is not on the earth.
    std::optional<double> Length(std::span<const QPointF> line) const;
    /// Area of a ring of map points, closed automatically, in square metres and never negative; nothing if a
    /// point is not on the earth.
    std::optional<double> Area(std::span<const QPointF> ring) const;

private:
    std::optional<QPointF> InDegrees(QPointF map) const;
    std::optional<std::vector<QPointF>> InDegrees(std::span<const QPointF> points) const;

    std::unique_ptr<geod_geodesic> m_ellipsoid;
    std::unique_ptr<OGRCoordinateTransformation> m_toDegrees; // nullptr: the map is in degrees, or unknown
    std::unique_ptr<OGRCoordinateTransformation> m_fromDegrees; // both are set, or neither
};

/// A length as text for the user, with numbers as in the locale: "12.3 m", "4.56 km". Map units are shown
/// without a unit.
QString LengthText(double length, bool metres);
/// An area as text for the user: "12.3 m²", "4.56 ha", "7.89 km²". Map units are shown without a unit.
QString AreaText(double area, bool metres);

} // namespace Orvane
