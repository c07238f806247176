// SPDX-License-Identifier: MIT
#include "mapkit/data/FeatureSet.h"

#include <cmath>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Points = std::vector<QPointF>;

} // namespace

TEST(FeatureSet, KeepsPartsAndTheirFeatures)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(Points{{0, 0}, {1, 2}});
    set.AddPart(Points{{5, 5}, {6, 9}, {7, 5}});
    set.BeginFeature(FeatureKind::Point);
    set.AddPart(Points{{-3, 4}});
    ASSERT_EQ(set.Features().size(), 2u);
    EXPECT_EQ(set.Features()[0].endPart - set.Features()[0].firstPart, 2u);
    EXPECT_EQ(set.Part(1).size(), 3u);
    EXPECT_EQ(set.Part(2)[0], QPointF(-3, 4));
    EXPECT_EQ(set.VertexCount(), 6u);
}

TEST(FeatureSet, BoundsHoldEveryVertex)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(Points{{0, 0}, {1, 2}});
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(Points{{-3, 4}, {0, 9}});
    EXPECT_EQ(set.Features()[0].bounds, (Box{0, 0, 1, 2}));
    EXPECT_EQ(set.Bounds(), (Box{-3, 0, 1, 9}));
}

TEST(FeatureSet, VerticesThatAreNotFiniteAreLeftOut)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(Points{{0, 0}, {INFINITY, 2}, {3, NAN}, {1, 1}});
    EXPECT_EQ(set.Part(0).size(), 2u);
    EXPECT_EQ(set.Bounds(), (Box{0, 0, 1, 1}));
}

TEST(FeatureSet, APartOfNothingIsNoPart)
{
    FeatureSet set;
    set.BeginFeature(FeatureKind::Line);
    set.AddPart(Points{});
    set.AddPart(Points{{NAN, NAN}});
    EXPECT_EQ(set.Features()[0].firstPart, set.Features()[0].endPart);
    EXPECT_TRUE(set.Bounds().IsEmpty());
}

TEST(Box, APointHasNoWidthButIsNotEmpty)
{
    Box box;
    EXPECT_TRUE(box.IsEmpty());
    box.Add(QPointF(3, 4));
    EXPECT_FALSE(box.IsEmpty());
    EXPECT_EQ(box.Width(), 0);
    EXPECT_TRUE(box.Intersects(Box{0, 0, 3, 4}));
}

TEST(Box, AnEmptyBoxMeetsNothingAndAddsNothing)
{
    Box box{0, 0, 1, 1};
    EXPECT_FALSE(box.Intersects(Box()));
    box.Add(Box());
    EXPECT_EQ(box, (Box{0, 0, 1, 1}));
}

} // namespace Orvane
