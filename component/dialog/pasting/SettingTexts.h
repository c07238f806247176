// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/PanelSettings.h"

#include <QString>

namespace Orvane {

class PropertyPanel;

/// The name of the setting as the panel says it: "Line colour".
QString SettingName(const PropertyPanel& panel, Setting setting);

/// Its value as the user reads it. settings: the setting is known. Raises what the host's conversion of
/// scales raises.
QString SettingText(const PropertyPanel& panel, const PanelSettings& settings, Setting setting);

/// Scales that were copied, as the user reads them, whichever scales the host has.
QString CopiedScalesText(const CopiedSettings::Scales& scales);

/// All known settings, each in a line with its value, below the title.
QString SettingsAsText(const PropertyPanel& panel, const PanelSettings& settings, const QString& title);

} // namespace Orvane
