// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <compare>
#include <set>

namespace Orvane {

/// Names a feature of the map for as long as its source keeps it.
struct FeatureKey {
    qint32 layerID = 0;
    qint64 featureID = 0; ///< as the source counts its features

    auto operator<=>(const FeatureKey&) const = default;
};

using FeatureKeys = std::set<FeatureKey>;

} // namespace Orvane
