// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QtGlobal>

class QPalette;

namespace Orvane {

/// Colours of controls are BGR integers (red in the low byte), or, with the top bit set, the number of a
/// system colour, which follows the theme.
namespace SystemColour {

/// &H8000000F: the face of dialogs and buttons.
constexpr qint32 ButtonFace = qint32(0x8000000Fu);
/// &H80000012: the text on it.
constexpr qint32 ButtonText = qint32(0x80000012u);

} // namespace SystemColour

/// True for the number of a system colour.
constexpr bool IsSystemColour(qint32 colour)
{
    return colour < 0;
}

/// The colour to paint with. A system colour is taken from the palette; an unknown one gives the face colour.
QColor ResolveColour(qint32 colour, const QPalette& palette);

} // namespace Orvane
