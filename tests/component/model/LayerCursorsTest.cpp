// SPDX-License-Identifier: MIT
#include "component/model/LayerCursors.h"

#include "hosts/MemoryHost.h"
#include "hosts/ValueMatchers.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(LayerCursors, ALayerIsSoughtOnItsIndexInTheHostsTable)
{
    MemoryHost host;
    host.AddLayer({.id = 17});
    const auto layers = OpenLayersByID(host);
    EXPECT_TRUE(SeekID(*layers, 17));
    EXPECT_FALSE(SeekID(*layers, 18));
    EXPECT_THAT(
        host.Log().Trace(), ElementsAre("LayersTable()", "Index(LayerIDIDX)", "Seek(=, 17)", "Seek(=, 18)"));
}

TEST(LayerCursors, AGroupIsSoughtOnItsIndexInTheDatabase)
{
    MemoryHost host;
    host.AddGroup({.id = 3});
    const auto groups = OpenGroupsByID(host.GetDatabase());
    EXPECT_TRUE(SeekID(*groups, 3));
    EXPECT_FALSE(SeekID(*groups, 4));
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre("OpenRecordset(LayerGroups)", "Index(IDIDX)", "Seek(=, 3)", "Seek(=, 4)"));
}

TEST(LayerCursors, MembersIncludeHiddenAndMissingLayers)
{
    MemoryHost host;
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18, .code = -2});
    host.AddGroup({.id = 3, .members = {17, 18, 19}});
    EXPECT_THAT(ReadMemberLayerIDs(host, 3), UnorderedElementsAre(17, 18, 19));
    EXPECT_THAT(host.Queries(), ElementsAre("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=3"));
}

TEST(LayerCursors, AMissingGroupHasNoMembers)
{
    MemoryHost host;
    EXPECT_THAT(ReadMemberLayerIDs(host, 3), IsEmpty());
}

TEST(LayerCursors, ASystemLayerIsToldByItsColumn)
{
    MemoryHost host;
    host.AddLayer({.id = 17, .systemLayer = true});
    host.AddLayer({.id = 18, .systemLayer = false});
    host.AddLayer({.id = 19});
    host.SetLayerColumn(19, "SystemLayer", Value::Null());
    EXPECT_TRUE(IsSystemLayer(host, 17));
    EXPECT_FALSE(IsSystemLayer(host, 18));
    EXPECT_FALSE(IsSystemLayer(host, 19));
    EXPECT_FALSE(IsSystemLayer(host, 20));
}

TEST(StoreGroupExpanded, StoresTheFlagOfThatGroupOnly)
{
    MemoryHost host;
    host.AddGroup({.id = 3, .expanded = false});
    host.AddGroup({.id = 4, .expanded = false});
    StoreGroupExpanded(host, 3, true);
    EXPECT_THAT(host.GroupColumn(3, "Expanded"), IsFlag(true));
    EXPECT_THAT(host.GroupColumn(4, "Expanded"), IsFlag(false));
    StoreGroupExpanded(host, 3, false);
    EXPECT_THAT(host.GroupColumn(3, "Expanded"), IsFlag(false));
}

TEST(StoreGroupExpanded, SeeksEditsAndUpdates)
{
    MemoryHost host;
    host.AddGroup({.id = 3});
    StoreGroupExpanded(host, 3, true);
    EXPECT_THAT(
        host.Log().Trace(),
        ElementsAre(
            "OpenRecordset(LayerGroups)", "Index(IDIDX)", "Seek(=, 3)", "Edit()", "SetField(Expanded, True)",
            "Update()"));
}

TEST(StoreGroupExpanded, LeavesAMissingGroupOut)
{
    MemoryHost host;
    StoreGroupExpanded(host, 3, true);
    EXPECT_THAT(host.Log().CallsTo("Edit"), IsEmpty());
}

TEST(LayerCursors, SystemLayersAreLeftOutInOnePass)
{
    MemoryHost host;
    host.AddLayer({.id = 17});
    host.AddLayer({.id = 18, .systemLayer = true});
    EXPECT_THAT(WithoutSystemLayers(host, {99, 18, 17}), ElementsAre(99, 17));
    EXPECT_EQ(host.Log().CallsTo("LayersTable").size(), 1);
}

TEST(LayerCursors, OneLayerThatExistsIsEnough)
{
    MemoryHost host;
    host.AddLayer({.id = 17});
    EXPECT_TRUE(AnyLayerExists(host, {99, 17, 98}));
    EXPECT_FALSE(AnyLayerExists(host, {99, 98}));
    EXPECT_FALSE(AnyLayerExists(host, {}));
}
