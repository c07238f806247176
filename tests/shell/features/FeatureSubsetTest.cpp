// SPDX-License-Identifier: MIT
#include "shell/features/FeatureSubset.h"

#include <gtest/gtest.h>
#include <limits>

namespace Orvane {

TEST(FeatureSubset, HoldsTheFeaturesOfTheIDsInTheirOrder)
{
    FeatureSet set;
    for (const qint64 featureID : {5, 6, 7, 5}) {
        set.BeginFeature(FeatureKind::Point, featureID);
        set.AddPart(std::vector<QPointF>{{double(set.Features().size()), 0}});
    }
    const FeatureSet subset = SubsetOf(set, {5, 7});
    ASSERT_EQ(subset.Features().size(), 3u);
    EXPECT_EQ(subset.FeatureId(1), 7);
    EXPECT_EQ(subset.Part(2)[0].x(), 4);
}

TEST(FeatureSubset, AReplacementStandsWhereTheFeatureStood)
{
    FeatureSet set;
    for (const qint64 featureID : {5, 6, 6, 7}) {
        set.BeginFeature(FeatureKind::Point, featureID);
        set.AddPart(std::vector<QPointF>{{double(featureID), 0}});
    }
    FeatureSet other;
    other.BeginFeature(FeatureKind::Line, 6);
    other.AddPart(std::vector<QPointF>{{60, 0}, {61, 0}});
    const FeatureSet result = WithFeature(set, 6, other);
    ASSERT_EQ(result.Features().size(), 3u);
    EXPECT_EQ(result.Features()[1].kind, FeatureKind::Line);
    EXPECT_EQ(result.FeatureId(2), 7);
    EXPECT_EQ(result.Bounds().maxX, 61);
}

TEST(FeatureSubset, AReplacementKeepsTheCountOfVerticesThatWereLeftOut)
{
    constexpr double Nowhere = std::numeric_limits<double>::infinity();
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line, 5);
    set.AddPart(std::vector<QPointF>{{1, 0}, {Nowhere, 0}, {2, 0}});
    FeatureSet other;
    other.BeginFeature(FeatureKind::Line, 6);
    other.AddPart(std::vector<QPointF>{{60, 0}, {61, Nowhere}});
    EXPECT_EQ(WithFeature(set, 6, other).LeftOutCount(), 1u);
    set.BeginFeature(FeatureKind::Line, 6);
    EXPECT_EQ(WithFeature(set, 6, other).LeftOutCount(), 2u);
}

} // namespace Orvane
