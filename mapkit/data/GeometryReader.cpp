// SPDX-License-Identifier: MIT
#include "mapkit/data/GeometryReader.h"

#include "mapkit/common/GdalErrors.h"

#include <ogr_geometry.h>
#include <ogr_spatialref.h>

namespace Orvane {

GeometryReader::GeometryReader(
    FeatureSet& features, std::unique_ptr<OGRCoordinateTransformation> transformation)
    : m_features(features), m_transformation(std::move(transformation))
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

void GeometryReader::AddLinear(const OGRGeometry& geometry)
{
    switch (wkbFlatten(geometry.getGeometryType())) {
    case wkbPoint:
        m_features.BeginFeature(FeatureKind::Point, m_featureID);
        m_x.assign(1, geometry.toPoint()->getX());
        m_y.assign(1, geometry.toPoint()->getY());
        if (!geometry.IsEmpty())
            AddCoordinates();
        return;
    case wkbLineString:
        m_features.BeginFeature(FeatureKind::Line, m_featureID);
        AddCurve(*geometry.toLineString());
        return;
    case wkbPolygon:
    case wkbTriangle:
        m_features.BeginFeature(FeatureKind::Area, m_featureID);
        AddRings(*geometry.toPolygon());
        return;
    case wkbMultiPolygon:
        m_features.BeginFeature(FeatureKind::Area, m_featureID);
        for (const OGRPolygon* polygon : geometry.toMultiPolygon())
            AddRings(*polygon);
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

void GeometryReader::AddRings(const OGRPolygon& polygon)
{
    for (const OGRLinearRing* ring : polygon)
        AddCurve(*ring);
}

void GeometryReader::AddCurve(const OGRSimpleCurve& curve)
{
    const auto count = size_t(curve.getNumPoints());
    m_x.resize(count);
    m_y.resize(count);
    if (count == 0)
        return;
    curve.getPoints(m_x.data(), sizeof(double), m_y.data(), sizeof(double));
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
