// SPDX-License-Identifier: MIT
#include "component/dialog/trees/LayerTreesFixture.h"
#include "hosts/FailingClient.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QtTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;

namespace Orvane {

namespace {

using Testing::BoxKey;
using Testing::FailingClient;
using Testing::LayerTreesTest;
using Testing::MessageBoxRobot;

class LayerTreesMoveTest : public LayerTreesTest
{
protected:
    void LetApplyFail()
    {
        trees.SetPendingChangesQuestion([] { throw RunTimeError(ErrorNumber::DatabaseLocked, "locked"); });
    }

    bool IsStoredExpanded(qint32 groupID) { return ToBoolean(host.GroupColumn(groupID, "Expanded")); }

    void ClickBranch(const QString& group)
    {
        const QRect place = groups.visualRect(Node(groups, group));
        QTest::mouseClick(
            groups.viewport(), Qt::LeftButton, {}, QPoint(place.left() - 8, place.center().y()));
    }
};

} // namespace

TEST_F(LayerTreesMoveTest, StartsWithoutACurrentNode)
{
    Open(List::Layers);
    EXPECT_EQ(trees.CurrentNode(), std::nullopt);
    EXPECT_EQ(trees.CurrentText(), "");
}

TEST_F(LayerTreesMoveTest, MakesTheClickedLayerCurrent)
{
    Open(List::Groups);
    Click(groups, "Roads", "Water");
    ASSERT_TRUE(trees.CurrentNode());
    EXPECT_EQ(
        *trees.CurrentNode(), (NodeReference{.isGroup = false, .groupID = 2, .layerID = 11, .image = 1}));
    EXPECT_EQ(trees.CurrentText(), "Roads");
    EXPECT_EQ(moved, 1);
}

TEST_F(LayerTreesMoveTest, MakesTheClickedGroupCurrent)
{
    Open(List::Groups);
    Click(groups, "Transport");
    EXPECT_EQ(CurrentKey(), "G00000010000000");
}

TEST_F(LayerTreesMoveTest, AsksOnceForAnotherNodeAndNotForTheSame)
{
    Open(List::Layers);
    Click(layers, "Rails");
    EXPECT_EQ(asked, 0);
    Click(layers, "Rails");
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(moved, 1);
    Click(layers, "Roads");
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(moved, 2);
}

TEST_F(LayerTreesMoveTest, AsksWhileTheOldNodeIsStillCurrent)
{
    Open(List::Layers);
    Click(layers, "Rails");
    QString askedAbout;
    trees.SetPendingChangesQuestion([&] { askedAbout = trees.CurrentText(); });
    Click(layers, "Roads");
    EXPECT_EQ(askedAbout, "Rails");
    EXPECT_EQ(trees.CurrentText(), "Roads");
}

TEST_F(LayerTreesMoveTest, FollowsTheArrowKeys)
{
    Open(List::Layers);
    Click(layers, "Rails");
    Press(layers, Qt::Key_Down);
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    EXPECT_EQ(Selected(layers), "Rivers");
    EXPECT_EQ(asked, 1);
    Press(layers, Qt::Key_End);
    EXPECT_EQ(trees.CurrentText(), "Roads");
}

TEST_F(LayerTreesMoveTest, FollowsTypedLetters)
{
    Open(List::Layers);
    Type(layers, "ri");
    EXPECT_EQ(trees.CurrentText(), "Rivers");
}

TEST_F(LayerTreesMoveTest, DoesNotTakeFocusAloneForAChoice)
{
    Open(List::Layers);
    groups.setFocus();
    Settle();
    EXPECT_EQ(Selected(groups), "");
    EXPECT_EQ(moved, 0);
}

TEST_F(LayerTreesMoveTest, KeepsTheCurrentNodeSelectedWhenAClickWouldDeselectIt)
{
    Open(List::Layers);
    Click(layers, "Rails");
    const QPoint place = layers.visualRect(layers.currentIndex()).center();
    QTest::mouseClick(layers.viewport(), Qt::LeftButton, Qt::ControlModifier, place);
    EXPECT_EQ(Selected(layers), "Rails");
    EXPECT_EQ(moved, 1);
    EXPECT_EQ(asked, 0);
}

TEST_F(LayerTreesMoveTest, StaysWithAClickWhenApplyFails)
{
    Open(List::Layers);
    Click(layers, "Rails");
    LetApplyFail();
    MessageBoxRobot user{BoxKey::Enter};
    Click(layers, "Roads");
    Settle();
    EXPECT_EQ(user.Only().text, "locked");
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_EQ(Selected(layers), "Rails");
    EXPECT_EQ(layers.currentIndex().data().toString(), "Rails");
    EXPECT_EQ(moved, 1);
}

TEST_F(LayerTreesMoveTest, StaysWithAKeyWhenApplyFails)
{
    Open(List::Layers);
    Click(layers, "Rails");
    LetApplyFail();
    MessageBoxRobot user{BoxKey::Enter}; // once, though the view selects twice
    Press(layers, Qt::Key_Down);
    Settle();
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_EQ(Selected(layers), "Rails");
    EXPECT_EQ(layers.currentIndex().data().toString(), "Rails");
}

TEST_F(LayerTreesMoveTest, GoesOnAfterAFailedApplyOnceItSucceeds)
{
    Open(List::Layers);
    Click(layers, "Rails");
    LetApplyFail();
    {
        MessageBoxRobot user{BoxKey::Enter};
        Click(layers, "Roads");
        Settle();
    }
    trees.SetPendingChangesQuestion([this] { ++asked; });
    Click(layers, "Roads");
    EXPECT_EQ(trees.CurrentText(), "Roads");
    EXPECT_EQ(asked, 1);
}

TEST_F(LayerTreesMoveTest, ReachesTheClickedNodeThoughTheAnswerReloadsTheList)
{
    Open(List::Layers);
    Click(layers, "Rails");
    trees.SetPendingChangesQuestion([this] { trees.LoadLayers(); });
    Click(layers, "Roads");
    EXPECT_EQ(trees.CurrentText(), "Roads");
    EXPECT_EQ(Selected(layers), "Roads");
}

TEST_F(LayerTreesMoveTest, StaysWhenTheAnswerTakesTheClickedNodeAway)
{
    Open(List::Layers);
    Click(layers, "Rails");
    trees.SetPendingChangesQuestion([this] {
        host.RemoveLayerRow(11);
        trees.LoadLayers();
    });
    Click(layers, "Roads");
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_EQ(Selected(layers), "Rails");
}

TEST_F(LayerTreesMoveTest, AsksAfterTheEventWhenTheQuestionWillWait)
{
    Open(List::Layers);
    Click(layers, "Rails");
    bool pending = true;
    trees.SetPendingChangesQuestion([this] { ++asked; }, [&] { return pending; });
    Press(layers, Qt::Key_Down);
    EXPECT_EQ(asked, 0);
    EXPECT_EQ(trees.CurrentText(), "Rails");
    Settle();
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(trees.CurrentText(), "Rivers");
    pending = false;
    Press(layers, Qt::Key_Down);
    EXPECT_EQ(trees.CurrentText(), "Roads");
}

TEST_F(LayerTreesMoveTest, BearsBeingDestroyedWhileTheQuestionWaits)
{
    Open(List::Layers);
    auto* view = new QTreeView(&window);
    auto* doomed = new LayerTrees(new QTreeView(view), view, view);
    doomed->LoadLayers();
    view->setCurrentIndex(Node(*view, "Rails"));
    const QPointer<QTreeView> alive(view);
    doomed->SetPendingChangesQuestion([&] { delete view; }, [] { return true; });
    view->setCurrentIndex(Node(*view, "Roads"));
    ASSERT_TRUE(alive);
    Settle();
    EXPECT_FALSE(alive);
}

TEST_F(LayerTreesMoveTest, KeepsACurrentNodeForEachList)
{
    Open(List::Layers);
    Click(layers, "Rails");
    trees.ShowList(List::Groups);
    EXPECT_EQ(trees.CurrentNode(), std::nullopt);
    Click(groups, "Water");
    trees.ShowList(List::Layers);
    EXPECT_EQ(trees.CurrentText(), "Rails");
    EXPECT_EQ(trees.ShownList(), List::Layers);
}

TEST_F(LayerTreesMoveTest, AsksBeforeAnotherListIsShownAndStaysWhenApplyFails)
{
    Open(List::Layers);
    Click(layers, "Rails");
    trees.ShowList(List::Layers);
    EXPECT_EQ(asked, 0);
    LetApplyFail();
    EXPECT_THROW(trees.ShowList(List::Groups), RunTimeError);
    EXPECT_EQ(trees.CurrentText(), "Rails");
}

TEST_F(LayerTreesMoveTest, StoresAnExpandedAndACollapsedGroup)
{
    Open(List::Groups);
    ClickBranch("Transport");
    EXPECT_TRUE(IsStoredExpanded(1));
    ClickBranch("Water");
    EXPECT_FALSE(IsStoredExpanded(2));
    EXPECT_EQ(trees.CurrentNode(), std::nullopt);
}

TEST_F(LayerTreesMoveTest, StoresExpansionByKeys)
{
    Open(List::Groups);
    Click(groups, "Transport");
    Press(groups, Qt::Key_Right);
    EXPECT_TRUE(IsStoredExpanded(1));
    Press(groups, Qt::Key_Left);
    EXPECT_FALSE(IsStoredExpanded(1));
}

TEST_F(LayerTreesMoveTest, FindsTheStoredExpansionAtTheNextLoad)
{
    Open(List::Groups);
    ClickBranch("Transport");
    ClickBranch("Water");
    trees.LoadGroups();
    EXPECT_THAT(Lines(groups), ElementsAre("Transport", "  Roads", "  Rails", "Water"));
}

TEST_F(LayerTreesMoveTest, LeavesTheExpansionOfAMissingGroupUnsavedWithoutAMessage)
{
    Open(List::Groups);
    host.RemoveGroupRow(1);
    MessageBoxRobot nobody{};
    ClickBranch("Transport");
    EXPECT_TRUE(groups.isExpanded(Node(groups, "Transport")));
    EXPECT_THAT(host.Log().CallsTo("Update"), ElementsAre());
}

TEST_F(LayerTreesMoveTest, ReportsAnExpansionThatCannotBeStored)
{
    Open(List::Groups);
    FailingClient client(host, {"Update", 1, RunTimeError(ErrorNumber::DatabaseLocked, "locked")});
    UseClient(client);
    MessageBoxRobot user{BoxKey::Enter};
    ClickBranch("Transport");
    EXPECT_EQ(user.Only().text, "locked");
}

TEST_F(LayerTreesMoveTest, ShowsALayerImageOnAllItsNodesAndOnItsGroups)
{
    Open(List::Groups);
    trees.SetLayerImage(11, 4);
    EXPECT_EQ(ImageOf(groups, "Roads", "Transport"), "L4");
    EXPECT_EQ(ImageOf(groups, "Roads", "Water"), "L4");
    EXPECT_EQ(ImageOf(layers, "Roads"), "L4");
    EXPECT_EQ(ImageOf(groups, "Transport"), "G0");
    trees.SetLayerImage(12, 4);
    EXPECT_EQ(ImageOf(groups, "Transport"), "G4");
}

TEST_F(LayerTreesMoveTest, ShowsAGroupImageOnItsMembersInBothTrees)
{
    Open(List::Groups);
    trees.SetGroupImage(1, 2);
    EXPECT_EQ(ImageOf(groups, "Transport"), "G2");
    EXPECT_EQ(ImageOf(groups, "Rails", "Transport"), "L2");
    EXPECT_EQ(ImageOf(groups, "Roads", "Water"), "L2");
    EXPECT_EQ(ImageOf(layers, "Roads"), "L2");
    EXPECT_EQ(ImageOf(groups, "Water"), "G0");
    EXPECT_EQ(ImageOf(layers, "Rivers"), "L1");
}

TEST_F(LayerTreesMoveTest, GivesTheCurrentNodeWithTheImageThatItShowsNow)
{
    Open(List::Layers);
    Click(layers, "Roads");
    trees.SetLayerImage(11, 2);
    ASSERT_TRUE(trees.CurrentNode());
    EXPECT_EQ(trees.CurrentNode()->image, 2);
    EXPECT_EQ(moved, 1);
}

} // namespace Orvane
