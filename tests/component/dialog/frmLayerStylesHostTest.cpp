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

TEST_F(Lifecycle, RefreshGroupsForgetsThatThereAreEditsAndReadsTheGroupsOnly)
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
    EXPECT_EQ(CheckState("chkVisible"), 0);
    EXPECT_TRUE(IsUnderlined("chkVisible"));
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
    MessageBoxRobot person{BoxKey::Yes};
    Form()->close();
    EXPECT_EQ(Form(), nullptr);
    EXPECT_EQ(Stored(1, "Visible"), 0);
}

TEST_F(Lifecycle, ClosingWithEditsAsksAndNoDropsThem)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot person{BoxKey::No};
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

} // namespace

} // namespace Orvane::Testing
