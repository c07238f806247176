// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerNodes.h"
#include "qgis/layers/LayerValues.h"

class QgsMapLayer;

namespace Orvane {

/// The values of a layer, as QGIS shows it. Null are LayerID, Name, Priority, Style, Pseudo and SystemLayer,
/// which are not read here, and what does not apply: the symbol columns of a raster, or a colour that differs
/// between the classes of a layer. Of a layer whose data are missing only code and tick are known: QGIS saves
/// the rest of it as it was read. Kinds are those of the columns: bool for a flag, qint32, double. Never
/// raises.
LayerValues ReadLayer(const QgsMapLayer& layer, const LayerNodes& nodes);

} // namespace Orvane
