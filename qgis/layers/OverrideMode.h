// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerNodes.h"

#include <QtGlobal>

#include <optional>

class QgsMapLayer;

namespace Orvane {

/// The quick mode of a layer, as OverrideMode stores it: 0 normal, 1 backdrop, 2 hidden. A mode that the user
/// has ended in QGIS, by another opacity or by a tick, is 0.
qint32 ReadOverrideMode(const QgsMapLayer& layer, const LayerNodes& nodes);

/// Backdrop lowers the layer's opacity to 0.35 of what it was, hidden unticks it; each mode first takes back
/// the one before. Any other number than 1 and 2 means normal. False if the layer cannot have the mode, e.g.
/// if it is not in the tree; it is normal then.
bool WriteOverrideMode(QgsMapLayer& layer, const LayerNodes& nodes, qint32 mode);

/// Forgets a mode that the user has ended in QGIS. Without it, a layer that was hidden, ticked and unticked
/// in QGIS would count as hidden again. Nothing happens to other layers.
void ForgetEndedMode(QgsMapLayer& layer, const LayerNodes& nodes);

/// The tick that a hidden layer gets back; nothing if the layer is not hidden.
std::optional<bool> TickBeforeHiding(const QgsMapLayer& layer, const LayerNodes& nodes);
/// Changes that tick. The layer must be hidden.
void SetTickBeforeHiding(QgsMapLayer& layer, bool ticked);

} // namespace Orvane
