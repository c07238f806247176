// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerNodes.h"
#include "qgis/layers/LayerValues.h"

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

class QgsFeatureRenderer;
class QgsMapLayer;
class QgsVectorLayer;

namespace Orvane {

/// Gives a layer a changed renderer, which it then owns.
using RendererSetter
    = std::function<void(QgsVectorLayer& layer, std::unique_ptr<QgsFeatureRenderer> renderer)>;

/// What WriteLayer did.
struct WrittenLayer {
    std::vector<std::string_view>
        refused; ///< columns that QGIS or the layer cannot take, e.g. Color of a raster
};

/// Writes the columns that differ between the two rows to the layer, and its tick to the project's tree. Null
/// in `after` leaves the property as it is. A layer whose data are missing refuses all but its tick. Not
/// written: LayerID, Name, Priority, Style, Pseudo, SystemLayer; and SnapRequired, which WriteSnap sets for
/// many layers at once. setRenderer: called at most once, in place of QgsVectorLayer::setRenderer; the map is
/// not told to draw again. Raises 13 (type mismatch) for a text that holds no number.
WrittenLayer WriteLayer(
    QgsMapLayer& layer, const LayerNodes& nodes, const LayerValues& before, const LayerValues& after,
    const RendererSetter& setRenderer = {});

} // namespace Orvane
