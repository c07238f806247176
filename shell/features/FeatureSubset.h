// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <set>

namespace Orvane {

/// A copy of the features that have one of these IDs, in their order.
FeatureSet SubsetOf(const FeatureSet& features, const std::set<qint64>& featureIDs);

/// A copy in which the features of that ID are replaced, where the first of them stands; without any of that
/// ID a plain copy.
FeatureSet WithFeature(const FeatureSet& features, qint64 featureID, const FeatureSet& replacement);

} // namespace Orvane
