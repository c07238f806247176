// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

/// The values of a check box.
enum CheckValue : qint16 {
    Unchecked = 0,
    Checked = 1,
    Greyed = 2, ///< "various"
};

/// What a mouse click cycles through.
enum CheckCycle : qint16 {
    TwoStateCycle = 0, ///< unchecked, checked; greyed goes to unchecked
    ThreeStateCycle = 1, ///< unchecked, checked, greyed
};

/// The value that a mouse click sets; a value that a check box cannot have is returned unchanged. Any cycle
/// mode other than ThreeStateCycle counts as TwoStateCycle.
constexpr qint16 NextCheckValue(qint16 current, qint16 cycleMode)
{
    switch (current) {
    case Unchecked:
        return Checked;
    case Checked:
        return cycleMode == ThreeStateCycle ? Greyed : Unchecked;
    case Greyed:
        return Unchecked;
    default:
        return current;
    }
}

} // namespace Orvane
