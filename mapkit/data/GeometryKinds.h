// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <functional>
#include <vector>

class OGRGeometry;
class OGRLayer;

namespace Orvane {

struct GeometryChoice;

/// The kinds of geometry in a layer of a source, lines before areas and points before both. A layer that does
/// not declare its kind is looked into: only its first features count, so that a large one takes no time.
/// Area if nothing tells.
std::vector<FeatureKind> KindsOf(OGRLayer& layer);

/// The same for single geometries. Add each, then ask for the kinds; none if all were empty.
class KindCollector
{
public:
    void Add(const OGRGeometry& geometry);
    std::vector<FeatureKind> Kinds() const;

private:
    bool m_found[3] = {}; // by kind
};

/// Whether a layer of that choice shows something of a geometry.
bool HasAnyOf(const OGRGeometry& geometry, const GeometryChoice& choice);

/// Calls visit with the geometry and its kind, or with each member of a collection that holds several kinds.
void ForEachKind(
    const OGRGeometry& geometry, const std::function<void(const OGRGeometry&, FeatureKind)>& visit);

/// Whether a layer has at least one feature. Reads at most the first one.
bool HasFeatures(OGRLayer& layer);

} // namespace Orvane
