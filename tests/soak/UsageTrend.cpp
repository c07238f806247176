// SPDX-License-Identifier: MIT
#include "soak/UsageTrend.h"

#include <algorithm>
#include <cstdio>

namespace Orvane::Testing {

namespace {

constexpr std::ptrdiff_t FewestMeasurements = 20;
constexpr size_t RoomForMeasurements = 100'000; // the measuring itself must not grow

using Place = std::vector<Usage>::const_iterator;

Usage Least(Place begin, Place end)
{
    Usage least = *begin;
    for (Place usage = begin; usage != end; ++usage) {
        for (size_t resource = 0; resource < ResourceCount; ++resource)
            least[resource] = std::min(least[resource], (*usage)[resource]);
    }
    return least;
}

} // namespace

UsageTrend::UsageTrend()
{
    m_usages.reserve(RoomForMeasurements);
}

UsageTrend::Ends UsageTrend::LeastAtTheEnds() const
{
    const auto count = std::ptrdiff_t(m_usages.size());
    const Place warm = m_usages.begin() + count / 4;
    const std::ptrdiff_t tenth = std::max<std::ptrdiff_t>(1, (m_usages.end() - warm) / 10);
    return {Least(warm, warm + tenth), Least(m_usages.end() - tenth, m_usages.end())};
}

QStringList UsageTrend::Growths() const
{
    if (std::ptrdiff_t(m_usages.size()) < FewestMeasurements)
        return {QStringLiteral("too few measurements: %1").arg(m_usages.size())};
    const Ends ends = LeastAtTheEnds();
    QStringList growths;
    for (const ResourceRule& rule : resourceRules) {
        const qint64 growth = ends.last[size_t(rule.resource)] - ends.first[size_t(rule.resource)];
        if (growth > rule.allowedGrowth)
            growths << QStringLiteral("%1 grew by %2").arg(QLatin1String(rule.name)).arg(growth);
    }
    return growths;
}

void UsageTrend::Print(const char* title) const
{
    if (m_usages.empty())
        return;
    const Ends ends = LeastAtTheEnds();
    std::printf("%s, %zu measurements:\n", title, m_usages.size());
    for (const ResourceRule& rule : resourceRules) {
        const qint64 first = ends.first[size_t(rule.resource)];
        const qint64 last = ends.last[size_t(rule.resource)];
        std::printf(
            "  %-14s %12lld -> %12lld  (%+lld, allowed %lld)\n", rule.name, static_cast<long long>(first),
            static_cast<long long>(last), static_cast<long long>(last - first),
            static_cast<long long>(rule.allowedGrowth));
    }
}

} // namespace Orvane::Testing
