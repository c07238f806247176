// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <set>

namespace Orvane {

/// A copy of the features that have one of these IDs, in their order.
FeatureSet SubsetOf(const FeatureSet& features, const std::set<qint64>& featureIDs);

/// A copy in which the features with this ID are replaced, at the position of the first of them; an unchanged
/// copy if there are none.
FeatureSet WithFeature(const FeatureSet& features, qint64 featureID, const FeatureSet& replacement);

} // namespace Orvane
