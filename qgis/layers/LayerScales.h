// SPDX-License-Identifier: MIT
#pragma once

class QgsMapLayer;

namespace Orvane {

/// The scales between which a layer is shown, as denominators; 0 means no limit. QGIS calls the smaller
/// number the maximum scale.
struct LayerScales {
    double minimum = 0; ///< the column MinVisScale
    double maximum = 0; ///< the column MaxVisScale
};

/// No limits at all for a layer that QGIS shows at every scale.
LayerScales ReadScales(const QgsMapLayer& layer);
/// Numbers beyond all scales mean no limit, too.
void WriteScales(QgsMapLayer& layer, const LayerScales& scales);

} // namespace Orvane
