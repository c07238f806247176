// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cmath>

namespace Orvane {

/// A scale's denominator as a person reads it: four digits are as exact as a screen or a page is.
inline double RoundedScale(double denominator)
{
    const double step = std::pow(10, std::max(0.0, std::floor(std::log10(denominator)) - 3));
    return std::round(denominator / step) * step;
}

} // namespace Orvane
