// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace Orvane {

/// A scale's denominator, rounded for showing it to the user. A screen or a page is no more exact than four
/// digits.
inline double RoundedScale(double denominator)
{
    const double step = std::pow(10, std::max(0.0, std::floor(std::log10(denominator)) - 3));
    return std::round(denominator / step) * step;
}

} // namespace Orvane
