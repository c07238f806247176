// SPDX-License-Identifier: MIT
#pragma once

class QPen;

namespace Orvane {

/// The line style without a line.
inline constexpr int NoLinePattern = 15;

/// Gives the pen the dashes of a line style: 0 solid, 1 to 4 dashes and dots, 5 to 14 dashes of growing
/// length, each unlike all others, 15 no line. Lengths count pen widths. Any other style leaves the pen as it
/// is. For pickers, maps and legends alike.
void SetLinePattern(QPen& pen, int style);

} // namespace Orvane
