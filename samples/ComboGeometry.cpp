// SPDX-License-Identifier: MIT
#include "samples/ComboGeometry.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <cmath>

namespace Orvane {

namespace {

constexpr float swatchWidthLost = 22; // frame, margins and drop-down button
constexpr float swatchHeightLost = 7;
constexpr double lineLengthLost = 22;
constexpr double lineHeightLost = 6;

template <typename Number> Number Finite(Number number)
{
    if (!std::isfinite(number)) {
        throw RunTimeError(
            ErrorNumber::FloatingPointFault, QStringLiteral("A size has no finite value in pixels."));
    }
    return number;
}

} // namespace

SwatchExtent SwatchExtentOf(const ComboSize& combo)
{
    return {
        Finite(float(combo.width / combo.twipsPerPixelX)) - swatchWidthLost,
        Finite(float(combo.height / combo.twipsPerPixelY)) - swatchHeightLost};
}

LineExtent LineExtentOf(const ComboSize& combo)
{
    const qint16 height = ToInt16(Finite(combo.height / combo.twipsPerPixelY - lineHeightLost));
    const qint16 length = ToInt16(std::floor(Finite(combo.width / combo.twipsPerPixelX - lineLengthLost)));
    return {height, length, qint16(std::floor(height / 2.0))};
}

} // namespace Orvane
