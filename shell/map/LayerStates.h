// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <vector>

namespace Orvane {

/// Why visible layers are not drawn: the map's scale obscures them, or their source cannot be read. The layer
/// control shows that with the layer's name.
///
///     const QSet<qint32> changed = states.Update(layers, unreadable, canvas.ScaleDenominator());
///     client.RefreshListedNames(changed);
class LayerStates
{
public:
    /// Takes the current layers, at the scale 1 : denominator, and returns those whose state has changed.
    /// unreadable: IDs of layers whose source cannot be read.
    QSet<qint32>
    Update(const std::vector<MapLayer>& layers, const QSet<qint32>& unreadable, double denominator);

    /// The name with the marker of the layer's state, as the layer control recognises it: "Roads (Obscured)".
    /// A source that cannot be read takes precedence over the scale.
    QString Marked(qint32 layerID, const QString& name) const;

private:
    enum class State { Obscured, Suppressed };

    QHash<qint32, State> m_states; // only layers that are one of the two
};

} // namespace Orvane
