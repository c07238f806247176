// SPDX-License-Identifier: MIT
#include "component/model/QuickModeNames.h"

#include <algorithm>

namespace Orvane {

QString QuickModeNames::NameOf(qint16 quickMode)
{
    switch (quickMode) {
    case QuickMode::Normal:
        return QStringLiteral("normal");
    case QuickMode::Backdrop:
        return QStringLiteral("backdrop");
    case QuickMode::Hidden:
        return QStringLiteral("hidden");
    default:
        return {};
    }
}

qint16 QuickModeNames::ModeOf(const QString& name)
{
    const auto* found
        = std::find_if(Modes.begin(), Modes.end(), [&](qint16 mode) { return NameOf(mode) == name; });
    return found == Modes.end() ? QuickMode::Various : *found;
}

} // namespace Orvane
