// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QPointF>
#include <QString>
#include <QtGlobal>

#include <span>
#include <vector>

namespace Orvane {

enum class FeatureKind : quint8 {
    Point, ///< each vertex of each part is a symbol
    Line, ///< each part is a line string
    Area, ///< each part is a closed ring; rings within rings are holes
};

/// The ID of a feature that has no ID in its source.
inline constexpr qint64 NoFeatureID = -1;

/// The geometries of one layer in flat arrays, in the map's coordinate system. It is filled once, then shared
/// and never changed, so that any thread may draw it.
///
///     FeatureSet roads;
///     roads.BeginFeature(FeatureKind::Line);
///     roads.AddPart(points);
class FeatureSet
{
public:
    struct Feature {
        Box bounds; ///< of all parts
        qint64 featureID = NoFeatureID; ///< the ID in the source
        quint32 firstPart = 0; ///< index into the parts
        quint32 endPart = 0; ///< one past the last part
        FeatureKind kind = FeatureKind::Point;
    };

    /// The parts added from now on belong to a new feature. featureID: several features may have the same
    /// one, for example the members of a collection.
    void BeginFeature(FeatureKind kind, qint64 featureID = NoFeatureID);
    /// Adds a part to the feature begun last. Vertices that are not finite are left out, and so is a part
    /// without vertices.
    void AddPart(std::span<const QPointF> points);

    const std::vector<Feature>& Features() const { return m_features; }
    /// The source's ID of a feature; NoFeatureID if it does not come from a source.
    qint64 FeatureId(size_t index) const { return m_features[index].featureID; }
    std::span<const QPointF> Part(quint32 index) const&;
    /// Deleted: the part would outlive its set.
    std::span<const QPointF> Part(quint32 index) const&& = delete;
    /// The bounds of all features; empty if there are none.
    const Box& Bounds() const { return m_bounds; }
    /// Whether there is a feature of that kind.
    bool Has(FeatureKind kind) const { return m_kinds[size_t(kind)]; }
    size_t VertexCount() const { return m_points.size(); }
    /// How much memory the features use.
    double Bytes() const
    {
        return double(m_points.size() * sizeof(QPointF) + m_features.size() * sizeof(Feature));
    }
    /// The coordinate system that the data were in, as in CoordinateSystems.h; empty if it is not known.
    const QString& SourceSystem() const { return m_sourceSystem; }
    void SetSourceSystem(const QString& system) { m_sourceSystem = system; }
    /// How many vertices were left out.
    size_t LeftOutCount() const { return m_leftOut; }
    /// Counts vertices that were left out of what is copied into this set.
    void AddLeftOut(size_t count) { m_leftOut += count; }

private:
    std::vector<QPointF> m_points;
    std::vector<size_t> m_partEnds;
    std::vector<Feature> m_features;
    Box m_bounds;
    size_t m_leftOut = 0;
    QString m_sourceSystem;
    bool m_kinds[3] = {}; // by kind
};

} // namespace Orvane
