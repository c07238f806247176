// SPDX-License-Identifier: MIT
#include "shell/features/FeatureBounds.h"

namespace Orvane {

namespace {

bool HasKeys(const FeatureKeys& keys, qint32 layerID)
{
    const auto first = keys.lower_bound({layerID, std::numeric_limits<qint64>::min()});
    return first != keys.end() && first->layerID == layerID;
}

} // namespace

Box BoundsOf(std::span<const MapLayer> layers, const FeatureKeys& keys)
{
    Box bounds;
    for (const MapLayer& layer : layers) {
        if (!layer.features || !HasKeys(keys, layer.layerID))
            continue;
        for (const FeatureSet::Feature& feature : layer.features->Features()) {
            if (keys.contains({layer.layerID, feature.featureID}))
                bounds.Add(feature.bounds);
        }
    }
    return bounds;
}

} // namespace Orvane
