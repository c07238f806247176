// SPDX-License-Identifier: MIT
#include "component/dialog/LayerTreesFixture.h"
#include "hosts/FailingClient.h"

#include <OrvaneShellLib/IStyleFilter.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QScrollBar>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::Contains;
using testing::ElementsAre;
using testing::Not;

namespace Orvane {

namespace {

using Testing::FailingClient;
using Testing::LayerTreesTest;

class LayerTreesLoadTest : public LayerTreesTest
{
protected:
    void AddManyLayers(int count)
    {
        for (qint32 number = 0; number < count; ++number)
            host.AddLayer(
                {.id = 1000 + number, .name = QStringLiteral("Many %1").arg(number, 4, 10, QChar('0'))});
    }

    QString TopOf(const QTreeView& view) const { return view.indexAt(QPoint(0, 0)).data().toString(); }
};

/// Hides one layer, or raises when it is asked about it.
class FilterOnOne : public IStyleFilter
{
public:
    explicit FilterOnOne(qint32 layerID) : m_layerID(layerID) { }
    bool raises = false;

private:
    bool IStyleFilter_ShowsGroups() const override { return false; }
    bool IStyleFilter_IsLayerShown(qint32 layerID, bool) const override
    {
        if (layerID == m_layerID && raises)
            throw RunTimeError(7, "filter");
        return layerID != m_layerID;
    }

    qint32 m_layerID;
};

} // namespace

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

TEST_F(LayerTreesLoadTest, ReadsAListOnlyWhenItHasNoNodesOrIsStale)
{
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 1);
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 1);
    trees.MarkStale(List::Layers);
    trees.EnsureLoaded(List::Layers);
    EXPECT_EQ(host.Queries().size(), 2);
    EXPECT_FALSE(trees.HasNodes(List::Groups));
}

TEST_F(LayerTreesLoadTest, LoadsAClearedListAgain)
{
    Open(List::Groups);
    trees.Clear(List::Groups);
    EXPECT_FALSE(trees.HasNodes(List::Groups));
    trees.EnsureLoaded(List::Groups);
    EXPECT_EQ(Lines(groups).size(), 4);
}

TEST_F(LayerTreesLoadTest, DoesNotStoreTheExpansionThatALoadSets)
{
    Open(List::Groups);
    trees.LoadGroups();
    EXPECT_THAT(host.Log().CallsTo("Update"), ElementsAre());
}

TEST_F(LayerTreesLoadTest, TellsWhichListWasReloaded)
{
    QSignalSpy reloads(&trees, &LayerTrees::ListReloaded);
    trees.LoadGroups();
    trees.LoadLayers();
    ASSERT_EQ(reloads.count(), 2);
    EXPECT_EQ(reloads[0][0].value<LayerTrees::List>(), List::Groups);
    EXPECT_EQ(reloads[1][0].value<LayerTrees::List>(), List::Layers);
}

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

TEST_F(LayerTreesLoadTest, KeepsTheCurrentNodeAcrossClearingAndReloading)
{
    Open(List::Groups);
    Click(groups, "Roads", "Water");
    trees.Clear(List::Groups);
    EXPECT_EQ(CurrentKey(), "");
    trees.LoadGroups();
    EXPECT_EQ(CurrentKey(), "L00000020000011");
    EXPECT_EQ(Selected(groups), "Roads");
    EXPECT_EQ(moved, 1);
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

TEST_F(LayerTreesLoadTest, ShowsOnlyTheNamedGroupAndLiftsTheRestrictionAgain)
{
    host.AddGroup({.id = 3, .name = QString("Theme"), .pseudo = true, .members = {12}});
    trees.SetNamedGroup("Theme");
    Open(List::Groups);
    EXPECT_THAT(Lines(groups), ElementsAre("Theme"));
    trees.SetNamedGroup(std::nullopt);
    trees.EnsureLoaded(List::Groups);
    EXPECT_THAT(Lines(groups), Not(Contains("Theme")));
}

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

} // namespace Orvane
