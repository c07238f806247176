// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QHash>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// Whether the project's snapping uses the layer: a boolean, or Null for a layer without vectors. Once
/// layers are told apart, it does not count whether snapping is switched on as a whole.
Value ReadSnap(const QgsMapLayer& layer, const QgsProject& project);

/// Sets for each of the layers whether snapping uses it; others stay as they were. Only if something changes,
/// the project gets the advanced configuration, which alone tells layers apart, and is notified once.
/// Snapping as a whole is switched on with the first layer. Layers without vectors are left out.
void WriteSnap(QgsProject& project, const QHash<QgsMapLayer*, bool>& layers);

} // namespace Orvane
