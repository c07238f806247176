// SPDX-License-Identifier: MIT
#include "shell/features/FeatureSelection.h"

namespace Orvane {

void FeatureSelection::Set(FeatureKeys keys)
{
    if (keys == m_keys)
        return;
    m_keys = std::move(keys);
    emit Changed();
}

void FeatureSelection::Add(const FeatureKeys& keys)
{
    FeatureKeys all = m_keys;
    all.insert(keys.begin(), keys.end());
    Set(std::move(all));
}

void FeatureSelection::Toggle(const FeatureKey& key)
{
    FeatureKeys keys = m_keys;
    if (keys.erase(key) == 0)
        keys.insert(key);
    Set(std::move(keys));
}

void FeatureSelection::Keep(std::span<const MapLayer> layers)
{
    if (m_keys.empty())
        return;
    std::set<qint32> selectable;
    for (const MapLayer& layer : layers) {
        if (layer.flags.selectable && layer.flags.hitable)
            selectable.insert(layer.layerID);
    }
    FeatureKeys kept = m_keys;
    std::erase_if(kept, [&](const FeatureKey& key) { return !selectable.contains(key.layerID); });
    Set(std::move(kept));
}

} // namespace Orvane
