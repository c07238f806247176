// SPDX-License-Identifier: MIT
#include "benchmarks/Figures.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace Orvane::Benchmarks {

namespace {

// sorted: at least one value. part: 0 for the least value, 1 for the largest.
double ValueAt(const std::vector<double>& sorted, double part)
{
    const double place = part * double(sorted.size() - 1);
    const auto before = size_t(place);
    const size_t after = std::min(before + 1, sorted.size() - 1);
    return sorted[before] + (place - double(before)) * (sorted[after] - sorted[before]);
}

} // namespace

Spread SpreadOf(std::vector<double> values)
{
    if (values.empty())
        return {};
    std::sort(values.begin(), values.end());
    return {ValueAt(values, 0.5), ValueAt(values, 0.25), ValueAt(values, 0.75)};
}

// The slope of the straight line through the logarithms, by least squares.
std::optional<double> GrowthExponent(const std::vector<std::pair<double, double>>& points)
{
    double meanSize = 0;
    double meanTime = 0;
    for (const auto& [size, time] : points) {
        meanSize += std::log(size) / double(points.size());
        meanTime += std::log(time) / double(points.size());
    }
    double together = 0;
    double ofSizes = 0;
    for (const auto& [size, time] : points) {
        const double offset = std::log(size) - meanSize;
        together += offset * (std::log(time) - meanTime);
        ofSizes += offset * offset;
    }
    return ofSizes > 0 ? std::optional(together / ofSizes) : std::nullopt;
}

} // namespace Orvane::Benchmarks
