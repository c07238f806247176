// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesLoadFixture.h"
#include "hosts/FailingClient.h"
#include "hosts/PatchingClient.h"
#include "support/MessageBoxRobot.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace Orvane {

using Testing::FailingClient;
using Testing::PatchingClient;

TEST_F(LayerTreesLoadTest, ShowsGroupsExpandedAsStored)
{
    Open(List::Groups);
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water", "  Rivers", "  Roads"));
}

TEST_F(LayerTreesLoadTest, ShowsTheFlatListByName)
{
    Open(List::Layers);
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rails", "Rivers", "Roads"));
}

TEST_F(LayerTreesLoadTest, ShowsAGroupWithoutName)
{
    host.AddGroup({.id = 3, .name = QString(), .ordering = 3, .members = {31}});
    Open(List::Groups);
    EXPECT_THAT(Lines(groups), Contains("<No Name>"));
}

TEST_F(LayerTreesLoadTest, ShowsAGroupThatIsNotFound)
{
    PatchingClient client(host, {{"GroupID", qint32(404)}});
    UseClient(client);
    trees.LoadGroups();
    EXPECT_THAT(Lines(groups), Contains("ERROR: Group not Found"));
    UseClient(host);
}

TEST_F(LayerTreesLoadTest, ReadsAListOnlyWhenItHasNoNodesOrIsStale)
{
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 1);
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 1);
    trees.MarkStale(List::Layers);
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 2);
    EXPECT_THAT(Lines(groups), ElementsAre());
}

TEST_F(LayerTreesLoadTest, DoesNotStoreTheExpansionThatALoadSets)
{
    Open(List::Groups);
    trees.LoadGroups();
    EXPECT_THAT(host.Log().CallsTo("Update"), ElementsAre());
}

TEST_F(LayerTreesLoadTest, LeavesOutWhatTheFilterHides)
{
    const FilterOnOne filter(12);
    trees.SetFilter(&filter);
    Open(List::Layers);
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rivers", "Roads"));
}

TEST_F(LayerTreesLoadTest, ReadsTheFlatListAgainAfterAnotherFilter)
{
    Open(List::Layers);
    const FilterOnOne filter(12);
    trees.SetFilter(&filter);
    EXPECT_EQ(Lines(layers).size(), 4);
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(Lines(layers).size(), 3);
}

TEST_F(LayerTreesLoadTest, KeepsTheListWhenTheFilterRaises)
{
    Open(List::Layers);
    Click(layers, "Rivers");
    FilterOnOne filter(12);
    filter.raises = true;
    trees.SetFilter(&filter);
    EXPECT_THROW(trees.EnsureLoaded(List::Layers), RunTimeError);
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rails", "Rivers", "Roads"));
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    filter.raises = false;
    trees.EnsureLoaded(List::Layers); // still stale
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rivers", "Roads"));
}

TEST_F(LayerTreesLoadTest, KeepsTheGroupsWhenTheDatabaseRaises)
{
    Open(List::Groups);
    FailingClient client(host, {"MoveNext", 2, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    UseClient(client);
    EXPECT_THROW(trees.LoadGroups(), RunTimeError);
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water", "  Rivers", "  Roads"));
}

TEST_F(LayerTreesLoadTest, AsksBeforeAFilterTakesTheCurrentLayerAway)
{
    Open(List::Layers);
    Click(layers, "Rails");
    asked = 0;
    QString askedAbout;
    trees.SetPendingChangesQuestion([&] { askedAbout = trees.CurrentText(); });
    const FilterOnOne filter(12);
    trees.SetFilter(&filter);
    trees.LoadLayers();
    EXPECT_EQ(askedAbout, "Rails");
    EXPECT_EQ(trees.CurrentText(), "Rivers");
}

TEST_F(LayerTreesLoadTest, ReadsAgainWhatTheAnswerMayHaveChanged)
{
    Open(List::Layers);
    Click(layers, "Rails");
    trees.SetPendingChangesQuestion([&] { host.SetLayerColumn(21, "OverrideMode", qint32(2)); });
    const FilterOnOne filter(12);
    trees.SetFilter(&filter);
    trees.LoadLayers();
    EXPECT_EQ(ImageOf(layers, "Rivers"), "L4");
}

TEST_F(LayerTreesLoadTest, ABadValueIsToldOnceAndHidesNoNode)
{
    host.SetLayerColumn(11, "Code", QStringLiteral("x"));
    host.SetLayerColumn(21, "OverrideMode", QStringLiteral("y"));
    Testing::MessageBoxRobot user{Testing::BoxKey::Enter};
    trees.LoadGroups();
    EXPECT_TRUE(user.Boxes().empty()) << "the host is not kept waiting";
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "Water", "  Rivers", "  Roads"));
    Settle();
    EXPECT_EQ(user.Only().text, "Roads: Code 'x' is not a number.");
}

TEST_F(LayerTreesLoadTest, ABadValueIsToldInTheToolTipOfItsNode)
{
    host.SetLayerColumn(11, "OverrideMode", QStringLiteral("x"));
    host.SetGroupColumn(1, "Expanded", QStringLiteral("x"));
    Testing::MessageBoxRobot user{Testing::BoxKey::Enter};
    trees.LoadGroups();
    Settle();
    const auto tip = [](const QModelIndex& index) { return index.data(Qt::ToolTipRole).toString(); };
    EXPECT_TRUE(tip(Node(groups, "Roads", "Water")).contains("A value of this layer cannot be read."));
    EXPECT_FALSE(tip(Node(groups, "Rivers", "Water")).contains("cannot be read"));
    EXPECT_TRUE(tip(Node(groups, "Transport")).contains("A value of this group cannot be read."));
    EXPECT_FALSE(tip(Node(groups, "Water")).contains("cannot be read"));
}

TEST_F(LayerTreesLoadTest, AListReadAgainTellsItsBadValueAgain)
{
    host.SetLayerColumn(12, "OverrideMode", QStringLiteral("x"));
    for (int reading = 0; reading < 2; ++reading) {
        Testing::MessageBoxRobot user{Testing::BoxKey::Enter};
        trees.LoadLayers();
        Settle();
        EXPECT_EQ(user.Only().text, "Rails: OverrideMode 'x' is not a number.");
        EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rails", "Rivers", "Roads"));
    }
}

} // namespace Orvane
