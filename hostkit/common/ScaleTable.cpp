// SPDX-License-Identifier: MIT
#include "hostkit/common/ScaleTable.h"

#include <algorithm>
#include <cmath>

namespace Orvane {

namespace {

constexpr double Largest = 100; // largest scale: the denominator of index 1
constexpr double Smallest = 200'000'000;

// The rounding step is smaller than the distance between neighbours, so the rounded series is strictly
// increasing.
double Readable(double denominator)
{
    const double decade = std::pow(10.0, std::floor(std::log10(denominator) + 1e-9));
    const double lead = denominator / decade;
    const double step = (lead < 2 ? 0.05 : lead < 5 ? 0.1 : 0.25) * decade;
    return std::round(denominator / step) * step;
}

double Geometric(int position)
{
    return Largest * std::pow(Smallest / Largest, position / double(ScaleTable::LastIndex - 1));
}

std::size_t NearestPosition(const std::array<double, ScaleTable::LastIndex>& sorted, double wanted)
{
    const auto above = std::lower_bound(sorted.begin(), sorted.end(), wanted);
    if (above == sorted.begin())
        return 0;
    if (above == sorted.end())
        return sorted.size() - 1;
    const auto below = above - 1;
    return std::size_t((wanted - *below <= *above - wanted ? below : above) - sorted.begin());
}

} // namespace

ScaleTable::ScaleTable()
{
    for (std::size_t position = 0; position < m_denominators.size(); ++position)
        m_denominators[position] = std::round(Readable(Geometric(int(position))));
    for (double decade = Largest; decade <= Smallest; decade *= 10) {
        for (const double lead : {1.0, 2.0, 2.5, 5.0}) {
            if (lead * decade <= Smallest)
                m_denominators[NearestPosition(m_denominators, lead * decade)] = lead * decade;
        }
    }
}

double ScaleTable::Denominator(qint32 index) const
{
    return m_denominators[std::size_t(std::clamp(index, FirstIndex, LastIndex) - FirstIndex)];
}

qint32 ScaleTable::Index(double denominator) const
{
    if (std::isnan(denominator))
        return FirstIndex;
    return qint32(NearestPosition(m_denominators, denominator)) + FirstIndex;
}

} // namespace Orvane
