// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesLoadFixture.h"
#include "support/MessageBoxRobot.h"

#include <QScrollBar>

namespace Orvane {

namespace {

class LayerTreesFindTest : public LayerTreesLoadTest
{
protected:
    /// The current node has edits from now on; the question about them raises, or drops them.
    void Edit(bool raises)
    {
        hasEdits = true;
        trees.SetPendingChangesQuestion(
            [this, raises] {
                ++asked;
                if (raises && hasEdits)
                    throw RunTimeError(7, "not applied");
                hasEdits = false;
            },
            [this] { return hasEdits; });
    }

    QList<int> Count(List list) const { return {trees.CountFound(list).found, trees.CountFound(list).all}; }

    bool hasEdits = false;
};

TEST_F(LayerTreesFindTest, ShowsTheFoundLayersWithTheirGroupsExpanded)
{
    Open(List::Groups);
    trees.Find(List::Groups, "r");
    trees.Find(List::Groups, "rails");
    EXPECT_EQ(Lines(groups), QStringList({"Transport", "  Rails"}));
    EXPECT_EQ(Count(List::Groups), QList<int>({1, 4}));
    EXPECT_EQ(Lines(layers).size(), 4);
}

TEST_F(LayerTreesFindTest, AnEmptyTextShowsTheListAsItWas)
{
    AddManyLayers(200);
    Open(List::Groups);
    const QStringList before = Lines(groups);
    Click(groups, "Rivers", "Water");
    layers.verticalScrollBar()->setValue(70);
    const QString top = TopOf(layers);
    for (const List list : {List::Groups, List::Layers}) {
        trees.Find(list, "roads");
        trees.Find(list, "");
    }
    EXPECT_EQ(Lines(groups), before);
    EXPECT_EQ(Selected(groups), "Rivers");
    EXPECT_EQ(TopOf(layers), top);
    EXPECT_FALSE(groups.isExpanded(Node(groups, "Transport")));
}

TEST_F(LayerTreesFindTest, FoldingDuringAFindIsNotStored)
{
    Open(List::Groups);
    trees.Find(List::Groups, "roads");
    groups.collapse(Node(groups, "Water"));
    groups.expand(Node(groups, "Water"));
    trees.Find(List::Groups, "");
    EXPECT_TRUE(host.Calls().isEmpty()) << qPrintable(host.Calls().join('\n'));
}

TEST_F(LayerTreesFindTest, ALoadedListIsFilteredAgainAndKeepsTheStoredExpansionForLater)
{
    Open(List::Groups);
    trees.Find(List::Groups, "ro");
    host.AddLayer({.id = 40, .name = "Ropes"});
    host.AddGroup({.id = 3, .name = QString("Harbour"), .ordering = 3, .expanded = true, .members = {40}});
    trees.LoadGroups();
    EXPECT_EQ(Lines(groups), QStringList({"Transport", "  Roads", "Water", "  Roads", "Harbour", "  Ropes"}));
    trees.Find(List::Groups, "");
    EXPECT_EQ(
        Lines(groups), QStringList({"Transport", "Water", "  Rivers", "  Roads", "Harbour", "  Ropes"}));
}

TEST_F(LayerTreesFindTest, ACurrentNodeThatIsNotFoundIsLeftAndComesBack)
{
    Open(List::Layers);
    Click(layers, "Rivers");
    moved = 0;
    trees.Find(List::Layers, "ro");
    EXPECT_FALSE(trees.CurrentNode());
    EXPECT_EQ(moved, 1);
    trees.LoadLayers();
    EXPECT_FALSE(trees.CurrentNode());
    trees.Find(List::Layers, "");
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    EXPECT_EQ(Selected(layers), "Rivers");
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesFindTest, ANodeChosenDuringAFindStaysCurrentAndInSight)
{
    AddManyLayers(200);
    Open(List::Layers);
    Click(layers, "Base");
    trees.Find(List::Layers, "many 0150");
    Click(layers, "Many 0150");
    trees.Find(List::Layers, "");
    EXPECT_EQ(Selected(layers), "Many 0150");
    EXPECT_TRUE(layers.viewport()->rect().intersects(layers.visualRect(Node(layers, "Many 0150"))));
}

TEST_F(LayerTreesFindTest, ANodeWithEditsThatIsNotFoundStaysUntilTheUserGoesToTheList)
{
    Open(List::Layers);
    Click(layers, "Rivers");
    Edit(false);
    asked = moved = 0;
    trees.Find(List::Layers, "r");
    trees.Find(List::Layers, "ro");
    trees.Find(List::Layers, "roa");
    Settle();
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    EXPECT_EQ(Lines(layers), QStringList({"Rivers", "Roads"}));
    trees.LeaveUnfound(List::Layers);
    EXPECT_EQ(asked, 0) << "only after the event";
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(Lines(layers), QStringList({"Roads"}));
}

TEST_F(LayerTreesFindTest, ANodeWhoseEditsStayIsListedWhateverIsFound)
{
    Testing::MessageBoxRobot user{Testing::BoxKey::Enter};
    Open(List::Layers);
    Click(layers, "Rivers");
    Edit(true);
    asked = moved = 0;
    trees.Find(List::Layers, "roads");
    trees.LeaveUnfound(List::Layers);
    Settle();
    trees.Find(List::Layers, "rails");
    Settle();
    trees.LoadLayers();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(moved, 0);
    EXPECT_EQ(Lines(layers), QStringList({"Rails", "Rivers"}));
    EXPECT_EQ(Count(List::Layers), QList<int>({1, 4}));
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    hasEdits = false;
    trees.Find(List::Layers, "rail");
    EXPECT_EQ(Lines(layers), QStringList({"Rails"}));
}

TEST_F(LayerTreesFindTest, ANodeWithEditsThatIsNotFoundGoesWhenAnotherOneIsClicked)
{
    AddManyLayers(200);
    Open(List::Layers);
    Click(layers, "Base");
    Edit(false);
    asked = moved = 0;
    trees.Find(List::Layers, "many");
    layers.verticalScrollBar()->setValue(70);
    const QString top = TopOf(layers);
    Click(layers, top);
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(trees.CurrentText(), top);
    EXPECT_EQ(Lines(layers).size(), 200);
    EXPECT_EQ(TopOf(layers), top) << "the list does not scroll";
}

TEST_F(LayerTreesFindTest, ShowLayerShowsALayerThatIsNotFound)
{
    Open(List::Layers);
    trees.Find(List::Layers, "rails");
    host.AddLayer({.id = 50, .name = "New"});
    trees.ShowLayer(50);
    EXPECT_EQ(Selected(layers), "New");
    trees.ShowLayer(21);
    EXPECT_EQ(Lines(layers), QStringList({"New", "Rails", "Rivers"}));
    EXPECT_EQ(Selected(layers), "Rivers");
}

TEST_F(LayerTreesFindTest, ARenamedNodeStaysUntilTheNextFind)
{
    Open(List::Layers);
    trees.Find(List::Layers, "roads");
    trees.SetLayerName(11, "Streets");
    EXPECT_EQ(Lines(layers), QStringList({"Streets"}));
    trees.Find(List::Layers, "road");
    EXPECT_EQ(Lines(layers), QStringList());
    trees.Find(List::Layers, "street");
    EXPECT_EQ(Lines(layers), QStringList({"Streets"}));
}

TEST_F(LayerTreesFindTest, AGroupsImageIsThatOfAllItsLayers)
{
    Open(List::Groups);
    trees.Find(List::Groups, "rails");
    trees.SetLayerImage(12, 4);
    EXPECT_EQ(ImageOf(groups, "Rails", "Transport"), "L4");
    EXPECT_EQ(ImageOf(groups, "Transport"), "G0");
    trees.SetLayerImage(11, 4);
    EXPECT_EQ(ImageOf(groups, "Transport"), "G4");
}

TEST_F(LayerTreesFindTest, ChoosesTheFirstNodeFoundAsAUserDoes)
{
    Open(List::Groups);
    trees.Find(List::Groups, "roads");
    EXPECT_TRUE(trees.ChooseFirstFound(List::Groups));
    EXPECT_EQ(trees.CurrentText(), "Roads");
    EXPECT_EQ(moved, 1);
    trees.Find(List::Groups, "nothing");
    EXPECT_FALSE(trees.ChooseFirstFound(List::Groups));
}

TEST_F(LayerTreesFindTest, FindsWithinWhatTheHostsFilterLeaves)
{
    const FilterOnOne filter(11);
    trees.SetFilter(&filter);
    Open(List::Layers);
    trees.Find(List::Layers, "r");
    EXPECT_EQ(Lines(layers), QStringList({"Rails", "Rivers"}));
    EXPECT_EQ(Count(List::Layers), QList<int>({2, 3}));
}

} // namespace

} // namespace Orvane
