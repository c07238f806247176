// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>

namespace Orvane {

struct StandardColour {
    qint32 colour; ///< BGR
    const char* name; ///< English; shown through TranslateMsg
};

/// The colours that every colour list offers, in their order.
inline constexpr std::array standardColours{
    StandardColour{0x000000, QT_TR_NOOP("Black")},  StandardColour{0x808080, QT_TR_NOOP("Grey")},
    StandardColour{0xC0C0C0, QT_TR_NOOP("Silver")}, StandardColour{0xFFFFFF, QT_TR_NOOP("White")},
    StandardColour{0xFF0000, QT_TR_NOOP("Blue")},   StandardColour{0x00FF00, QT_TR_NOOP("Green")},
    StandardColour{0x0000FF, QT_TR_NOOP("Red")},    StandardColour{0xFFFF00, QT_TR_NOOP("Cyan")},
    StandardColour{0x00FFFF, QT_TR_NOOP("Yellow")}, StandardColour{0xFF00FF, QT_TR_NOOP("Magenta")},
    StandardColour{0x800000, QT_TR_NOOP("Navy")},   StandardColour{0x008000, QT_TR_NOOP("Dark green")},
    StandardColour{0x000080, QT_TR_NOOP("Maroon")}, StandardColour{0x808000, QT_TR_NOOP("Teal")},
    StandardColour{0x008080, QT_TR_NOOP("Olive")},
};

} // namespace Orvane
