// SPDX-License-Identifier: MIT
#include "mapkit/data/FeatureSet.h"

#include <cmath>

namespace Orvane {

void FeatureSet::BeginFeature(FeatureKind kind, qint64 featureID)
{
    const auto part = quint32(m_partEnds.size());
    m_kinds[size_t(kind)] = true;
    m_features.push_back({Box(), featureID, part, part, kind});
}

void FeatureSet::AddPart(std::span<const QPointF> points)
{
    const size_t before = m_points.size();
    Feature& feature = m_features.back();
    for (const QPointF& point : points) {
        if (!std::isfinite(point.x()) || !std::isfinite(point.y())) {
            ++m_leftOut;
            continue;
        }
        m_points.push_back(point);
        feature.bounds.Add(point);
    }
    if (m_points.size() == before)
        return;
    m_partEnds.push_back(m_points.size());
    feature.endPart = quint32(m_partEnds.size());
    m_bounds.Add(feature.bounds);
}

std::span<const QPointF> FeatureSet::Part(quint32 index) const&
{
    const size_t begin = index == 0 ? 0 : m_partEnds[index - 1];
    return {m_points.data() + begin, m_partEnds[index] - begin};
}

} // namespace Orvane
