// SPDX-License-Identifier: MIT
#include "shell/features/FeatureSubset.h"

#include <utility>

namespace Orvane {

namespace {

void Copy(const FeatureSet& from, size_t index, FeatureSet& to)
{
    const FeatureSet::Feature& feature = from.Features()[index];
    to.BeginFeature(feature.kind, feature.featureID);
    for (quint32 part = feature.firstPart; part < feature.endPart; ++part)
        to.AddPart(from.Part(part));
}

} // namespace

FeatureSet SubsetOf(const FeatureSet& features, const std::set<qint64>& featureIDs)
{
    FeatureSet subset;
    for (size_t i = 0; i < features.Features().size(); ++i) {
        if (featureIDs.contains(features.FeatureId(i)))
            Copy(features, i, subset);
    }
    return subset;
}

FeatureSet WithFeature(const FeatureSet& features, qint64 featureID, const FeatureSet& replacement)
{
    FeatureSet result;
    result.SetSourceSystem(features.SourceSystem());
    result.AddLeftOut(features.LeftOutCount());
    bool replaced = false;
    for (size_t i = 0; i < features.Features().size(); ++i) {
        if (features.FeatureId(i) != featureID) {
            Copy(features, i, result);
            continue;
        }
        for (size_t now = 0; !replaced && now < replacement.Features().size(); ++now)
            Copy(replacement, now, result);
        if (!std::exchange(replaced, true))
            result.AddLeftOut(replacement.LeftOutCount());
    }
    return result;
}

} // namespace Orvane
