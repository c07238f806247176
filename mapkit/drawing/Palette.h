// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QtGlobal>

namespace Orvane {

/// Stored in a fill colour column for "transparent", and added to a line colour for "symbols keep their own".
inline constexpr qint32 TransparentColour = qint32(0xff000000u);

/// The stored form of a colour: red in the low byte, top byte 0.
constexpr qint32 Bgr(QRgb rgb)
{
    return qint32(((rgb & 0xffu) << 16) | (rgb & 0xff00u) | ((rgb >> 16) & 0xffu));
}

} // namespace Orvane
