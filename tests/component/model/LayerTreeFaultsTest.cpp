// SPDX-License-Identifier: MIT
#include "component/model/LayerTreeReaderFixture.h"
#include "hosts/PatchingClient.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::IsEmpty;

TEST_F(GroupsTree, ARowWhoseIDCannotBeReadIsLeftOutAndItsFaultKept)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .members = {1}});
    for (const char* column : {"GroupID", "LayerID"}) {
        for (const Value& value : {Value(QStringLiteral("x")), Value(2147483648.0)}) {
            PatchingClient client(host, {{column, value}});
            const TreeReading reading = LoadLayerTree(client, std::nullopt, texts);
            EXPECT_THAT(reading.groups, IsEmpty()) << column;
            ASSERT_TRUE(reading.fault) << column;
            EXPECT_EQ(reading.fault->ColumnName(), column);
        }
    }
}

TEST_F(GroupsTree, ALayerWithABadCodeOrModeIsListedAndMarked)
{
    AddLayers({{1, "a"}, {2, "b"}, {3, "c"}});
    host.AddGroup({.id = 10, .name = "g", .members = {1, 2, 3}});
    host.SetLayerColumn(1, "Code", QStringLiteral("x"));
    host.SetLayerColumn(2, "OverrideMode", QStringLiteral("y"));
    const TreeReading reading = LoadLayerTree(host, std::nullopt, texts);
    ASSERT_EQ(reading.groups.size(), 1U);
    const std::vector<LayerEntry>& layers = reading.groups[0].layers;
    ASSERT_EQ(layers.size(), 3U);
    EXPECT_EQ(layers[0].text, "a");
    EXPECT_TRUE(layers[0].faulty);
    EXPECT_TRUE(layers[1].faulty);
    EXPECT_EQ(layers[1].quickMode, QuickMode::Normal);
    EXPECT_FALSE(layers[2].faulty);
    EXPECT_FALSE(reading.groups[0].faulty);
    ASSERT_TRUE(reading.fault);
    EXPECT_EQ(reading.fault->Description(), "a: Code 'x' is not a number.");
}

TEST_F(GroupsTree, AGroupWithABadValueIsListedCollapsedAndMarked)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .name = "g", .expanded = true, .members = {1}});
    host.SetGroupColumn(10, "Expanded", QStringLiteral("x"));
    const TreeReading reading = LoadLayerTree(host, std::nullopt, texts);
    ASSERT_EQ(reading.groups.size(), 1U);
    EXPECT_EQ(reading.groups[0].text, "g");
    EXPECT_FALSE(reading.groups[0].expanded);
    EXPECT_TRUE(reading.groups[0].faulty);
    EXPECT_FALSE(reading.groups[0].layers[0].faulty);
    ASSERT_TRUE(reading.fault);
    EXPECT_EQ(reading.fault->ColumnName(), "Expanded");
}

TEST_F(GroupsTree, WithoutAFaultNoneIsTold)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .members = {1}});
    EXPECT_FALSE(LoadLayerTree(host, std::nullopt, texts).fault);
    EXPECT_FALSE(ReloadLayerList(host, nullptr).fault);
}

TEST_F(LayerList, ALayerWithABadValueIsListedAndMarked)
{
    AddLayers({{1, "a"}, {2, "b"}, {3, "c"}});
    host.SetLayerColumn(1, "Code", QStringLiteral("x"));
    host.SetLayerColumn(2, "Pseudo", QStringLiteral("y"));
    const PseudoFilter filter(false);
    const ListReading reading = ReloadLayerList(host, &filter);
    ASSERT_EQ(reading.layers.size(), 3U);
    EXPECT_TRUE(reading.layers[0].faulty);
    EXPECT_TRUE(reading.layers[1].faulty);
    EXPECT_FALSE(reading.layers[2].faulty);
    ASSERT_TRUE(reading.fault);
    EXPECT_EQ(reading.fault->ColumnName(), "Code");
}

TEST_F(LayerList, ALayerWhoseIDIsBeyond32BitsIsLeftOut)
{
    AddLayers({{1, "a"}, {2, "b"}});
    PatchingClient client(host, {{"LayerID", 2147483648.0}});
    const ListReading reading = ReloadLayerList(client, nullptr);
    EXPECT_THAT(reading.layers, IsEmpty());
    ASSERT_TRUE(reading.fault);
    EXPECT_EQ(reading.fault->Number(), int(ErrorNumber::Overflow));
}

TEST_F(OneLayer, WithABadModeIsMarked)
{
    host.AddLayer({.id = 17, .name = "Roads"});
    host.SetLayerColumn(17, "OverrideMode", QStringLiteral("x"));
    const auto layer = ReadOneLayer(host, 17);
    ASSERT_TRUE(layer);
    EXPECT_TRUE(layer->faulty);
    EXPECT_EQ(layer->text, "Roads");
}
