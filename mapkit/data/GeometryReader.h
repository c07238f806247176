// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/MapEdges.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/GeometryChoice.h"

#include <memory>
#include <optional>
#include <vector>

class OGRCoordinateTransformation;
class OGRGeometry;
class OGRPolygon;
class OGRSimpleCurve;
class OGRSpatialReference;

namespace Orvane {

class BlobGeometry;

/// What is done with geometries besides the transformation.
struct GeometryRules {
    GeometryChoice choice; ///< other kinds are left out
    /// Set for coordinates in degrees: what passes the edges of the map is cut there, and what lies beyond
    /// its latitudes is moved to them.
    std::optional<MapEdges> edges = std::nullopt;
};

/// The rules for data in that system on a map in a system as in CoordinateSystems.h.
GeometryRules
RulesFor(const OGRSpatialReference& own, const QString& mapSystem, const GeometryChoice& choice);

/// Adds GDAL geometries of every kind to a feature set, with curves as line strings, and transforms them.
/// Vertices that cannot be transformed, such as a latitude of 95 degrees, are left out.
class GeometryReader
{
public:
    /// features: filled, not owned. transformation: nullptr leaves coordinates as they are.
    GeometryReader(
        FeatureSet& features, std::shared_ptr<OGRCoordinateTransformation> transformation,
        const GeometryRules& rules = {});
    ~GeometryReader();

    /// Adds one feature, or several for a collection. featureID: the source's ID, for all of them.
    void Add(const OGRGeometry& geometry, qint64 featureID = NoFeatureID);
    /// The same for a geometry that was read past GDAL.
    void Add(const BlobGeometry& geometry, qint64 featureID);

private:
    bool BeginFeature(FeatureKind kind);
    void AddLinear(const OGRGeometry& geometry);
    void AddPart(const BlobGeometry& geometry, size_t part, FeatureKind kind);
    void AddPoint(double x, double y);
    void AddRings(const OGRPolygon& polygon);
    void AddCurve(const OGRSimpleCurve& curve, FeatureKind kind);
    void AddVertices(FeatureKind kind);
    bool MayPassMeridian() const;
    bool AddCut(FeatureKind kind);
    void AddWithinEdges();
    void AddCoordinates();

    FeatureSet& m_features;
    std::shared_ptr<OGRCoordinateTransformation> m_transformation;
    GeometryRules m_rules;
    qint64 m_featureID = NoFeatureID; // of the feature being read
    std::vector<double> m_x, m_y; // the part being read
    std::vector<QPointF> m_points;
};

} // namespace Orvane
