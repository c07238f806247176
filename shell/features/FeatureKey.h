// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <set>
#include <tuple>

namespace Orvane {

/// Identifies a feature of the map as long as its source keeps it.
struct FeatureKey {
    qint32 layerID = 0;
    qint64 featureID = 0; ///< the feature's ID in its source

    bool operator==(const FeatureKey&) const = default;
    bool operator<(const FeatureKey& other) const
    {
        return std::tie(layerID, featureID) < std::tie(other.layerID, other.featureID);
    }
};

using FeatureKeys = std::set<FeatureKey>;

} // namespace Orvane
