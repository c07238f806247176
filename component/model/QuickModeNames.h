// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerValues.h>

#include <QString>

#include <array>

namespace Orvane {

/// The quick modes by the names under which texts keep them; these are not for users.
namespace QuickModeNames {

/// The modes that have a name.
inline constexpr std::array Modes{QuickMode::Normal, QuickMode::Backdrop, QuickMode::Hidden};

/// Empty for any other mode.
QString NameOf(qint16 quickMode);
/// The other way round; Various for any other text.
qint16 ModeOf(const QString& name);

} // namespace QuickModeNames

} // namespace Orvane
