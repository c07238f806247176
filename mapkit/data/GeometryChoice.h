// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>

#include <vector>

namespace Orvane {

/// The columns of a table that hold the places of its rows: two with numbers, or one with a geometry as text.
struct CoordinateColumns {
    QString x; ///< east, or longitude
    QString y; ///< north, or latitude
    QString wkt; ///< geometries as well-known text; x and y are then empty

    bool IsEmpty() const { return wkt.isEmpty() && (x.isEmpty() || y.isEmpty()); }
    bool operator==(const CoordinateColumns&) const = default;
};

/// What a layer takes from the geometries of its source.
///
///     GeometryChoice points;
///     points.kinds = {FeatureKind::Point};
///     FeatureSet features = source.Read(layer, {}, system, progress, points);
struct GeometryChoice {
    CoordinateColumns columns; ///< for a table without geometry; otherwise empty
    std::vector<FeatureKind> kinds; ///< the kinds that the layer shows; empty for all

    bool Takes(FeatureKind kind) const;
    bool operator==(const GeometryChoice&) const = default;

    /// As a text for a file; empty for the default. FromText returns the default for a text that it does not
    /// understand.
    QString ToText() const;
    static GeometryChoice FromText(const QString& text);
};

} // namespace Orvane
