// SPDX-License-Identifier: MIT
#include "ovctrls/EventArguments.h"

#include <QKeyEvent>

#include <algorithm>
#include <array>

namespace Orvane {

namespace {

struct KeyCode {
    int qtKey;
    qint16 code;
};

constexpr std::array keyCodes{
    KeyCode{Qt::Key_Backspace, 8},     KeyCode{Qt::Key_Tab, 9},          KeyCode{Qt::Key_Backtab, 9},
    KeyCode{Qt::Key_Clear, 12},        KeyCode{Qt::Key_Return, 13},      KeyCode{Qt::Key_Enter, 13},
    KeyCode{Qt::Key_Shift, 16},        KeyCode{Qt::Key_Control, 17},     KeyCode{Qt::Key_Alt, 18},
    KeyCode{Qt::Key_Pause, 19},        KeyCode{Qt::Key_CapsLock, 20},    KeyCode{Qt::Key_Escape, 27},
    KeyCode{Qt::Key_Space, 32},        KeyCode{Qt::Key_PageUp, 33},      KeyCode{Qt::Key_PageDown, 34},
    KeyCode{Qt::Key_End, 35},          KeyCode{Qt::Key_Home, 36},        KeyCode{Qt::Key_Left, 37},
    KeyCode{Qt::Key_Up, 38},           KeyCode{Qt::Key_Right, 39},       KeyCode{Qt::Key_Down, 40},
    KeyCode{Qt::Key_Select, 41},       KeyCode{Qt::Key_Print, 44},       KeyCode{Qt::Key_Insert, 45},
    KeyCode{Qt::Key_Delete, 46},       KeyCode{Qt::Key_Help, 47},        KeyCode{Qt::Key_Menu, 93},
    KeyCode{Qt::Key_NumLock, 144},     KeyCode{Qt::Key_ScrollLock, 145}, KeyCode{Qt::Key_Semicolon, 186},
    KeyCode{Qt::Key_Equal, 187},       KeyCode{Qt::Key_Comma, 188},      KeyCode{Qt::Key_Minus, 189},
    KeyCode{Qt::Key_Period, 190},      KeyCode{Qt::Key_Slash, 191},      KeyCode{Qt::Key_QuoteLeft, 192},
    KeyCode{Qt::Key_BracketLeft, 219}, KeyCode{Qt::Key_Backslash, 220},  KeyCode{Qt::Key_BracketRight, 221},
    KeyCode{Qt::Key_Apostrophe, 222},
};

constexpr bool IsBetween(int key, int first, int last)
{
    return key >= first && key <= last;
}

constexpr qint16 firstFunctionKey = 112;

} // namespace

qint16 KeyCodeOf(int qtKey)
{
    if (IsBetween(qtKey, Qt::Key_A, Qt::Key_Z) || IsBetween(qtKey, Qt::Key_0, Qt::Key_9))
        return qint16(qtKey);
    if (IsBetween(qtKey, Qt::Key_F1, Qt::Key_F24))
        return qint16(firstFunctionKey + qtKey - Qt::Key_F1);
    const auto found = std::find_if(
        keyCodes.begin(), keyCodes.end(), [qtKey](const KeyCode& entry) { return entry.qtKey == qtKey; });
    return found == keyCodes.end() ? qint16(0) : found->code;
}

qint16 KeyAsciiOf(const QKeyEvent& event)
{
    const bool typesNothing = event.text().isEmpty() || event.key() == Qt::Key_Delete;
    return typesNothing ? qint16(0) : qint16(event.text().front().unicode());
}

qint16 ShiftMaskOf(Qt::KeyboardModifiers modifiers)
{
    return qint16(
        (modifiers & Qt::ShiftModifier ? 1 : 0) + (modifiers & Qt::ControlModifier ? 2 : 0)
        + (modifiers & Qt::AltModifier ? 4 : 0));
}

qint16 ButtonMaskOf(Qt::MouseButtons buttons)
{
    return qint16(
        (buttons & Qt::LeftButton ? 1 : 0) + (buttons & Qt::RightButton ? 2 : 0)
        + (buttons & Qt::MiddleButton ? 4 : 0));
}

} // namespace Orvane
