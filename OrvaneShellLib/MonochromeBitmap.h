// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QtGlobal>

namespace Orvane {

/// A pattern with one bit per pixel, independent of any toolkit. A bit of 1 is drawn in the text (fore)
/// colour, 0 in the background colour.
struct MonochromeBitmap {
    int width = 0; ///< pixels
    int height = 0; ///< pixels
    QByteArray
        rows; ///< height rows from top to bottom, each (width + 7) / 8 bytes, leftmost pixel in the high bit
};

} // namespace Orvane
