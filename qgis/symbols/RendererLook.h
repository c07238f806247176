// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/symbols/SymbolLook.h"

#include <memory>

class QgsFeatureRenderer;

namespace Orvane {

/// What the symbols of a renderer look like: the columns that are the same in all of them. Renderers with a
/// single symbol, categories, classes and rules are known; of others, and of none (nullptr), nothing is.
/// kept: the numbers that were last set for the layer; they only tell apart what looks the same.
SymbolLook ReadRenderer(const QgsFeatureRenderer* renderer, const SymbolLook& kept);

/// A changed renderer.
struct ChangedRenderer {
    std::unique_ptr<QgsFeatureRenderer> renderer; ///< nullptr if nothing could be changed
    TakenColumns taken; ///< what at least one symbol took
};

/// A copy of the renderer with the columns that are set changed in every symbol, and in nothing else: classes
/// keep what tells them apart otherwise. Raises 9 (subscript out of range) for a fill style that is none.
ChangedRenderer
ChangeRenderer(const QgsFeatureRenderer* renderer, const SymbolLook& changes, const SymbolLook& kept);

} // namespace Orvane
