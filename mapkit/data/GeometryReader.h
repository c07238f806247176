// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <memory>
#include <vector>

class OGRCoordinateTransformation;
class OGRGeometry;
class OGRPolygon;
class OGRSimpleCurve;

namespace Orvane {

/// Adds GDAL geometries of every kind to a feature set, with curves as line strings, and transforms them.
/// Vertices that cannot be transformed, such as a latitude of 95 degrees, are left out.
class GeometryReader
{
public:
    /// features: filled, not owned. transformation: nullptr leaves coordinates as they are.
    GeometryReader(FeatureSet& features, std::unique_ptr<OGRCoordinateTransformation> transformation);
    ~GeometryReader();

    /// Adds one feature, or several for a collection. featureID: the source's ID, for all of them.
    void Add(const OGRGeometry& geometry, qint64 featureID = NoFeatureID);

private:
    void AddLinear(const OGRGeometry& geometry);
    void AddRings(const OGRPolygon& polygon);
    void AddCurve(const OGRSimpleCurve& curve);
    void AddCoordinates();

    FeatureSet& m_features;
    std::unique_ptr<OGRCoordinateTransformation> m_transformation;
    qint64 m_featureID = NoFeatureID; // of the feature being read
    std::vector<double> m_x, m_y; // the part being read
    std::vector<QPointF> m_points;
};

} // namespace Orvane
