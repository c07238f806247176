// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeOrder.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

std::vector<LayerEntry> Layers(const QStringList& texts)
{
    std::vector<LayerEntry> layers;
    for (const QString& text : texts)
        layers.push_back({qint32(layers.size()), 1, text});
    return layers;
}

} // namespace

TEST(NodeOrder, PutsALayerBetweenItsNeighbours)
{
    EXPECT_EQ(SortedRow(Layers({"Alpha", "Gamma"}), "Beta"), 1);
}

TEST(NodeOrder, PutsALayerFirstLastAndIntoAnEmptyList)
{
    EXPECT_EQ(SortedRow(Layers({"Beta", "Gamma"}), "Alpha"), 0);
    EXPECT_EQ(SortedRow(Layers({"Beta", "Gamma"}), "Zeta"), 2);
    EXPECT_EQ(SortedRow({}, "Alpha"), 0);
}

TEST(NodeOrder, MovesARenamedLayerAmongTheOthers)
{
    const std::vector<LayerEntry> layers = Layers({"alpha", "Beta", "zeta"});
    EXPECT_EQ(PlaceByName(layers, 0, "Gamma"), 1);
    EXPECT_EQ(PlaceByName(layers, 0, "Zulu"), 2);
    EXPECT_EQ(PlaceByName(layers, 2, "aaa"), 0);
    EXPECT_EQ(PlaceByName(layers, 2, "ALPHA"), 1);
}

TEST(NodeOrder, LeavesARenamedLayerThatIsInItsPlace)
{
    const std::vector<LayerEntry> layers = Layers({"alpha", "Beta", "zeta"});
    EXPECT_EQ(PlaceByName(layers, 1, "beta"), 1);
    EXPECT_EQ(PlaceByName(layers, 0, "Aaa"), 0);
    EXPECT_EQ(PlaceByName(layers, 2, "Zulu"), 2);
    EXPECT_EQ(PlaceByName(Layers({"alone"}), 0, "Only"), 0);
}

TEST(NodeOrder, KnowsNoPlaceWhereTheTextsAreInAnotherOrder)
{
    EXPECT_EQ(PlaceByName(Layers({"zeta", "Beta", "alpha"}), 1, "Zulu"), std::nullopt);
    EXPECT_EQ(PlaceByName(Layers({"alpha", "zeta", "Beta", "gamma"}), 0, "Zulu"), std::nullopt);
}

TEST(NodeOrder, PutsALayerAfterThoseOfTheSameText)
{
    EXPECT_EQ(SortedRow(Layers({"Beta", "Beta", "Gamma"}), "Beta"), 2);
}

TEST(NodeOrder, FollowsAListInWhichCapitalsComeFirst)
{
    EXPECT_EQ(SortedRow(Layers({"Beta", "Zeta", "alpha"}), "Gamma"), 1);
    EXPECT_EQ(SortedRow(Layers({"Beta", "Zeta", "alpha"}), "beta"), 3);
}

TEST(NodeOrder, FollowsAListInWhichCaseDoesNotCount)
{
    EXPECT_EQ(SortedRow(Layers({"alpha", "Beta", "zeta"}), "Gamma"), 2);
    EXPECT_EQ(SortedRow(Layers({"alpha", "Beta", "zeta"}), "gamma"), 2);
}

TEST(NodeOrder, BearsADecoratedNameOutOfPlace)
{
    EXPECT_EQ(SortedRow(Layers({"Alpha", "(OBS)Beta", "Delta", "Zeta"}), "Gamma"), 3);
}

} // namespace Orvane
