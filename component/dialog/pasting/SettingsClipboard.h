// SPDX-License-Identifier: MIT
#pragma once

#include "component/dialog/pasting/CopiedSettings.h"

#include <QString>

#include <optional>

namespace Orvane {

/// Copied settings on the system's clipboard, in a format of their own, so that they can be pasted in another
/// program with a layer control. Nothing here raises.
namespace SettingsClipboard {

/// Replaces what is on the clipboard. text: what programs get that paste text.
void Put(const CopiedSettings& settings, const QString& text);

/// True if settings are there, readable or not.
bool HasSettings();

/// Nothing if no settings are there, or none that can be read.
std::optional<CopiedSettings> Read();

} // namespace SettingsClipboard

} // namespace Orvane
