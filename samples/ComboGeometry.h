// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace Orvane {

/// The size of an owner-drawn combo box and the scale of its screen.
struct ComboSize {
    double width = 0; ///< twips
    double height = 0; ///< twips
    double twipsPerPixelX = 15; ///< 1440 / dots per inch
    double twipsPerPixelY = 15; ///< 1440 / dots per inch
};

/// How large the colour swatches of a combo box are, in pixels, including fractions.
struct SwatchExtent {
    float width = 0; ///< pixels
    float height = 0; ///< pixels
};

/// The position of the line samples in a combo box, in pixels.
struct LineExtent {
    qint16 height = 0; ///< of an item
    qint16 length = 0; ///< of a sample
    qint16 middle = 0; ///< of an item, from its top
};

/// The space that the frame and the button of the combo box leave. Raises 11 (floating-point fault) if a
/// scale of 0 or a huge size gives no finite result.
SwatchExtent SwatchExtentOf(const ComboSize& combo);

/// The same for lines; the height is rounded half to even, the length down. Raises 11 as above, and 6
/// (overflow) for an extent beyond 16 bits.
LineExtent LineExtentOf(const ComboSize& combo);

} // namespace Orvane
