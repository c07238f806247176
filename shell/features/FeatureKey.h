// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <set>
#include <tuple>

namespace Orvane {

/// Names a feature of the map for as long as its source keeps it.
struct FeatureKey {
    qint32 layerID = 0;
    qint64 featureID = 0; ///< as the source counts its features

    bool operator==(const FeatureKey&) const = default;
    bool operator<(const FeatureKey& other) const
    {
        return std::tie(layerID, featureID) < std::tie(other.layerID, other.featureID);
    }
};

using FeatureKeys = std::set<FeatureKey>;

} // namespace Orvane
