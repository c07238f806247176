// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerNodes.h"
#include "qgis/layers/LayerValues.h"

class QgsMapLayer;

namespace Orvane {

/// Whether the layer is ticked in the project's tree: a boolean, or Null if it is not in the tree. The groups
/// above it do not count. A layer that is hidden by its quick mode has the tick that it had before.
Value ReadVisible(const QgsMapLayer& layer, const LayerNodes& nodes);

/// Ticks or unticks the layer in the project's tree; while it is hidden by its quick mode, the tick is kept
/// for later. Nothing happens if the layer is not in the tree.
void WriteVisible(QgsMapLayer& layer, const LayerNodes& nodes, bool visible);

} // namespace Orvane
