// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

/// The Color column of a layer carries two properties: the line colour in its low 24 bits (BGR) and, in its
/// top byte, whether the colour is used for symbols (0) or not (any other value; 0xFF is written).

/// The line colour, top byte 0.
constexpr qint32 ColourPart(qint32 color)
{
    return color & 0x00FFFFFF;
}

/// Whether the colour is used for symbols.
constexpr bool UsesForSymbols(qint32 color)
{
    return (quint32(color) & 0xFF000000U) == 0;
}

/// The value to store for both. colour: its top byte is ignored.
constexpr qint32 JoinColour(qint32 colour, bool useForSymbols)
{
    return qint32(quint32(ColourPart(colour)) | (useForSymbols ? 0U : 0xFF000000U));
}

} // namespace Orvane
