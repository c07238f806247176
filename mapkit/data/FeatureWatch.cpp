// SPDX-License-Identifier: MIT
#include "mapkit/data/FeatureWatch.h"

#include "mapkit/common/MemoryBound.h"
#include "mapkit/common/Progress.h"
#include "mapkit/data/FeatureSet.h"
#include "mapkit/data/ReadingFailure.h"

#include <algorithm>
#include <utility>

namespace Orvane {

namespace {

constexpr qint64 FeaturesBetweenLooks = 64;

} // namespace

FeatureWatch::FeatureWatch(const QString& path, const FeatureSet& features, Progress& progress)
    : m_path(path), m_features(features), m_progress(progress), m_mostBytes(MemoryBound::MostBytes())
{
}

void FeatureWatch::Expect(qint64 count)
{
    m_expected = double(std::max<qint64>(1, count));
}

void FeatureWatch::Count()
{
    if (++m_count % FeaturesBetweenLooks == 0)
        Look();
}

void FeatureWatch::Look()
{
    m_progress.StopIfCancelled();
    if (m_features.Bytes() > m_mostBytes)
        FailTooLarge(m_path);
    const size_t now = m_features.Features().size();
    if (std::exchange(m_gained, now) != now)
        m_bound.Renew();
    if (m_bound.IsOver())
        FailReading(m_path, {});
    m_progress.Report(std::min(1.0, double(m_count) / m_expected));
}

} // namespace Orvane
