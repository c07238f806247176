// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerValues.h>

#include <QColor>

namespace Orvane {

/// True when any bit of the top byte is set: nothing is drawn in such a colour.
constexpr bool IsTransparent(qint32 colour)
{
    return (quint32(colour) & 0xFF000000U) != 0;
}

/// The colour as pickers list it: TransparentColour for a transparent one, else the plain BGR value.
constexpr qint32 ListedColour(qint32 colour)
{
    return IsTransparent(colour) ? TransparentColour : colour;
}

/// The colour to paint with; the top byte is ignored.
inline QColor QColorFromBgr(qint32 colour)
{
    return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

/// The BGR integer of a colour given as red, green, blue; top byte 0.
constexpr qint32 Bgr(QRgb rgb)
{
    return qint32(((rgb & 0xFFU) << 16) | (rgb & 0xFF00U) | ((rgb >> 16) & 0xFFU));
}

/// The BGR integer, top byte 0.
inline qint32 BgrFromQColor(const QColor& colour)
{
    return colour.red() | colour.green() << 8 | colour.blue() << 16;
}

} // namespace Orvane
