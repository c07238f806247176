// SPDX-License-Identifier: MIT
#include "mapkit/looks/Classification.h"

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

std::vector<double> SortedFinite(std::span<const double> numbers)
{
    std::vector<double> sorted;
    std::copy_if(numbers.begin(), numbers.end(), std::back_inserter(sorted), [](double number) {
        return std::isfinite(number);
    });
    std::sort(sorted.begin(), sorted.end());
    return sorted;
}

// The lower limit of class `index` of `count`. sorted: not empty.
double LimitOf(const std::vector<double>& sorted, ClassDivision division, int index, int count)
{
    if (division == ClassDivision::Quantiles)
        return sorted[sorted.size() * size_t(index) / size_t(count)];
    const double part = double(index) / count;
    return sorted.front() * (1 - part) + sorted.back() * part;
}

} // namespace

Classification::Classification(std::span<const double> numbers, ClassDivision division, int count)
{
    const std::vector<double> sorted = SortedFinite(numbers);
    const int wanted = std::clamp(count, MinCount, MaxCount);
    for (int i = 0; i < wanted && !sorted.empty(); ++i) {
        const double limit = LimitOf(sorted, division, i, wanted);
        if (m_limits.empty() || limit > m_limits.back())
            m_limits.push_back(limit);
    }
    m_limits.push_back(sorted.empty() ? 0 : sorted.back());
    for (const double number : numbers)
        m_classes.push_back(qint8(ClassOfNumber(number)));
}

bool Classification::HasUnclassed() const
{
    return std::find(m_classes.begin(), m_classes.end(), qint8(NoClass)) != m_classes.end();
}

int Classification::ClassOfNumber(double number) const
{
    if (!std::isfinite(number) || Count() == 0)
        return NoClass;
    const auto above = std::upper_bound(m_limits.begin(), m_limits.end() - 1, number);
    return int(above - m_limits.begin()) - 1;
}

} // namespace Orvane
