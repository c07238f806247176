// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <utility>
#include <vector>

namespace Orvane::Benchmarks {

/// The middle of repeated measurements, and the two values between which the middle half of them lies.
struct Spread {
    double median = 0;
    double lower = 0; ///< a quarter of the values is below it
    double upper = 0; ///< a quarter of the values is above it
};

/// values: in any order; none gives zeros. A quartile between two values is interpolated.
Spread SpreadOf(std::vector<double> values);

/// The exponent e of "time grows as size to the power of e", fitted to all points of a size and a time: 1 is
/// proportional, 2 is quadratic. Nothing if there are less than two sizes. Sizes and times are above 0.
std::optional<double> GrowthExponent(const std::vector<std::pair<double, double>>& points);

} // namespace Orvane::Benchmarks
