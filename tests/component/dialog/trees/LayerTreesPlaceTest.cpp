// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesLoadFixture.h"

#include <QScrollBar>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace Orvane {

TEST_F(LayerTreesLoadTest, KeepsTheCurrentNodeAcrossAReloadWithoutAWord)
{
    Open(List::Layers);
    Click(layers, "Rivers");
    ASSERT_EQ(moved, 1);
    host.AddLayer({.id = 40, .name = "Aqueducts"});
    trees.LoadLayers();
    EXPECT_EQ(CurrentKey(), "L00000000000021");
    EXPECT_EQ(Selected(layers), "Rivers");
    EXPECT_EQ(layers.currentIndex().data().toString(), "Rivers");
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(asked, 0);
}

TEST_F(LayerTreesLoadTest, KeepsACurrentLayerUnderItsCollapsedGroupWithoutExpandingIt)
{
    Open(List::Groups);
    Click(groups, "Roads", "Water");
    groups.collapse(Node(groups, "Water"));
    trees.LoadGroups();
    EXPECT_EQ(CurrentKey(), "L00000020000011");
    EXPECT_FALSE(groups.isExpanded(Node(groups, "Water")));
}

TEST_F(LayerTreesLoadTest, KeepsTheScrollPositionByTheNodeAtTheTop)
{
    AddManyLayers(500);
    Open(List::Layers);
    layers.verticalScrollBar()->setValue(200);
    const QString top = TopOf(layers);
    ASSERT_NE(top, "");
    host.AddLayer({.id = 40, .name = "Aqueducts"});
    host.AddLayer({.id = 41, .name = "Airports"});
    trees.LoadLayers();
    EXPECT_EQ(TopOf(layers), top);
}

TEST_F(LayerTreesLoadTest, KeepsTheScrollPositionPixelByPixel)
{
    AddManyLayers(500);
    layers.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    Open(List::Layers);
    layers.verticalScrollBar()->setValue(1003);
    trees.LoadLayers();
    EXPECT_EQ(layers.verticalScrollBar()->value(), 1003);
}

TEST_F(LayerTreesLoadTest, ScrollsAsFarAsBeforeWhenTheNodeAtTheTopIsGone)
{
    AddManyLayers(500);
    Open(List::Layers);
    layers.verticalScrollBar()->setValue(200);
    host.RemoveLayerRow(1000 + 199);
    trees.LoadLayers();
    EXPECT_EQ(layers.verticalScrollBar()->value(), 200);
}

TEST_F(LayerTreesLoadTest, LeavesTheViewWhereItIsEvenWhenTheCurrentNodeIsOutOfSight)
{
    AddManyLayers(500);
    Open(List::Layers);
    Click(layers, "Base");
    layers.verticalScrollBar()->setValue(300);
    trees.LoadLayers();
    EXPECT_EQ(layers.verticalScrollBar()->value(), 300);
}

TEST_F(LayerTreesLoadTest, GoesOnToTheNextLayerWhenTheCurrentOneIsGone)
{
    Open(List::Layers);
    Click(layers, "Rails");
    host.RemoveLayerRow(12);
    trees.LoadLayers();
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    EXPECT_EQ(Selected(layers), "Rivers");
    EXPECT_EQ(moved, 2);
    EXPECT_EQ(asked, 0);
}

TEST_F(LayerTreesLoadTest, GoesBackToTheLastLayerWhenTheCurrentOneWasTheLast)
{
    Open(List::Layers);
    Click(layers, "Roads");
    host.RemoveLayerRow(11);
    trees.LoadLayers();
    EXPECT_EQ(trees.CurrentText(), "Rivers");
}

TEST_F(LayerTreesLoadTest, StaysInTheGroupWhenItsCurrentLayerIsGone)
{
    Open(List::Groups);
    Click(groups, "Rivers", "Water");
    host.RemoveLayerRow(21);
    trees.LoadGroups();
    EXPECT_EQ(CurrentKey(), "L00000020000011");
}

TEST_F(LayerTreesLoadTest, GoesOnToTheNextGroupWhenTheCurrentOneIsGone)
{
    Open(List::Groups);
    Click(groups, "Transport");
    host.RemoveGroupRow(1);
    trees.LoadGroups();
    EXPECT_EQ(trees.CurrentText(), "Water");
}

TEST_F(LayerTreesLoadTest, HasNoCurrentNodeWhenNothingIsLeft)
{
    Open(List::Layers);
    Click(layers, "Rails");
    for (qint32 id : {11, 12, 21, 31})
        host.RemoveLayerRow(id);
    trees.LoadLayers();
    EXPECT_EQ(trees.CurrentNode(), std::nullopt);
    EXPECT_EQ(trees.CurrentText(), "");
    EXPECT_EQ(moved, 2);
}

} // namespace Orvane
