// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/MonochromeBitmap.h>

namespace Orvane {

/// The fill patterns of the standard shell services: 32 bitmaps of 8 by 8 pixels that tile seamlessly.
/// SolidFill is all foreground, HollowFill all background; the others are hatches, grids, dots, dashes and
/// map symbols (bricks, waves, marsh, trees, sand ...).
namespace FillPatterns {

/// The bitmap of a fill style. Raises 9 (subscript out of range) outside 0 to 31.
MonochromeBitmap Bitmap(int fillStyle);

} // namespace FillPatterns

} // namespace Orvane
