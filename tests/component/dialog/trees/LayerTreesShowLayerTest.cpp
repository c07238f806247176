// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesLoadFixture.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace Orvane {

TEST_F(LayerTreesLoadTest, ShowsALayerThatTheHostCreatedInItsPlace)
{
    Open(List::Layers);
    host.AddLayer({.id = 40, .name = "Ridges"});
    trees.ShowLayer(40);
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rails", "Ridges", "Rivers", "Roads"));
    EXPECT_EQ(trees.CurrentText(), "Ridges");
    EXPECT_EQ(Selected(layers), "Ridges");
    EXPECT_EQ(moved, 1);
    EXPECT_THAT(host.Queries(), ElementsAre("SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = 40"));
}

TEST_F(LayerTreesLoadTest, BringsAShownLayerIntoView)
{
    AddManyLayers(500);
    Open(List::Layers);
    trees.ShowLayer(1400);
    EXPECT_TRUE(layers.viewport()->rect().contains(layers.visualRect(layers.currentIndex())));
}

TEST_F(LayerTreesLoadTest, ShowsALayerOnceAndAnewWhenItIsListedAlready)
{
    Open(List::Layers);
    host.displayNames[12] = "Rails (suppressed)";
    host.SetLayerColumn(12, "OverrideMode", qint32(1));
    trees.ShowLayer(12);
    EXPECT_EQ(Lines(layers).size(), 4);
    EXPECT_EQ(ImageOf(layers, "(SUP)Rails "), "L2");
    EXPECT_EQ(CurrentKey(), "L00000000000012");
}

TEST_F(LayerTreesLoadTest, ShowsALayerWhateverTheFilterSays)
{
    const FilterOnOne filter(40);
    trees.SetFilter(&filter);
    host.AddLayer({.id = 40, .name = "Ridges"});
    Open(List::Layers);
    trees.ShowLayer(40);
    EXPECT_EQ(trees.CurrentText(), "Ridges");
}

TEST_F(LayerTreesLoadTest, ReadsTheWholeListBeforeItShowsALayerInIt)
{
    trees.ShowLayer(12);
    EXPECT_THAT(Lines(layers), ElementsAre("Base", "Rails", "Rivers", "Roads"));
    EXPECT_EQ(trees.CurrentText(), "Rails");
}

TEST_F(LayerTreesLoadTest, ShowsNoLayerThatIsMissingOrHiddenByItsCode)
{
    Open(List::Layers);
    host.AddLayer({.id = 40, .name = "Ridges", .code = qint32(-2)});
    trees.ShowLayer(40);
    trees.ShowLayer(99);
    EXPECT_EQ(Lines(layers).size(), 4);
    EXPECT_EQ(trees.CurrentNode(), std::nullopt);
    EXPECT_EQ(moved, 0);
}

TEST_F(LayerTreesLoadTest, AsksBeforeItShowsAnotherLayer)
{
    Open(List::Layers);
    Click(layers, "Roads");
    asked = 0;
    trees.ShowLayer(12);
    EXPECT_EQ(asked, 1);
    trees.ShowLayer(12);
    EXPECT_EQ(asked, 1);
}

TEST_F(LayerTreesLoadTest, ShowsALayerInTheHiddenListWithoutLeavingTheCurrentNode)
{
    Open(List::Groups);
    Click(groups, "Transport");
    asked = moved = 0;
    trees.ShowLayer(12);
    EXPECT_EQ(trees.CurrentText(), "Transport");
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(moved, 0);
    trees.ShowList(List::Layers);
    EXPECT_EQ(trees.CurrentText(), "Rails");
}

TEST_F(LayerTreesLoadTest, AListIsPaintedAgainAfterTheHostPaintedNothingForAWhile)
{
    Open(List::Layers);
    window.setUpdatesEnabled(false);
    trees.ShowLayer(12);
    window.setUpdatesEnabled(true);
    EXPECT_TRUE(layers.updatesEnabled());
    layers.setUpdatesEnabled(false);
    trees.ShowLayer(11);
    EXPECT_FALSE(layers.updatesEnabled());
}

} // namespace Orvane
