// SPDX-License-Identifier: MIT
#pragma once

#include <Qt>
#include <QtGlobal>

class QKeyEvent;

namespace Orvane {

/// The 16-bit codes in which controls report keys and buttons to their container.

/// The virtual key code of a key: 65 to 90 for letters, 48 to 57 for digits, 32 for the space bar, 13 for
/// both Enter keys, 112 to 135 for F1 to F24 and so on; 0 for a key without a code.
qint16 KeyCodeOf(int qtKey);

/// The UTF-16 code unit that a key press types, control characters included; 0 when it types none.
qint16 KeyAsciiOf(const QKeyEvent& event);

/// Shift 1, Ctrl 2, Alt 4, added up.
qint16 ShiftMaskOf(Qt::KeyboardModifiers modifiers);

/// Left 1, right 2, middle 4, added up.
qint16 ButtonMaskOf(Qt::MouseButtons buttons);

} // namespace Orvane
