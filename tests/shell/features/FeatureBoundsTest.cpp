// SPDX-License-Identifier: MIT
#include "shell/features/FeatureBounds.h"

#include "shell/tools/ToolCanvas.h"

#include <gtest/gtest.h>

namespace Orvane {

using namespace Testing;

TEST(FeatureBoundsTest, AreThoseOfTheFeaturesAlone)
{
    const std::vector<MapLayer> layers{
        NamedLayer(1, "One", FeatureBuilder().Square(0, 0, 10).Square(20, 0, 10).Done()),
        NamedLayer(2, "Two", FeatureBuilder().Square(50, 50, 10).Done()), NamedLayer(3, "Gone", nullptr)};
    EXPECT_EQ(BoundsOf(layers, {{1, 2}}), (Box{20, 0, 30, 10}));
    EXPECT_EQ(BoundsOf(layers, {{1, 2}, {2, 1}, {3, 1}}), (Box{20, 0, 60, 60}));
    EXPECT_TRUE(BoundsOf(layers, {}).IsEmpty());
    EXPECT_TRUE(BoundsOf(layers, {{1, 77}, {4, 1}}).IsEmpty());
}

} // namespace Orvane
