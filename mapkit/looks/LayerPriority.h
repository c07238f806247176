// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// The draw priority of layers at the bottom; 1 is drawn on top.
inline constexpr int LowestPriority = 255;

} // namespace Orvane
