// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerValues.h>
#include <orvane/OrvaneShellLib/Value.h>
#include <orvane/OrvaneShellLib/ValueConversions.h>

#include <QtGlobal>

#include <optional>

namespace Orvane {

/// The quick mode (1 normal, 2 backdrop, 4 hidden) for a value of the OverrideMode column: 1 for Null and for
/// any number that is not a mode. Raises 13 (type mismatch) for a text that holds no number.
inline qint16 QuickModeFromOverrideMode(const Value& overrideMode)
{
    const double mode = overrideMode.IsNull() ? 0 : ToDouble(overrideMode);
    if (mode == 1)
        return QuickMode::Backdrop;
    return mode == 2 ? QuickMode::Hidden : QuickMode::Normal;
}

/// The value to store in OverrideMode for a quick mode. Nothing for 0 ("various") and for any other value
/// than 1, 2 or 4: the column then stays as it is.
inline std::optional<qint16> OverrideModeFromQuickMode(qint16 quickMode)
{
    switch (quickMode) {
    case QuickMode::Normal:
        return qint16(0);
    case QuickMode::Backdrop:
        return qint16(1);
    case QuickMode::Hidden:
        return qint16(2);
    default:
        return std::nullopt;
    }
}

} // namespace Orvane
