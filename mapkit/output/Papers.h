// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/PageSettings.h"

#include <span>

namespace Orvane {

/// A standard paper size.
struct Paper {
    QString name; ///< the usual name, not translated
    QSizeF upright; ///< millimetres, the shorter side first
};

namespace Papers {

/// The smallest and largest side of a page.
inline constexpr double Least = 10; ///< millimetres, or pixels
inline constexpr double MostMillimetres = 10000;
inline constexpr double MostPixels = 30000;

/// A5 to A0, and the American sizes.
std::span<const Paper> All();

} // namespace Papers

} // namespace Orvane
