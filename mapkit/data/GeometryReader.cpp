// SPDX-License-Identifier: MIT
#include "mapkit/data/GeometryReader.h"

#include "mapkit/common/GdalErrors.h"
#include "mapkit/coordinates/Antimeridian.h"
#include "mapkit/geopackage/BlobGeometry.h"

#include <algorithm>
#include <cmath>
#include <ogr_geometry.h>
#include <ogr_spatialref.h>

namespace Orvane {

namespace {

constexpr double EdgeWidth = 1e-9; // degrees
constexpr double RoundingErrors = 1e-6; // degrees

// Not beyond most degrees from the middle; what is farther away than widest is no such coordinate.
double Within(double value, double middle, double most, double widest)
{
    const bool isOne = std::abs(value - middle) <= widest + RoundingErrors;
    return isOne ? std::clamp(value, middle - most, middle + most) : value;
}

FeatureKind KindOfShape(ShapeKind kind)
{
    switch (kind) {
    case ShapeKind::Point:
        return FeatureKind::Point;
    case ShapeKind::Line:
        return FeatureKind::Line;
    case ShapeKind::Area:
        break;
    }
    return FeatureKind::Area;
}

} // namespace

GeometryRules RulesFor(const OGRSpatialReference& own, const QString& mapSystem, const GeometryChoice& choice)
{
    return {choice, own.IsGeographic() ? std::optional(EdgesOf(mapSystem)) : std::nullopt};
}

GeometryReader::GeometryReader(
    FeatureSet& features, std::shared_ptr<OGRCoordinateTransformation> transformation,
    const GeometryRules& rules)
    : m_features(features), m_transformation(std::move(transformation)), m_rules(rules)
{
}

GeometryReader::~GeometryReader() = default;

void GeometryReader::Add(const OGRGeometry& geometry, qint64 featureID)
{
    m_featureID = featureID;
    if (!geometry.hasCurveGeometry()) {
        AddLinear(geometry);
        return;
    }
    const OGRGeometryUniquePtr linear(geometry.getLinearGeometry());
    if (linear)
        AddLinear(*linear);
}

void GeometryReader::Add(const BlobGeometry& geometry, qint64 featureID)
{
    m_featureID = featureID;
    for (const BlobGeometry::Shape& shape : geometry.Shapes()) {
        const FeatureKind kind = KindOfShape(shape.kind);
        if (!BeginFeature(kind))
            continue;
        for (size_t part = shape.firstPart; part < shape.endPart; ++part)
            AddPart(geometry, part, kind);
    }
}

void GeometryReader::AddPart(const BlobGeometry& geometry, size_t part, FeatureKind kind)
{
    const std::span<const double> x = geometry.X(part);
    const std::span<const double> y = geometry.Y(part);
    if (x.empty())
        return;
    if (kind == FeatureKind::Point) {
        AddPoint(x.front(), y.front());
        return;
    }
    m_x.assign(x.begin(), x.end());
    m_y.assign(y.begin(), y.end());
    AddVertices(kind);
}

bool GeometryReader::BeginFeature(FeatureKind kind)
{
    const bool isTaken = m_rules.choice.Takes(kind);
    if (isTaken)
        m_features.BeginFeature(kind, m_featureID);
    return isTaken;
}

void GeometryReader::AddLinear(const OGRGeometry& geometry)
{
    switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint:
        if (BeginFeature(FeatureKind::Point) && !geometry.IsEmpty())
            AddPoint(geometry.toPoint()->getX(), geometry.toPoint()->getY());
        return;
    case wkbLineString:
        if (BeginFeature(FeatureKind::Line))
            AddCurve(*geometry.toLineString(), FeatureKind::Line);
        return;
    case wkbPolygon:
    case wkbTriangle:
        if (BeginFeature(FeatureKind::Area))
            AddRings(*geometry.toPolygon());
        return;
    case wkbMultiPolygon:
        if (BeginFeature(FeatureKind::Area)) {
            for (const OGRPolygon* polygon : geometry.toMultiPolygon())
                AddRings(*polygon);
        }
        return;
    case wkbPolyhedralSurface:
    case wkbTIN:
        for (const OGRPolygon* polygon : geometry.toPolyhedralSurface())
            AddLinear(*polygon);
        return;
    default:
        if (OGR_GT_IsSubClassOf(geometry.getGeometryType(), wkbGeometryCollection)) {
            for (const OGRGeometry* member : geometry.toGeometryCollection())
                AddLinear(*member);
        }
    }
}

void GeometryReader::AddPoint(double x, double y)
{
    m_x.assign(1, m_rules.edges ? Antimeridian::Longitude(x) : x);
    m_y.assign(1, y);
    AddCoordinates();
}

void GeometryReader::AddRings(const OGRPolygon& polygon)
{
    for (const OGRLinearRing* ring : polygon)
        AddCurve(*ring, FeatureKind::Area);
}

void GeometryReader::AddCurve(const OGRSimpleCurve& curve, FeatureKind kind)
{
    const auto count = size_t(curve.getNumPoints());
    m_x.resize(count);
    m_y.resize(count);
    if (count == 0)
        return;
    curve.getPoints(m_x.data(), sizeof(double), m_y.data(), sizeof(double));
    AddVertices(kind);
}

void GeometryReader::AddVertices(FeatureKind kind)
{
    if (!m_rules.edges)
        AddCoordinates();
    else if (!MayPassMeridian() || !AddCut(kind))
        AddWithinEdges();
}

// A quick look, because it is taken at every part.
bool GeometryReader::MayPassMeridian() const
{
    const auto [west, east] = std::minmax_element(m_x.begin(), m_x.end());
    const double middle = m_rules.edges->middle;
    return *east - *west > Antimeridian::HalfTurn || *east > middle + Antimeridian::HalfTurn
        || *west < middle - Antimeridian::HalfTurn;
}

// Returns false if there was nothing to cut.
bool GeometryReader::AddCut(FeatureKind kind)
{
    m_points.resize(m_x.size());
    for (size_t i = 0; i < m_x.size(); ++i)
        m_points[i] = {m_x[i], m_y[i]};
    const double middle = m_rules.edges->middle;
    if (!Antimeridian::IsPassed(m_points, middle)) {
        std::transform(m_x.begin(), m_x.end(), m_x.begin(), Antimeridian::Longitude);
        return false;
    }
    const std::vector<Antimeridian::Points> parts = kind == FeatureKind::Area
        ? Antimeridian::CutRing(m_points, middle)
        : Antimeridian::CutLine(m_points, middle);
    for (const Antimeridian::Points& part : parts) {
        m_x.resize(part.size());
        m_y.resize(part.size());
        for (size_t i = 0; i < part.size(); ++i) {
            m_x[i] = part[i].x();
            m_y[i] = part[i].y();
        }
        AddWithinEdges();
    }
    return true;
}

// What lies on an edge itself may be drawn at the other one.
void GeometryReader::AddWithinEdges()
{
    const MapEdges& edges = *m_rules.edges;
    const double most = Antimeridian::HalfTurn - (edges.middle == 0 ? 0 : EdgeWidth);
    for (double& x : m_x)
        x = Within(x, edges.middle, most, Antimeridian::HalfTurn);
    for (double& y : m_y)
        y = Within(y, 0, edges.mostLatitude, Antimeridian::Pole);
    AddCoordinates();
}

void GeometryReader::AddCoordinates()
{
    if (m_transformation) {
        const GdalErrors quiet; // a vertex that cannot be transformed becomes infinite
        std::vector<int> succeeded(m_x.size());
        m_transformation->Transform(m_x.size(), m_x.data(), m_y.data(), nullptr, nullptr, succeeded.data());
    }
    m_points.resize(m_x.size());
    for (size_t i = 0; i < m_x.size(); ++i)
        m_points[i] = {m_x[i], m_y[i]};
    m_features.AddPart(m_points);
}

} // namespace Orvane
