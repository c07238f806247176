// SPDX-License-Identifier: MIT
#pragma once

#include "component/model/LayerTreeEntries.h"

#include <OrvaneShellLib/LayerValues.h>

#include <algorithm>
#include <vector>

namespace Orvane {

/// The quick mode that all layers share (1, 2 or 4); 0 (various) where they differ, or without layers.
inline qint16 CommonMode(const std::vector<LayerMode>& modes)
{
    const bool isCommon = std::all_of(modes.begin(), modes.end(), [&](const LayerMode& mode) {
        return mode.quickMode == modes.front().quickMode;
    });
    return isCommon && !modes.empty() ? modes.front().quickMode : qint16(QuickMode::Various);
}

} // namespace Orvane
