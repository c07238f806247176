// SPDX-License-Identifier: MIT
#include "mapkit/coordinates/BoxOnMap.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/Antimeridian.h"
#include "mapkit/coordinates/MapEdges.h"
#include "mapkit/coordinates/SystemFacts.h"
#include "mapkit/coordinates/SystemReference.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <memory>
#include <vector>

namespace Orvane {

namespace {

constexpr int Cells = 32; // along each side of the box
constexpr int Halvings = 12; // of a cell, while the outermost place is looked for
constexpr int Around = 2; // places on each side of it in one step
constexpr int AlongEdge = 64;
constexpr double BesideEdge = 1e-9; // degrees; the edge itself may be taken for the other one
constexpr double WholeTurn = 359.9; // degrees; some systems leave out the date line itself
constexpr double OnePoint = 1e-9; // of the box

using Antimeridian::Points;
using Transformation = std::unique_ptr<OGRCoordinateTransformation>;
using Measure = double (*)(QPointF place);

constexpr std::array<Measure, 4> Sides
    = {[](QPointF place) { return -place.x(); }, [](QPointF place) { return place.x(); },
       [](QPointF place) { return -place.y(); }, [](QPointF place) { return place.y(); }};

// Where a map ends, in degrees.
struct MapLimits {
    double middle;
    double south;
    double north;
};

MapLimits LimitsOf(const QString& mapSystem)
{
    const MapEdges edges = EdgesOf(mapSystem);
    MapLimits limits{edges.middle, -edges.mostLatitude, edges.mostLatitude};
    const Box area = FactsOf(mapSystem).area;
    if (area.Width() >= WholeTurn && area.minY >= 0)
        limits.south = -area.minY;
    if (area.Width() >= WholeTurn && area.maxY <= 0)
        limits.north = -area.maxY;
    return limits;
}

// Longitude and latitude on the map's own ellipsoid, if they are in degrees from Greenwich.
OGRSpatialReference DegreesOf(const OGRSpatialReference& map)
{
    const std::unique_ptr<OGRSpatialReference> own(map.CloneGeogCS());
    const double degree = 3.14159265358979323846 / 180;
    const bool isUsual
        = own && std::abs(own->GetAngularUnits() - degree) < 1e-12 && own->GetPrimeMeridian() == 0;
    OGRSpatialReference degrees = isUsual ? *own : ReferenceOf(QStringLiteral("EPSG:4326"));
    degrees.SetAxisMappingStrategy(OAMS_TRADITIONAL_GIS_ORDER);
    return degrees;
}

// What cannot be transformed is no finite point.
Points MovedPoints(OGRCoordinateTransformation& transformation, const Points& points)
{
    std::vector<double> x;
    std::vector<double> y;
    x.reserve(points.size());
    y.reserve(points.size());
    for (const QPointF& point : points) {
        x.push_back(point.x());
        y.push_back(point.y());
    }
    std::vector<int> done(points.size(), FALSE);
    transformation.Transform(int(points.size()), x.data(), y.data(), nullptr, done.data());
    Points moved;
    moved.reserve(points.size());
    for (size_t i = 0; i < points.size(); ++i)
        moved.push_back(done[i] ? QPointF(x[i], y[i]) : QPointF(HUGE_VAL, HUGE_VAL));
    return moved;
}

bool IsKnown(QPointF point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

// Looks for the extent. Shares of the box go from 0 to 1.
class BoxSearch
{
public:
    BoxSearch(
        const Box& box, const OGRSpatialReference& system, const OGRSpatialReference& map, MapLimits limits)
        : m_box(box), m_limits(limits), m_isProjected(system.IsProjected() != 0)
    {
        const OGRSpatialReference degrees = DegreesOf(map);
        m_toDegrees.reset(OGRCreateCoordinateTransformation(&system, &degrees));
        m_fromDegrees.reset(m_toDegrees ? m_toDegrees->GetInverse() : nullptr);
        m_toMap.reset(OGRCreateCoordinateTransformation(&degrees, &map));
    }

    bool IsPossible() const { return m_toDegrees && m_fromDegrees && m_toMap; }

    Box Find()
    {
        Points shares;
        shares.reserve(size_t(Cells + 1) * size_t(Cells + 1));
        for (int row = 0; row <= Cells; ++row) {
            for (int column = 0; column <= Cells; ++column)
                shares.emplace_back(double(column) / Cells, double(row) / Cells);
        }
        const Points degrees = DegreesAt(shares);
        const Points places = Add(degrees);
        for (const Measure side : Sides)
            AddOutermost(shares, places, side);
        AddEdges(degrees);
        AddPole(Antimeridian::Pole);
        AddPole(-Antimeridian::Pole);
        return m_found;
    }

private:
    // Within the map's limits.
    Points DegreesAt(const Points& shares) const
    {
        Points own;
        own.reserve(shares.size());
        for (const QPointF& share : shares)
            own.emplace_back(m_box.minX + share.x() * m_box.Width(), m_box.minY + share.y() * m_box.Height());
        Points degrees = MovedPoints(*m_toDegrees, own);
        for (QPointF& point : degrees) {
            if (IsKnown(point))
                point
                    = {m_limits.middle + std::remainder(point.x() - m_limits.middle, Antimeridian::Turn),
                       std::clamp(point.y(), m_limits.south, m_limits.north)};
        }
        return degrees;
    }

    // Returns the places on the map.
    Points Add(const Points& degrees)
    {
        Points places = MovedPoints(*m_toMap, degrees);
        for (const QPointF& place : places) {
            if (IsKnown(place))
                m_found.Add(place);
        }
        return places;
    }

    // The outermost place lies somewhere around the outermost one of the grid.
    void AddOutermost(Points shares, Points places, Measure side)
    {
        double step = 1.0 / Cells / Around;
        for (int i = 0; i < Halvings; ++i, step /= 2) {
            const QPointF* best = nullptr;
            const QPointF* centre = nullptr;
            for (size_t at = 0; at < places.size(); ++at) {
                if (!IsKnown(places[at]) || (best && side(places[at]) <= side(*best)))
                    continue;
                best = &places[at];
                centre = &shares[at];
            }
            if (!centre)
                return;
            shares = SharesAround(*centre, step);
            places = Add(DegreesAt(shares));
        }
    }

    static Points SharesAround(QPointF centre, double step)
    {
        Points shares;
        shares.reserve(size_t(2 * Around + 1) * size_t(2 * Around + 1));
        for (int row = -Around; row <= Around; ++row) {
            for (int column = -Around; column <= Around; ++column)
                shares.emplace_back(
                    std::clamp(centre.x() + column * step, 0.0, 1.0),
                    std::clamp(centre.y() + row * step, 0.0, 1.0));
        }
        return shares;
    }

    // Where neighbours in the grid lie on both sides of the map's edge, the box reaches both edges.
    void AddEdges(const Points& degrees)
    {
        Box passage; // only its latitudes count
        for (size_t i = 0; i < degrees.size(); ++i) {
            const bool isLast = (i + 1) % (Cells + 1) == 0;
            if (!isLast && IsPassage(degrees[i], degrees[i + 1]))
                AddPair(passage, degrees[i], degrees[i + 1]);
            const size_t next = i + Cells + 1;
            if (next < degrees.size() && IsPassage(degrees[i], degrees[next]))
                AddPair(passage, degrees[i], degrees[next]);
        }
        if (passage.IsEmpty())
            return;
        Points edges;
        edges.reserve(2 * size_t(AlongEdge + 2));
        const double half = Antimeridian::HalfTurn - BesideEdge;
        const auto addBoth = [&](double latitude) {
            edges.emplace_back(m_limits.middle - half, latitude);
            edges.emplace_back(m_limits.middle + half, latitude);
        };
        for (int i = 0; i <= AlongEdge; ++i)
            addBoth(passage.minY + passage.Height() * i / AlongEdge);
        addBoth(std::clamp(0.0, passage.minY, passage.maxY)); // most maps are widest at the equator
        Add(edges);
    }

    static bool IsPassage(QPointF one, QPointF other)
    {
        return IsKnown(one) && IsKnown(other) && std::abs(one.x() - other.x()) > Antimeridian::HalfTurn;
    }

    static void AddPair(Box& box, QPointF one, QPointF other)
    {
        box.Add(one);
        box.Add(other);
    }

    // A pole within the box is a whole parallel of latitude on many maps.
    void AddPole(double latitude)
    {
        if (!m_isProjected || !HasPole(latitude))
            return;
        const double half = Antimeridian::HalfTurn - BesideEdge;
        Points parallel;
        parallel.reserve(AlongEdge + 1);
        for (int i = 0; i <= AlongEdge; ++i)
            parallel.emplace_back(
                m_limits.middle - half + 2 * half * i / AlongEdge,
                std::clamp(latitude, m_limits.south, m_limits.north));
        Add(parallel);
    }

    // Where a pole is a line, as in a world map, the box reaches only a part of it.
    bool HasPole(double latitude) const
    {
        const Points poles = MovedPoints(*m_fromDegrees, {{-120, latitude}, {0, latitude}, {120, latitude}});
        Box spread;
        for (const QPointF& pole : poles) {
            if (!IsKnown(pole) || pole.x() < m_box.minX || pole.x() > m_box.maxX || pole.y() < m_box.minY
                || pole.y() > m_box.maxY)
                return false;
            spread.Add(pole);
        }
        return spread.Width() <= OnePoint * m_box.Width() && spread.Height() <= OnePoint * m_box.Height();
    }

    Box m_box;
    MapLimits m_limits;
    bool m_isProjected;
    Transformation m_toDegrees;
    Transformation m_fromDegrees;
    Transformation m_toMap;
    Box m_found;
};

} // namespace

Box BoxOnMap(const Box& box, const QString& system, const QString& mapSystem)
{
    const GdalErrors quiet;
    const OGRSpatialReference source = ReferenceOf(system);
    const OGRSpatialReference map = ReferenceOf(mapSystem);
    if (box.IsEmpty() || source.IsEmpty() || map.IsEmpty())
        return {};
    if (source.IsSame(&map))
        return box;
    BoxSearch search(box, source, map, LimitsOf(mapSystem));
    const Box found = search.IsPossible() ? search.Find() : Box();
    return found.Width() > 0 && found.Height() > 0 ? found : Box();
}

} // namespace Orvane
