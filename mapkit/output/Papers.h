// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/PageSettings.h"

#include <span>

namespace Orvane {

/// A usual paper.
struct Paper {
    QString name; ///< as written on the package, not translated
    QSizeF upright; ///< millimetres, the shorter side first
};

namespace Papers {

/// Smallest and largest sides of a page.
inline constexpr double Least = 10; ///< millimetres, or pixels
inline constexpr double MostMillimetres = 10000;
inline constexpr double MostPixels = 30000;

/// A5 to A0, and the American ones.
std::span<const Paper> All();

} // namespace Papers

} // namespace Orvane
