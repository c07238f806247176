// SPDX-License-Identifier: MIT
#pragma once

namespace Orvane {

/// Controls tell lengths in twips, at the logical resolution of their screen.
constexpr double TwipsPerInch = 1440;

} // namespace Orvane
