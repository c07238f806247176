// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/showing/ShownOnly.h"
#include "component/model/LayerTreeEntries.h"

#include <functional>
#include <optional>
#include <vector>

namespace Orvane {

/// The quick modes of layers, and what "Show Only These" has changed of them, as the host stores them. All
/// functions raise what the host and its database raise.
namespace ModeStore {

/// True if the host stores with the map what "Show Only These" has changed.
bool KeepsShownOnly();

/// Empty if the host stores nothing of it.
ShownOnly ReadShownOnly();

/// What is to be stored together.
struct Change {
    std::vector<LayerMode> modes; ///< each layer once; without any, nothing is stored
    std::optional<ShownOnly> kept; ///< nothing: it stays as it is
};

/// Stores what plan returns, which may read what is stored, in one transaction, and returns the modes. Does
/// not ask for a redraw.
std::vector<LayerMode> Store(const std::function<Change()>& plan);

} // namespace ModeStore

} // namespace Orvane
