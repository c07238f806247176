// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"
#include "qgis/layers/LayerWriter.h"

class QgsMapLayer;

namespace Orvane {

/// Fills the columns that the layer's symbols show, from Color to LineThickness; Null for a layer without
/// vectors.
void ReadSymbolColumns(LayerValues& values, const QgsMapLayer& layer);

/// Gives the layer a renderer with the columns that differ and are not Null in `after`, and notes in
/// `written` what could be done. setRenderer: as for WriteLayer.
void WriteSymbolColumns(
    WrittenLayer& written, QgsMapLayer& layer, const LayerValues& before, const LayerValues& after,
    const RendererSetter& setRenderer);

} // namespace Orvane
