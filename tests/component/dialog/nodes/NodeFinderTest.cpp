// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeFinder.h"

#include "component/dialog/nodes/FindWords.h"
#include "component/dialog/nodes/FlatNodes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace Orvane {

namespace {

LayerEntry Layer(qint32 id, const QString& text, double code = 0)
{
    return {id, 1, text, false, code};
}

/// A list of roads and rivers, flat or in groups.
class NodeFinderTest : public testing::Test
{
protected:
    void FillLayers()
    {
        nodes.SetLayers({Layer(1, "Main Roads", 120), Layer(2, "Side roads", 7), Layer(3, "Flüsse", 1.5)});
    }

    void FillGroups()
    {
        nodes.SetGroups(
            {{10, "Transport", true, {Layer(1, "Main Roads"), Layer(2, "Rails")}},
             {20, "Water", false, {Layer(3, "Rivers"), Layer(1, "Main Roads")}}});
    }

    FoundNodes Find(const QString& text, const std::vector<NodeReference>& kept = {})
    {
        return finder.Find(nodes, FindWords(text), kept);
    }

    std::vector<qint32> LayersOf(const FoundNodes& found) const
    {
        std::vector<qint32> layerIDs;
        layerIDs.reserve(std::size_t(found.rows.LayerCount()));
        for (int row = 0; row < found.rows.LayerCount(); ++row)
            layerIDs.push_back(nodes.Layers()[std::size_t(found.rows.LayerAt(row))].layerID);
        return layerIDs;
    }

    std::vector<qint32> GroupsOf(const FoundNodes& found) const
    {
        std::vector<qint32> groupIDs;
        groupIDs.reserve(std::size_t(found.rows.GroupCount()));
        for (int row = 0; row < found.rows.GroupCount(); ++row)
            groupIDs.push_back(nodes.Groups()[std::size_t(found.rows.GroupAt(row))].groupID);
        return groupIDs;
    }

    FlatNodes nodes;
    NodeFinder finder;
};

NodeReference LayerNode(qint32 groupID, qint32 layerID)
{
    return {.isGroup = false, .groupID = groupID, .layerID = layerID};
}

} // namespace

TEST_F(NodeFinderTest, WithoutWordsAllNodesAreFound)
{
    FillGroups();
    EXPECT_THAT(LayersOf(Find("  ")), ElementsAre(1, 2, 3, 1));
    EXPECT_EQ(Find("").layerCount, 4);
}

TEST_F(NodeFinderTest, AllWordsMustOccurInAnyOrderAndCaseDoesNotCount)
{
    FillLayers();
    EXPECT_THAT(LayersOf(Find("ROAD")), ElementsAre(1, 2));
    EXPECT_THAT(LayersOf(Find("  road   ma ")), ElementsAre(1));
    EXPECT_THAT(LayersOf(Find("road flu")), IsEmpty());
}

TEST_F(NodeFinderTest, AccentsDoNotCountHoweverTheyAreWritten)
{
    FillLayers();
    EXPECT_THAT(LayersOf(Find("flusse")), ElementsAre(3));
    EXPECT_THAT(LayersOf(Find(QStringLiteral("FLU\u0308S"))), ElementsAre(3));
    nodes.SetLayers({Layer(4, QStringLiteral("Flu\u0308sse"))});
    finder.Forget();
    EXPECT_THAT(LayersOf(Find("flü")), ElementsAre(4));
}

TEST_F(NodeFinderTest, FindsTheCodeButNoWordAcrossNameAndCode)
{
    FillLayers();
    EXPECT_THAT(LayersOf(Find("120")), ElementsAre(1));
    EXPECT_THAT(LayersOf(Find("1.5")), ElementsAre(3));
    EXPECT_THAT(LayersOf(Find("roads 7")), ElementsAre(2));
    EXPECT_THAT(LayersOf(Find("roads7")), IsEmpty());
}

TEST_F(NodeFinderTest, ALayerWhoseCodeCannotBeReadIsFoundByItsName)
{
    nodes.SetLayers({Layer(1, "Roads", std::numeric_limits<double>::quiet_NaN())});
    EXPECT_THAT(LayersOf(Find("roads")), ElementsAre(1));
    EXPECT_THAT(LayersOf(Find("nan")), IsEmpty());
}

TEST_F(NodeFinderTest, AGroupIsShownWithItsFoundLayersOnly)
{
    FillGroups();
    const FoundNodes found = Find("roads");
    EXPECT_THAT(GroupsOf(found), ElementsAre(10, 20));
    EXPECT_THAT(LayersOf(found), ElementsAre(1, 1));
    EXPECT_EQ(found.first, std::optional(nodes.LayerReference(0)));
}

TEST_F(NodeFinderTest, AGroupWhoseTextIsFoundIsShownWithAllItsLayers)
{
    FillGroups();
    const FoundNodes found = Find("trans");
    EXPECT_THAT(GroupsOf(found), ElementsAre(10));
    EXPECT_THAT(LayersOf(found), ElementsAre(1, 2));
    EXPECT_EQ(found.first, std::optional(nodes.GroupReference(0)));
}

TEST_F(NodeFinderTest, OneWordMayOccurInTheGroupAndAnotherInTheLayer)
{
    FillGroups();
    const FoundNodes found = Find("roads wat");
    EXPECT_THAT(GroupsOf(found), ElementsAre(20));
    EXPECT_THAT(LayersOf(found), ElementsAre(1));
}

TEST_F(NodeFinderTest, AKeptLayerIsInItsRowButDoesNotCount)
{
    FillGroups();
    const FoundNodes found = Find("rivers", {LayerNode(10, 2)});
    EXPECT_THAT(GroupsOf(found), ElementsAre(10, 20));
    EXPECT_THAT(LayersOf(found), ElementsAre(2, 3));
    EXPECT_EQ(found.layerCount, 1);
    EXPECT_TRUE(found.holdsOther);
    EXPECT_EQ(found.first, std::optional(nodes.LayerReference(2)));
}

TEST_F(NodeFinderTest, AKeptNodeThatIsFoundIsNoOther)
{
    FillGroups();
    EXPECT_FALSE(Find("rivers", {LayerNode(20, 3)}).holdsOther);
    EXPECT_FALSE(Find("rivers", {NodeReference{.isGroup = true, .groupID = 20}}).holdsOther);
    EXPECT_TRUE(Find("rivers", {NodeReference{.isGroup = true, .groupID = 10}}).holdsOther);
}

TEST(FindWordsTest, NamesThePiecesOfATextThatAreWords)
{
    using Piece = FindWords::Piece;
    EXPECT_THAT(FindWords("ro ads").PiecesIn("Main Roads, roof"), ElementsAre(Piece{5, 5}, Piece{12, 2}));
    EXPECT_THAT(FindWords("aa").PiecesIn("baaab"), ElementsAre(Piece{1, 3}));
    EXPECT_THAT(FindWords("us").PiecesIn(QStringLiteral("Flu\u0308sse")), ElementsAre(Piece{2, 3}));
    EXPECT_THAT(FindWords("x").PiecesIn("Roads"), IsEmpty());
}

} // namespace Orvane
