// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerNodes.h"

#include <QtGlobal>

#include <optional>

class QgsMapLayer;

namespace Orvane {

/// A quick mode as the column OverrideMode stores it.
inline constexpr qint32 NormalMode = 0;
inline constexpr qint32 BackdropMode = 1;
inline constexpr qint32 HiddenMode = 2;

/// The quick mode of a layer. One that the user has ended in QGIS, by another opacity or by a tick, counts as
/// NormalMode.
qint32 ReadOverrideMode(const QgsMapLayer& layer, const LayerNodes& nodes);

/// Backdrop lowers the layer's opacity to 0.35 of what it was, hidden unticks it; each mode first takes back
/// the one before. Any other number means normal. False if the layer cannot have the mode, e.g. if it is not
/// in the tree; it is normal then.
bool WriteOverrideMode(QgsMapLayer& layer, const LayerNodes& nodes, qint32 mode);

/// Forgets a mode that the user has ended in QGIS. Without it, a layer that was hidden, ticked and unticked
/// in QGIS would count as hidden again. Nothing happens to other layers.
void ForgetEndedMode(QgsMapLayer& layer, const LayerNodes& nodes);

/// The tick that a hidden layer gets back; nothing if the layer is not hidden.
std::optional<bool> TickBeforeHiding(const QgsMapLayer& layer, const LayerNodes& nodes);
/// Changes that tick. The layer must be hidden.
void SetTickBeforeHiding(QgsMapLayer& layer, bool ticked);

} // namespace Orvane
