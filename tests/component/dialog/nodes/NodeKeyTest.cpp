// SPDX-License-Identifier: MIT
#include "component/dialog/nodes/NodeKey.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>

namespace Orvane {

namespace {

NodeReference Layer(qint32 groupID, qint32 layerID, qint16 image = 0)
{
    return {.isGroup = false, .groupID = groupID, .layerID = layerID, .image = image};
}

NodeReference Group(qint32 groupID, qint16 image = 0)
{
    return {.isGroup = true, .groupID = groupID, .layerID = 0, .image = image};
}

} // namespace

TEST(NodeKey, OfALayerNamesItsGroupAndItself)
{
    EXPECT_EQ(MakeNodeKey(Layer(12, 345)), "L00000120000345");
}

TEST(NodeKey, OfALayerIsReadBack)
{
    const NodeReference node = ReadNodeKey("L00000120000345");
    EXPECT_FALSE(node.isGroup);
    EXPECT_EQ(node.groupID, 12);
    EXPECT_EQ(node.layerID, 345);
}

TEST(NodeKey, OfAGroupBeginsWithG)
{
    EXPECT_EQ(MakeNodeKey(Group(12)), "G00000120000000");
    EXPECT_TRUE(ReadNodeKey("G00000120000000").isGroup);
}

TEST(NodeKey, OfANegativeIDKeepsSevenCharacters)
{
    EXPECT_EQ(MakeNodeKey(Group(-5)), "G-0000050000000");
    EXPECT_EQ(ReadNodeKey("G-0000050000000").groupID, -5);
}

TEST(NodeKey, HasFifteenCharactersUpToTheBoundsAndIsReadBack)
{
    for (qint32 id : {-999999, -1, 0, 1, 9999999}) {
        const NodeReference node = Layer(id, id);
        EXPECT_EQ(MakeNodeKey(node).size(), 15) << id;
        EXPECT_EQ(ReadNodeKey(MakeNodeKey(node)), node) << id;
    }
}

TEST(NodeKey, GrowsBeyondTheBoundsAsThePatternSays)
{
    EXPECT_EQ(MakeNodeKey(Layer(10000000, 1)), "L100000000000001");
    EXPECT_EQ(MakeNodeKey(Layer(-1000000, 1)), "L-10000000000001");
    EXPECT_EQ(MakeNodeKey(Group(std::numeric_limits<qint32>::max())), "G21474836470000000");
    EXPECT_EQ(MakeNodeKey(Group(std::numeric_limits<qint32>::min())), "G-21474836480000000");
}

TEST(NodeKey, OfOneLayerUnderTwoGroupsDiffers)
{
    EXPECT_NE(MakeNodeKey(Layer(1, 345)), MakeNodeKey(Layer(2, 345)));
}

TEST(NodeKey, DoesNotDependOnTheImage)
{
    EXPECT_EQ(MakeNodeKey(Layer(1, 2, 4)), MakeNodeKey(Layer(1, 2, 1)));
    EXPECT_TRUE(IsSameNode(Layer(1, 2, 4), Layer(1, 2, 1)));
}

TEST(NodeKey, OfABrokenTextRaisesNothing)
{
    for (const char* text : {"", "L", "Gxx", "L0000012", "something else that is long"})
        EXPECT_NO_THROW(ReadNodeKey(QString::fromLatin1(text))) << text;
}

TEST(ImageKey, IsOneLetterAndTheQuickMode)
{
    EXPECT_EQ(MakeImageKey(Group(1, 1)), "G1");
    EXPECT_EQ(MakeImageKey(Layer(1, 2, 4)), "L4");
    EXPECT_EQ(MakeImageKey(Group(1, 0)), "G0");
}

TEST(ImageKey, GivesTheImageNumberWithoutItsLetter)
{
    EXPECT_EQ(ReadNodeKey("L00000120000345", "L4").image, 4);
    EXPECT_EQ(ReadNodeKey("G00000120000000", "G2").image, 2);
}

TEST(ImageKey, LeavesTheImageNumberZeroWhenTheNodeHasNone)
{
    EXPECT_EQ(ReadNodeKey("L00000120000345").image, 0);
}

TEST(NodeIdentity, TellsGroupsFromLayersAndLayersByTheirGroup)
{
    EXPECT_FALSE(IsSameNode(Group(1), Layer(1, 0)));
    EXPECT_FALSE(IsSameNode(Layer(1, 5), Layer(2, 5)));
    EXPECT_FALSE(IsSameNode(Layer(1, 5), Layer(1, 6)));
}

} // namespace Orvane
