// SPDX-License-Identifier: MIT
#include "component/dialog/window/ApplyEdits.h"

#include "component/common/Component.h"
#include "component/dialog/EditorFixture.h"
#include "component/dialog/trees/LayerTreeModel.h"
#include "component/dialog/trees/LayerTrees.h"

#include <OrvaneShellLib/IStyleEditor.h>

#include <QTreeView>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Applying : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        Open();
    }

    void SelectTransport()
    {
        ClickTab(1);
        ClickGroup("Transport");
    }

    /// The quick mode that the image of the first such node shows.
    static int ListedMode(const QTreeView& tree, const QString& text)
    {
        const QModelIndexList found = tree.model()->match(
            tree.model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly | Qt::MatchRecursive);
        return found.value(0).data(LayerTreeModel::QuickModeRole).toInt();
    }

    int Redraws() { return int(host.Log().CallsTo("RedrawMap").size()); }
};

TEST_F(Applying, DoesNothingWithoutEdits)
{
    ClickLayer("Roads");
    host.ClearLog();
    Click("cmdApply");
    Key(Qt::Key_Return);
    EXPECT_THAT(host.Calls(), IsEmpty());
}

TEST_F(Applying, WritesALayerAndRedrawsOnce)
{
    ClickLayer("Roads");
    Click("chkLocked");
    host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 1);
    EXPECT_EQ(Redraws(), 1);
    EXPECT_THAT(host.Log().CallsTo("LayerChanged"), ElementsAre("LayerChanged(1)"));
    EXPECT_FALSE(CanApply());
    EXPECT_FALSE(IsUnderlined("chkLocked"));
}

TEST_F(Applying, WritesAGroupInOneTransactionAndRedrawsOnce)
{
    SelectTransport();
    Click("chkLocked");
    Click("chkLocked");
    host.ClearLog();
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 1);
    EXPECT_EQ(Stored(2, "locked"), 1);
    EXPECT_EQ(Redraws(), 1);
    EXPECT_EQ(CheckState("chkLocked"), 1);
}

TEST_F(Applying, LeavesWhatDiffersAlone)
{
    SelectTransport();
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Visible"), 1);
    EXPECT_EQ(Stored(2, "Visible"), 0);
    EXPECT_EQ(Stored(1, "Style"), 0);
    EXPECT_EQ(Stored(2, "Style"), 7);
    EXPECT_EQ(Stored(2, "MinVisScale"), 5000);
    EXPECT_EQ(Stored(1, "Code"), 11);
    EXPECT_EQ(Stored(2, "Code"), 12);
}

TEST_F(Applying, StoresScalesAndPriority)
{
    ClickLayer("Rivers");
    ChooseScale("cmdEditMinScale", 8);
    ChooseScale("cmdEditMaxScale", 30);
    ChooseScale("cmdEditPriority", 17);
    Click("cmdApply");
    EXPECT_EQ(Stored(2, "MinVisScale"), 8000);
    EXPECT_EQ(Stored(2, "MaxVisScale"), 30000);
    EXPECT_EQ(Stored(2, "Priority"), 17);
}

// "dont care" reads back as 0, whatever it stood for.
TEST_F(Applying, AValueThatWouldComeBackChangedIsLeftAlone)
{
    const double before = Stored(1, "MaxVisScale");
    ASSERT_NE(before, 0);
    ClickLayer("Roads");
    ASSERT_EQ(TextOf("lblScaleMax"), "dont care");
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "MaxVisScale"), before);
}

TEST_F(Applying, AFillStyleThatIsNotListedIsLeftAlone)
{
    host.SetLayerColumn(1, "FillStyle", qint32(77));
    const MessageBoxRobot user{BoxKey::Enter, BoxKey::Enter};
    ClickLayer("Roads");
    QCoreApplication::processEvents();
    Click("chkLocked");
    Click("cmdApply");
    QCoreApplication::processEvents();
    EXPECT_EQ(Stored(1, "FillStyle"), 77);
}

TEST_F(Applying, ShowsWhatIsStoredAfterwards)
{
    ClickLayer("Roads");
    Click("chkLocked");
    host.SetLayerColumn(1, "Name", QString("Streets"));
    host.SetLayerColumn(1, "Code", qint32(99));
    Click("cmdApply");
    EXPECT_EQ(TextOf("lblCode"), "99");
    EXPECT_EQ(CheckState("chkLocked"), 1);
}

TEST_F(Applying, ALayerThatIsGoneIsToldAndTheEditsStay)
{
    ClickLayer("Roads");
    Click("chkLocked");
    host.RemoveLayerRow(1);
    host.ClearLog();
    const MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(user.Only().text, "The layer 'Roads' no longer exists. The changes were not applied.");
    EXPECT_THAT(host.Log().CallsTo("Update"), IsEmpty());
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Applying, AGroupWithoutLayersIsToldAndTheEditsStay)
{
    SelectTransport();
    Click("chkLocked");
    host.RemoveLayerRow(1);
    host.RemoveLayerRow(2);
    const MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(
        user.Only().text, "The group 'Transport' no longer has any layers. The changes were not applied.");
    EXPECT_TRUE(CanApply());
    EXPECT_TRUE(IsUnderlined("chkLocked"));
    EditorForm().UnloadWithoutApply();
}

TEST_F(Applying, AGroupThatWasFoundWithoutLayersBeforeIsToldToo)
{
    SelectTransport();
    Click("chkLocked");
    host.RemoveMembers(1);
    host.RemoveMembers(2);
    ClickGroup("Transport"); // reads it again
    QCoreApplication::processEvents();
    ASSERT_TRUE(CanApply());
    const MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(
        user.Only().text, "The group 'Transport' no longer has any layers. The changes were not applied.");
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Applying, AGroupThatIsGoneIsToldAndItsLayersKeepTheirImages)
{
    SelectTransport();
    Click("Hidden");
    host.RemoveGroup(10);
    const MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(user.Only().text, "The group 'Transport' no longer exists. The changes were not applied.");
    EXPECT_EQ(Stored(1, "OverrideMode"), 0);
    EXPECT_EQ(ListedMode(Find<QTreeView>("tvLayers1"), "Roads"), 1);
    EXPECT_TRUE(CanApply());
    EditorForm().UnloadWithoutApply();
}

TEST_F(Applying, ALayerThatHasLeftItsGroupKeepsItsImage)
{
    SelectTransport();
    Click("Hidden");
    host.RemoveMembers(1);
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "OverrideMode"), 0);
    EXPECT_EQ(Stored(2, "OverrideMode"), 2);
    EXPECT_EQ(ListedMode(Find<QTreeView>("tvLayers1"), "Roads"), 1);
    EXPECT_EQ(ListedMode(Find<QTreeView>("tvLayers1"), "Rivers"), 4);
}

TEST_F(Applying, AModeThatWasNotStoredIsNotListed)
{
    ClickLayer("Roads");
    Click("Hidden");
    host.RemoveLayerRow(1);
    const MessageBoxRobot user{BoxKey::Enter};
    Click("cmdApply");
    EXPECT_EQ(ListedMode(Find<QTreeView>("tvLayers2"), "Roads"), 1);
    EXPECT_EQ(PressedModes(), 4);
    EditorForm().UnloadWithoutApply();
}

TEST_F(Applying, AMemberThatIsGoneIsLeftOut)
{
    SelectTransport();
    Click("chkLocked");
    host.RemoveLayerRow(2);
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 0);
    EXPECT_FALSE(CanApply());
}

TEST_F(Applying, AModeThatCannotBeShownIsReportedAndNotStored)
{
    QTreeView groups;
    QTreeView layers;
    LayerTrees trees(&groups, &layers);
    trees.LoadGroups();
    const NodeReference group{.isGroup = true, .groupID = 10, .image = 1};
    const auto outcome = ApplyEdits(trees, group, PanelEdits());
    EXPECT_EQ(outcome.outcome, ApplyOutcome::UnexpectedMode);
    EXPECT_EQ(Stored(1, "OverrideMode"), 0);
    EXPECT_EQ(Stored(2, "OverrideMode"), 1);
}

TEST_F(Applying, AModeThatChangedBehindTheDialogIsThatOfTheRowsThatAreRead)
{
    SelectTransport();
    ASSERT_EQ(PressedModes(), 0);
    host.SetLayerColumn(2, "OverrideMode", qint32(0));
    ClickGroup("Transport");
    QCoreApplication::processEvents();
    EXPECT_EQ(PressedModes(), 1);
    const QTreeView& tree = Find<QTreeView>("tvLayers1");
    EXPECT_EQ(tree.currentIndex().data(LayerTreeModel::QuickModeRole), 1);
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(2, "OverrideMode"), 0);
}

TEST_F(Applying, ATickWritesNoModeThatTheRowLostMeanwhile)
{
    host.SetLayerColumn(1, "OverrideMode", qint32(2));
    ClickLayer("Roads");
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "OverrideMode"), 2);
}

TEST_F(Applying, ValuesOfAnotherUserThatWereNotEditedStay)
{
    ClickLayer("Roads");
    host.SetLayerColumn(1, "Priority", qint32(9));
    host.SetLayerColumn(1, "Color", qint32(0x00FF00));
    host.SetLayerColumn(1, "Code", qint32(70));
    host.SetLayerColumn(1, "OverrideMode", qint32(1));
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "locked"), 1);
    EXPECT_EQ(Stored(1, "Priority"), 9);
    EXPECT_EQ(Stored(1, "Color"), 0x00FF00);
    EXPECT_EQ(Stored(1, "Code"), 70);
    EXPECT_EQ(Stored(1, "OverrideMode"), 1);
    EXPECT_EQ(TextOf("lblPriority"), "9");
}

TEST_F(Applying, AHostThatDoesNotAskGetsTheUsersValues)
{
    ClickLayer("Roads");
    host.SetLayerColumn(1, "locked", qint32(1));
    ChooseScale("cmdEditPriority", 17);
    host.SetLayerColumn(1, "Priority", qint32(9));
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Priority"), 17);
}

TEST_F(Applying, RedrawsAfterTheCommit)
{
    SelectTransport();
    Click("chkLocked");
    host.ClearLog();
    Click("cmdApply");
    const QStringList trace = host.Log().Trace();
    const qsizetype commit = trace.indexOf(host.Log().CallsTo("CommitTrans").value(0));
    ASSERT_GE(commit, 0);
    EXPECT_GT(trace.indexOf(host.Log().CallsTo("RedrawMap").value(0)), commit);
}

TEST_F(Applying, AMemberThatTheTreeDoesNotKnowGetsItsImageToo)
{
    SelectTransport();
    host.AddMember(10, 3, 9);
    Click("Hidden");
    Click("cmdApply");
    EXPECT_EQ(Stored(3, "OverrideMode"), 2);
    ClickTab(2);
    ClickLayer("Parcels");
    EXPECT_EQ(PressedModes(), 4);
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_EQ(Stored(3, "OverrideMode"), 2);
}

} // namespace

} // namespace Orvane::Testing
