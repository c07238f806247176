// SPDX-License-Identifier: MIT
#include "component/dialog/LifecycleFixture.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QComboBox>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::Not;

TEST_F(Lifecycle, RefreshGroupsDropsEditsAndShowsWhatIsStored)
{
    Open();
    ClickTab(1);
    ClickGroup("Land");
    Click("chkVisible");
    host.AddGroup({.id = 30, .name = QString("New"), .ordering = 3, .members = {1}});
    host.ClearLog();
    Editor().RefreshGroups();
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Nodes("tvLayers1"), 3);
    EXPECT_THAT(host.Queries(), Not(Contains(Mentions("ORDER BY Name"))));
    EXPECT_EQ(CheckState("chkVisible"), 1);
    EXPECT_FALSE(IsUnderlined("chkVisible"));
}

TEST_F(Lifecycle, RefreshGroupsInitialisesAnEditorThatWasNotShown)
{
    Create();
    Editor().RefreshGroups();
    EXPECT_EQ(Nodes("tvLayers1"), 2);
    EXPECT_FALSE(Editor().Visible());
}

TEST_F(Lifecycle, AHandedOverFilterCountsWhenTheListIsNextLookedAt)
{
    const OddLayers filter;
    Open();
    Editor().StyleFilter(&filter);
    EXPECT_EQ(EditorForm().Filter(), &filter);
    EXPECT_EQ(Nodes("tvLayers2"), 4);
    ClickTab(1);
    ClickTab(2);
    EXPECT_EQ(Nodes("tvLayers2"), 2);
}

TEST_F(Lifecycle, AWrittenFilterCountsAtOnce)
{
    const OddLayers filter;
    Open();
    EditorForm().Filter(&filter);
    EXPECT_EQ(Nodes("tvLayers2"), 2);
    EditorForm().Filter(nullptr);
    EXPECT_EQ(Nodes("tvLayers2"), 4);
}

TEST_F(Lifecycle, AFilterWrittenBeforeTheFirstShowReadsNothing)
{
    const OddLayers filter;
    Create();
    host.ClearLog();
    EditorForm().Filter(&filter);
    EXPECT_THAT(host.Queries(), IsEmpty());
    Open();
    EXPECT_EQ(Nodes("tvLayers2"), 2);
}

TEST_F(Lifecycle, TheRendererStylesAreReadOnce)
{
    Open();
    EXPECT_EQ(EditorForm().LoadRendererStyles().size(), 2u);
    EXPECT_EQ(host.Log().CallsTo("RendererStyles").size(), 1);
    auto& list = Find<QComboBox>("cboStyle");
    EXPECT_EQ(list.itemText(0), "Standard");
    EXPECT_EQ(list.itemData(0), 0);
    EXPECT_EQ(list.itemText(2), "Sketched");
    EXPECT_EQ(list.itemData(2), 9);
}

TEST_F(Lifecycle, SetLayerNameRenamesThroughTheHost)
{
    Open();
    EditorForm().SetLayerName(1, "Streets");
    EXPECT_THAT(host.Calls(), Contains("RenameLayer(1, Streets)"));
    ClickLayer("Streets");
    EXPECT_EQ(TextOf("lblCode"), "11");
}

TEST_F(Lifecycle, SetLayerCodeStoresTheCodeThatIsShown)
{
    Open();
    ClickLayer("Roads");
    EditorForm().SetLayerCode(3);
    EXPECT_EQ(Stored(3, "Code"), 11);
    EXPECT_NO_THROW(EditorForm().SetLayerCode(999));
}

TEST_F(Lifecycle, ALayerThatTheHostMadeIsBroughtIntoView)
{
    Open();
    host.AddLayer({.id = 50, .name = "Sewers", .code = qint32(77)});
    EditorForm().AddNewLayer(50);
    EXPECT_EQ(TextOf("lblCode"), "77");
}

TEST_F(Lifecycle, ALayerAddedToAnEditorThatWasNotShownIsThereWhenItIs)
{
    Create();
    EditorForm().AddNewLayer(3);
    EXPECT_FALSE(Editor().Visible());
    Open();
    EXPECT_EQ(Nodes("tvLayers2"), 4);
    EXPECT_EQ(TextOf("lblCode"), "13");
}

// ---- closing

TEST_F(Lifecycle, ClosingWithEditsAsksAndYesStoresThem)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot user{BoxKey::Yes};
    Form()->close();
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(Lifecycle, ClosingWithEditsAsksAndNoDropsThem)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot user{BoxKey::No};
    Close();
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

TEST_F(Lifecycle, UnloadWithoutApplyAsksNothing)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    EditorForm().UnloadWithoutApply();
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

TEST_F(Lifecycle, TheIdIsFreeAfterClosing)
{
    Open();
    Close();
    EXPECT_EQ(Form(), nullptr);
    Open();
    EXPECT_TRUE(Editor().Visible());
}

TEST_F(Lifecycle, AHostMayHideAgainWhenItIsToldOfTheClosing)
{
    Open();
    host.OnEditorClosed = [this](QWidget*) {
        if (Form())
            Editor().Visible(false);
    };
    host.ClearLog();
    Close();
    EXPECT_EQ(Form(), nullptr);
    EXPECT_LE(host.Log().CallsTo("EditorClosed").size(), 2);
    EXPECT_EQ(host.Log().CallsTo("WriteSetting").size(), 1);
}

TEST_F(Lifecycle, ReleasingTheLibraryDropsTheEditsOfAnOpenEditor)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    const MessageBoxRobot nobody{};
    TearDown();
    EXPECT_TRUE(nobody.Boxes().empty());
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

// ---- lists that changed without the dialog

TEST_F(Lifecycle, LeavingAListWithEditsAsksOnceThoughTheOtherListLostItsNode)
{
    const OddLayers filter;
    Open();
    ClickLayer("Rivers");
    ClickTab(1);
    ClickGroup("Transport");
    Click("chkLocked");
    Editor().StyleFilter(&filter);
    {
        MessageBoxRobot user{BoxKey::No};
        ClickTab(2);
        EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Transport' group?");
    }
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(CurrentTab(), 2);
    EXPECT_EQ(Stored(2, "locked"), 1);
}

TEST_F(Lifecycle, LeavingTheLayersAsksOnceThoughTheCurrentGroupIsListedNoMore)
{
    Open();
    ClickTab(1);
    ClickGroup("Transport");
    ClickTab(2);
    ClickLayer("Parcels");
    host.SetGroupColumn(10, "Pseudo", true);
    EditorForm().Refresh();
    Click("chkLocked");
    MessageBoxRobot user{BoxKey::No};
    ClickTab(1);
    EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Parcels' layer?");
    EXPECT_FALSE(CanApply());
    EXPECT_EQ(Stored(1, "locked"), 0);
    EXPECT_EQ(Stored(2, "locked"), 1);
}

TEST_F(Lifecycle, RefreshGroupsFollowsAGroupThatVanished)
{
    Open();
    ClickTab(1);
    ClickGroup("Land");
    host.RemoveGroup(20);
    Editor().RefreshGroups();
    auto& tree = Find<QTreeView>("tvLayers1");
    const QModelIndex neighbour = tree.currentIndex();
    ASSERT_TRUE(neighbour.isValid());
    const bool isRivers = neighbour.data().toString() == "Rivers";
    EXPECT_TRUE(isRivers || neighbour.data().toString() == "Transport");
    EXPECT_EQ(CheckState("chkVisible"), isRivers ? 0 : 2);
    EXPECT_EQ(TextOf("lblScaleMin"), isRivers ? "1:5000" : "various");
    EXPECT_FALSE(CanApply());
}

TEST_F(Lifecycle, RefreshGroupsStaysWithTheLayerThatIsShown)
{
    Open();
    ClickTab(1);
    ClickGroup("Land");
    ClickTab(2);
    ClickLayer("Rivers");
    host.RemoveGroup(20);
    host.SetLayerColumn(2, "Priority", qint32(7));
    host.ClearLog();
    Editor().RefreshGroups();
    EXPECT_EQ(Nodes("tvLayers1"), 1);
    EXPECT_EQ(CurrentTab(), 2);
    EXPECT_EQ(TextOf("lblCode"), "12");
    EXPECT_EQ(TextOf("lblPriority"), "7");
}

TEST_F(Lifecycle, AClickOnTheShownTabReadsAListThatIsStale)
{
    const OddLayers filter;
    Open();
    Editor().StyleFilter(&filter);
    ClickTab(2);
    EXPECT_EQ(Nodes("tvLayers2"), 2);
}

} // namespace

} // namespace Orvane::Testing
