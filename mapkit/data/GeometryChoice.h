// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"
#include "mapkit/tables/CoordinateColumns.h"

#include <QString>

#include <vector>

namespace Orvane {

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
