// SPDX-License-Identifier: MIT
#pragma once

class QPen;

namespace Orvane {

/// The line style that draws no line.
inline constexpr int NoLinePattern = 15;

/// Sets the pen's dash pattern for a line style: 0 solid, 1 to 4 dashes and dots, 5 to 14 dashes of
/// increasing length, all different, 15 no line. Lengths are in pen widths. Any other style leaves the pen
/// unchanged. For pickers, maps and legends alike.
void SetLinePattern(QPen& pen, int style);

} // namespace Orvane
