// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <cstring>
#include <gtest/gtest.h>

namespace Orvane::Testing {

inline bool AreSameBits(const Box& one, const Box& other)
{
    return std::memcmp(&one, &other, sizeof one) == 0;
}

inline bool HaveSameParts(
    const FeatureSet& one, const FeatureSet::Feature& feature, const FeatureSet& other,
    const FeatureSet::Feature& counterpart)
{
    const quint32 count = feature.endPart - feature.firstPart;
    if (count != counterpart.endPart - counterpart.firstPart)
        return false;
    for (quint32 i = 0; i < count; ++i) {
        const auto points = one.Part(feature.firstPart + i);
        const auto others = other.Part(counterpart.firstPart + i);
        if (points.size() != others.size()
            || std::memcmp(points.data(), others.data(), points.size_bytes()) != 0)
            return false;
    }
    return true;
}

/// Whether two sets are the same to the bit.
inline testing::AssertionResult AreSame(const FeatureSet& one, const FeatureSet& other)
{
    const auto& features = one.Features();
    const auto& others = other.Features();
    if (features.size() != others.size())
        return testing::AssertionFailure() << features.size() << " features, not " << others.size();
    for (size_t i = 0; i < features.size(); ++i) {
        const bool isSame = features[i].kind == others[i].kind && features[i].featureID == others[i].featureID
            && AreSameBits(features[i].bounds, others[i].bounds)
            && HaveSameParts(one, features[i], other, others[i]);
        if (!isSame)
            return testing::AssertionFailure() << "feature " << i << " differs";
    }
    if (one.LeftOutCount() != other.LeftOutCount() || one.SourceSystem() != other.SourceSystem())
        return testing::AssertionFailure() << "the number of vertices left out, or the system, differs";
    return AreSameBits(one.Bounds(), other.Bounds()) ? testing::AssertionSuccess()
                                                     : testing::AssertionFailure() << "the extents differ";
}

} // namespace Orvane::Testing
