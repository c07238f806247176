// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/showing/ShownBar.h"
#include "component/model/LayerTreeEntries.h"

#include <optional>
#include <vector>

namespace Orvane {

class ShownOnly;

/// How many layers are shown while "Show Only These" has changed some. Meanwhile the quick modes of all
/// layers are kept here, so that a change of few layers does not read all of them again. Each member that
/// reads raises what the host and its database raise; the count is then as before.
class ShownLayers
{
public:
    /// Reads all layers.
    void Read();
    /// Counts again after layers got these modes, and no others changed. Reads all layers only if one of
    /// these is new.
    void Follow(const std::vector<LayerMode>& changed);
    /// As if nothing had been changed.
    void Forget();

    /// Whether the host kept what "Show Only These" had changed when this was read last. Even then Count may
    /// be nothing: the layers may have their own modes again.
    bool HasChanges() const { return !m_modes.empty(); }
    /// Nothing: all layers are shown in their own modes.
    const std::optional<ShownCount>& Count() const { return m_count; }

private:
    bool Update(const std::vector<LayerMode>& changed);
    void CountFor(const ShownOnly& shownOnly);

    std::vector<LayerMode> m_modes; ///< of all layers, by ID; empty while nothing is changed
    std::optional<ShownCount> m_count;
};

} // namespace Orvane
