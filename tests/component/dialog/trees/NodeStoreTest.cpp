// SPDX-License-Identifier: MIT
#include "component/dialog/trees/NodeStore.h"

#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Testing::FailingClient;
using Testing::MemoryHost;

NodeReference GroupNode(qint32 id)
{
    return {.isGroup = true, .groupID = id};
}

NodeReference LayerNode(qint32 id)
{
    return {.isGroup = false, .groupID = 1, .layerID = id};
}

class NodeStoreTest : public testing::Test
{
protected:
    MemoryHost host;

    NodeStoreTest()
    {
        host.AddLayer({.id = 17, .name = "Roads"});
        host.AddLayer({.id = 18, .name = "Base", .systemLayer = true});
        for (qint32 id : {1, 2, 3})
            host.AddGroup({.id = id, .name = QString("Group"), .members = {17}});
    }

    bool IsExpanded(qint32 groupID) { return ToBoolean(host.GroupColumn(groupID, "Expanded")); }
};

} // namespace

TEST_F(NodeStoreTest, LetsAnOrdinaryLayerAndAGroupBeRenamed)
{
    EXPECT_TRUE(CanEditNode(host, LayerNode(17)));
    EXPECT_TRUE(CanEditNode(host, GroupNode(1)));
}

TEST_F(NodeStoreTest, ProtectsASystemLayer)
{
    EXPECT_FALSE(CanEditNode(host, LayerNode(18)));
}

TEST_F(NodeStoreTest, TakesANullSystemFlagForNo)
{
    host.SetLayerColumn(17, "SystemLayer", Value::Null());
    EXPECT_TRUE(CanEditNode(host, LayerNode(17)));
}

TEST_F(NodeStoreTest, ProtectsGroupsAndLayersThatAreMissing)
{
    host.RemoveGroupRow(1);
    host.RemoveLayerRow(17);
    EXPECT_FALSE(CanEditNode(host, GroupNode(1)));
    EXPECT_FALSE(CanEditNode(host, LayerNode(17)));
    EXPECT_FALSE(NodeExists(host, LayerNode(17)));
    EXPECT_TRUE(NodeExists(host, LayerNode(18)));
}

TEST_F(NodeStoreTest, ReadsTheStoredNameRatherThanTheListedOne)
{
    host.displayNames[17] = "Roads (Obscured)";
    EXPECT_EQ(ReadNodeName(host, LayerNode(17)), "Roads");
    EXPECT_EQ(ReadNodeName(host, GroupNode(2)), "Group");
    EXPECT_EQ(ReadNodeName(host, GroupNode(99)), "");
}

TEST_F(NodeStoreTest, StoresManyGroupsAtOnceAndLeavesMissingOnesOut)
{
    StoreGroupsExpanded(host, {1, 99, 3}, true);
    EXPECT_TRUE(IsExpanded(1));
    EXPECT_FALSE(IsExpanded(2));
    EXPECT_TRUE(IsExpanded(3));
    EXPECT_EQ(host.Log().CallsTo("BeginTrans").size(), 1);
    EXPECT_EQ(host.Log().CallsTo("CommitTrans").size(), 1);
}

TEST_F(NodeStoreTest, StoresAllGroupsOrNone)
{
    FailingClient client(host, {"Update", 2, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    EXPECT_THROW(StoreGroupsExpanded(client, {1, 2, 3}, true), RunTimeError);
    EXPECT_FALSE(IsExpanded(1));
}

} // namespace Orvane
