// SPDX-License-Identifier: MIT
#include "component/model/LayerTreeReaderFixture.h"
#include "hosts/FailingClient.h"
#include "hosts/MemoryHost.h"
#include "hosts/PatchingClient.h"
#include "hosts/ValueMatchers.h"
#include "support/Errors.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(GroupsTree, GoesByGroupOrderingThenByOrderingThenByID)
{
    AddLayers({{1, "a"}, {2, "b"}, {3, "c"}, {4, "d"}});
    host.AddGroup({.id = 10, .name = "second", .ordering = 2});
    host.AddGroup({.id = 11, .name = "first", .ordering = 1});
    host.AddMember(10, 1, 5);
    host.AddMember(10, 2, 4);
    host.AddMember(11, 4, 1);
    host.AddMember(11, 3, 1);
    EXPECT_THAT(TreeLines(), ElementsAre("first: c d", "second: b a"));
}

TEST_F(GroupsTree, CarriesIDsModesAndExpansion)
{
    host.AddLayer({.id = 1, .overrideMode = 2});
    host.AddGroup({.id = 10, .expanded = true, .members = {1}});
    host.AddLayer({.id = 2, .overrideMode = 1});
    host.AddGroup({.id = 11, .ordering = 1, .expanded = false, .members = {2}});
    const auto tree = Tree();
    ASSERT_EQ(tree.size(), 2U);
    EXPECT_EQ(tree[0].groupID, 10);
    EXPECT_TRUE(tree[0].expanded);
    EXPECT_EQ(tree[0].layers.front().layerID, 1);
    EXPECT_EQ(tree[0].layers.front().quickMode, 4);
    EXPECT_FALSE(tree[1].expanded);
    EXPECT_EQ(tree[1].layers.front().quickMode, 2);
}

TEST_F(GroupsTree, ALayerOfTwoGroupsStandsOnceUnderEach)
{
    AddLayers({{1, "a"}, {2, "b"}});
    host.AddGroup({.id = 10, .name = "one", .ordering = 1, .members = {1}});
    host.AddGroup({.id = 11, .name = "two", .ordering = 2, .members = {1, 2}});
    EXPECT_THAT(TreeLines(), ElementsAre("one: a", "two: a b"));
}

TEST_F(GroupsTree, HiddenLayersAreSkipped)
{
    host.AddLayer({.id = 1, .name = "shown", .code = -1});
    host.AddLayer({.id = 2, .name = "hidden", .code = -2});
    host.AddLayer({.id = 3, .name = "hidden too", .code = -3});
    host.AddLayer({.id = 4, .name = "unknown", .code = Value::Null()});
    host.AddGroup({.id = 10, .name = "g", .members = {1, 2, 3, 4}});
    EXPECT_THAT(TreeLines(), ElementsAre("g: shown"));
    EXPECT_THAT(host.Log().CallsTo("LayerDisplayName"), ElementsAre("LayerDisplayName(1)"));
}

TEST_F(GroupsTree, AGroupOfHiddenLayersOnlyIsNotListed)
{
    host.AddLayer({.id = 1, .name = "a"});
    host.AddLayer({.id = 2, .code = -2});
    host.AddGroup({.id = 10, .name = "empty", .ordering = 1, .members = {2}});
    host.AddGroup({.id = 11, .name = "full", .ordering = 2, .members = {1}});
    EXPECT_THAT(TreeLines(), ElementsAre("full: a"));
}

TEST_F(GroupsTree, AGroupWithoutLayersIsNotListed)
{
    host.AddGroup({.id = 10});
    EXPECT_THAT(Tree(), IsEmpty());
}

TEST_F(GroupsTree, GroupsOfTheSameOrderingStandOnceEach)
{
    AddLayers({{1, "a"}, {2, "b"}, {3, "c"}, {4, "d"}});
    host.AddGroup({.id = 10, .name = "one", .ordering = 0, .members = {1, 3}});
    host.AddGroup({.id = 11, .name = "two", .ordering = 0, .members = {2, 4}});
    EXPECT_THAT(TreeLines(), ElementsAre("one: a c", "two: b d"));
}

TEST_F(GroupsTree, AGroupWithoutNameHasTheTextForThat)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .name = QString(), .ordering = 1, .members = {1}});
    host.AddGroup({.id = 11, .ordering = 2, .members = {1}});
    host.SetGroupColumn(11, "Name", Value::Null());
    EXPECT_THAT(TreeLines(), ElementsAre("no name: a", "no name: a"));
}

TEST_F(GroupsTree, ABlankNameIsAName)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .name = QStringLiteral(" "), .members = {1}});
    EXPECT_THAT(TreeLines(), ElementsAre(" : a"));
}

TEST_F(GroupsTree, AGroupThatIsNotFoundHasTheTextForThatAndIsCollapsed)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .expanded = true, .members = {1}});
    PatchingClient client(host, {{"GroupID", qint32(404)}});
    const auto tree = LoadLayerTree(client, std::nullopt, texts).groups;
    ASSERT_EQ(tree.size(), 1U);
    EXPECT_EQ(tree[0].groupID, 404);
    EXPECT_EQ(tree[0].text, "not found");
    EXPECT_FALSE(tree[0].expanded);
    EXPECT_EQ(tree[0].layers.size(), 1U);
}

TEST_F(GroupsTree, PseudoGroupsAreLeftOutOfTheFullTree)
{
    AddLayers({{1, "a"}, {2, "b"}});
    host.AddGroup({.id = 10, .name = "real", .members = {1}});
    host.AddGroup({.id = 11, .name = "pseudo", .pseudo = true, .members = {2}});
    EXPECT_THAT(TreeLines(), ElementsAre("real: a"));
}

TEST_F(GroupsTree, ANamedGroupIsShownAloneEvenWhenItIsPseudo)
{
    AddLayers({{1, "a"}, {2, "b"}});
    host.AddGroup({.id = 10, .name = "real", .members = {1}});
    host.AddGroup({.id = 11, .name = "pseudo", .pseudo = true, .members = {2}});
    EXPECT_THAT(TreeLines(QStringLiteral("pseudo")), ElementsAre("pseudo: b"));
}

TEST_F(GroupsTree, AQuoteInTheNameOfTheGroupIsHarmless)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .name = QStringLiteral("Farmer's"), .members = {1}});
    EXPECT_THAT(TreeLines(QStringLiteral("Farmer's")), ElementsAre("Farmer's: a"));
    EXPECT_THAT(TreeLines(QStringLiteral("x' OR '1'='1")), IsEmpty());
}

TEST_F(GroupsTree, OneQueryAndOneCursorOverTheGroupsAreOpened)
{
    AddLayers({{1, "a"}, {2, "b"}});
    host.AddGroup({.id = 10, .ordering = 1, .members = {1, 2}});
    host.AddGroup({.id = 11, .ordering = 2, .members = {2}});
    Tree();
    const QStringList opened = host.Queries();
    ASSERT_EQ(opened.size(), 2);
    EXPECT_TRUE(opened[0].startsWith(QStringLiteral("SELECT Layers.*, LayerGroupMembers.GroupID")));
    EXPECT_EQ(opened[1], "LayerGroups");
    EXPECT_THAT(host.Log().CallsTo("Index"), ElementsAre("Index(IDIDX)"));
    EXPECT_THAT(host.Log().CallsTo("Seek"), ElementsAre("Seek(=, 10)", "Seek(=, 11)"));
}

TEST_F(GroupsTree, NamesAreDecoratedDisplayNames)
{
    AddLayers({{1, "Roads"}});
    host.displayNames[1] = QStringLiteral("Streets (Obscured)");
    host.AddGroup({.id = 10, .name = "g", .members = {1}});
    EXPECT_THAT(TreeLines(), ElementsAre("g: (OBS)Streets "));
}

TEST_F(GroupsTree, OnlyNeededColumnsAreRead)
{
    AddLayers({{1, "a"}});
    host.AddGroup({.id = 10, .members = {1}});
    Tree();
    EXPECT_THAT(
        host.Log().Of(CallKind::Read),
        testing::UnorderedElementsAre(
            "Field(Code)", "Field(GroupID)", "Field(LayerID)", "Field(OverrideMode)", "Field(Name)",
            "Field(Expanded)"));
}

TEST_F(GroupsTree, AnErrorOfTheHostIsPassedOnUnchanged)
{
    AddLayers({{1, "a"}, {2, "b"}});
    host.AddGroup({.id = 10, .members = {1, 2}});
    FailingClient client(host, {"LayerDisplayName", 2, RunTimeError(10003, "gone", "host")});
    const auto error = RaisedBy([&] { LoadLayerTree(client, std::nullopt, texts); });
    ASSERT_TRUE(error);
    EXPECT_EQ(error->Number(), 10003);
    EXPECT_EQ(error->Source(), "host");
}

TEST_F(LayerList, GoesByName)
{
    AddLayers({{1, "c"}, {2, "a"}, {3, "b"}});
    EXPECT_THAT(ListNames(), ElementsAre("a", "b", "c"));
    EXPECT_THAT(host.Queries(), ElementsAre("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name"));
}

TEST_F(LayerList, HiddenLayersAreNeverInIt)
{
    host.AddLayer({.id = 1, .name = "shown", .code = -1});
    host.AddLayer({.id = 2, .name = "hidden", .code = -2});
    host.AddLayer({.id = 3, .name = "hidden too", .code = -3});
    EXPECT_THAT(ListNames(), ElementsAre("shown"));
}

TEST_F(LayerList, ALayerOfNoGroupIsInIt)
{
    AddLayers({{1, "a"}});
    EXPECT_THAT(ListNames(), ElementsAre("a"));
}

TEST_F(LayerList, TheFilterIsAskedAboutEachWithItsPseudoFlag)
{
    host.AddLayer({.id = 1, .name = "a", .pseudo = true});
    host.AddLayer({.id = 2, .name = "b", .pseudo = false});
    host.AddLayer({.id = 3, .name = "c"});
    host.SetLayerColumn(3, "Pseudo", Value::Null());
    const PseudoFilter filter(false);
    EXPECT_THAT(ListNames(&filter), ElementsAre("b", "c"));
    EXPECT_THAT(filter.asked, ElementsAre(std::pair(1, true), std::pair(2, false), std::pair(3, false)));
}

TEST_F(LayerList, ALayerThatTheFilterHidesIsNotAskedForItsName)
{
    host.AddLayer({.id = 1, .name = "a", .pseudo = true});
    const PseudoFilter filter(false);
    ListNames(&filter);
    EXPECT_THAT(host.Log().CallsTo("LayerDisplayName"), IsEmpty());
}

TEST_F(LayerList, CarriesIDsModesAndDecoratedNames)
{
    host.AddLayer({.id = 17, .name = "Roads (suppressed)", .overrideMode = 1});
    const auto layers = ReloadLayerList(host, nullptr).layers;
    ASSERT_EQ(layers.size(), 1U);
    EXPECT_EQ(layers[0].layerID, 17);
    EXPECT_EQ(layers[0].quickMode, 2);
    EXPECT_EQ(layers[0].text, "(SUP)Roads ");
}

TEST_F(LayerList, CarriesCodesAndNoneWhereItCannotBeRead)
{
    host.AddLayer({.id = 17, .name = "Roads", .code = 120});
    EXPECT_EQ(ReloadLayerList(host, nullptr).layers.at(0).code, 120);
    EXPECT_EQ(ReadOneLayer(host, 17)->code, 120);
    PatchingClient client(host, {{"Code", QStringLiteral("x")}});
    EXPECT_TRUE(qIsNaN(ReloadLayerList(client, nullptr).layers.at(0).code));
}

TEST_F(LayerList, OnlyNeededColumnsAreRead)
{
    AddLayers({{1, "a"}});
    ListNames();
    EXPECT_THAT(
        host.Log().Of(CallKind::Read), ElementsAre("Field(LayerID)", "Field(Code)", "Field(OverrideMode)"));
}

TEST_F(OneLayer, IsReadByItsOwnQuery)
{
    host.AddLayer({.id = 17, .name = "Roads", .overrideMode = 2});
    host.AddLayer({.id = 18, .name = "Rails"});
    const auto layer = ReadOneLayer(host, 17);
    ASSERT_TRUE(layer);
    EXPECT_EQ(layer->layerID, 17);
    EXPECT_EQ(layer->quickMode, 4);
    EXPECT_EQ(layer->text, "Roads");
    EXPECT_THAT(host.Queries(), ElementsAre("SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = 17"));
}

TEST_F(OneLayer, IsNothingWhenItIsHiddenOrMissing)
{
    host.AddLayer({.id = 17, .code = -2});
    EXPECT_FALSE(ReadOneLayer(host, 17));
    EXPECT_FALSE(ReadOneLayer(host, 99));
}
