// SPDX-License-Identifier: MIT
#include "shell/map/LayerStates.h"

#include <utility>

namespace Orvane {

QSet<qint32>
LayerStates::Update(const std::vector<MapLayer>& layers, const QSet<qint32>& unreadable, double denominator)
{
    QHash<qint32, State> before = std::exchange(m_states, {});
    for (const MapLayer& layer : layers) {
        if (unreadable.contains(layer.layerID))
            m_states.insert(layer.layerID, State::Suppressed);
        else if (!layer.IsInScale(denominator))
            m_states.insert(layer.layerID, State::Obscured);
    }
    QSet<qint32> changed;
    for (auto now = m_states.cbegin(); now != m_states.cend(); ++now) {
        const auto was = before.constFind(now.key());
        if (was == before.constEnd() || *was != *now)
            changed.insert(now.key());
        before.remove(now.key());
    }
    for (auto gone = before.keyBegin(); gone != before.keyEnd(); ++gone)
        changed.insert(*gone);
    return changed;
}

// The markers are not translated: the layer control recognises and shortens them.
QString LayerStates::Marked(qint32 layerID, const QString& name) const
{
    const auto state = m_states.constFind(layerID);
    if (state == m_states.constEnd())
        return name;
    return name + QLatin1String(*state == State::Obscured ? " (Obscured)" : " (Suppressed)");
}

} // namespace Orvane
