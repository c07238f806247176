// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/CopiedSettings.h"
#include "component/dialog/pasting/Setting.h"
#include "component/model/LayerStyle.h"

#include <OrvaneShellLib/LayerValues.h>

#include <vector>

namespace Orvane {

/// Settings in the numbers of this host's layers, as the panel shows them.
struct PanelSettings {
    LayerStyle style; ///< Null: not known
    qint16 quickMode = QuickMode::Various; ///< 1, 2 or 4; any other: not known

    /// True if the setting is known; one of two slots only if both are.
    bool Has(Setting setting) const;
    /// These settings without all others.
    PanelSettings Only(const SettingSet& settings) const;
};

/// What can be copied of them: not what the panel could not set, such as a fill style that is not in its
/// list. styles: those that the host lists. Raises what the host's conversion of scales raises.
CopiedSettings ToCopy(const PanelSettings& settings, const std::vector<RendererStyle>& styles);

/// The reverse. Not known are a renderer style that the host does not list and a range of scales that is
/// empty in the host's scales. A renderer style is found by its name, and by its number among several of that
/// name.
PanelSettings FromCopy(const CopiedSettings& copied, const std::vector<RendererStyle>& styles);

} // namespace Orvane
