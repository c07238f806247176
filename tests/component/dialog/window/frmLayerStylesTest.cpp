// SPDX-License-Identifier: MIT
#include "component/dialog/LifecycleFixture.h"

#include <OrvaneShellLib/IStyleEditor.h>
#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QToolButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// ---- showing

TEST_F(Lifecycle, AStoredStateOpensAsItWasLeft)
{
    StoreViewState("9000:7000:SCHEMES:NOT EXPANDED");
    Open();
    EXPECT_EQ(CurrentTab(), 3);
    EXPECT_FALSE(IsExpanded());
    EXPECT_EQ(Form()->size(), QSize(600, 467));
}

TEST_F(Lifecycle, AnEmptyStateOpensOnTheLayersExpandedAtTheDesignedSize)
{
    Open();
    EXPECT_EQ(CurrentTab(), 2);
    EXPECT_TRUE(IsExpanded());
    EXPECT_EQ(Form()->size(), Form()->sizeHint());
}

TEST_F(Lifecycle, AnEmptyStateWithAFilterForGroupsOpensOnThem)
{
    const OddLayers filter(true);
    Create();
    Editor().StyleFilter(&filter);
    Open();
    EXPECT_EQ(CurrentTab(), 1);
    EXPECT_TRUE(IsExpanded());
    EXPECT_EQ(Form()->size(), Form()->sizeHint());
}

TEST_F(Lifecycle, RestoringASizeKeepsThePlace)
{
    StoreViewState("9000:7000:LAYERS:EXPANDED");
    Create();
    Form()->move(60, 40);
    Open();
    EXPECT_EQ(Form()->pos(), QPoint(60, 40));
    EXPECT_EQ(Form()->size(), QSize(600, 467));
}

TEST_F(Lifecycle, AMaximisedDialogStoresItsNormalSize)
{
    StoreViewState("9000:7000:LAYERS:EXPANDED");
    Open();
    Form()->showMaximized();
    ASSERT_TRUE(QTest::qWaitFor([&] { return Form()->width() > 600; }));
    Close();
    EXPECT_EQ(StoredViewState(), "9000:7000:LAYERS:EXPANDED");
}

TEST_F(Lifecycle, TheDesignedSizeFitsTheScreen)
{
    const QFont before = QApplication::font();
    QFont huge = before;
    huge.setPointSizeF(before.pointSizeF() * 4);
    QApplication::setFont(huge);
    Open();
    const QSize screen = Form()->screen()->availableGeometry().size();
    EXPECT_GT(Form()->sizeHint().width(), screen.width());
    EXPECT_EQ(Form()->size(), screen.expandedTo(Form()->minimumSizeHint()));
    QApplication::setFont(before);
}

TEST_F(Lifecycle, AFilterThatAsksForGroupsOverrulesTheStoredTab)
{
    const OddLayers filter(true);
    StoreViewState("9000:7000:SCHEMES:EXPANDED");
    Create();
    Editor().StyleFilter(&filter);
    Open();
    EXPECT_EQ(CurrentTab(), 1);
}

TEST_F(Lifecycle, AnUnknownTabWordOpensOnTheGroups)
{
    StoreViewState("9000:7000:NONSENSE:EXPANDED");
    Open();
    EXPECT_EQ(CurrentTab(), 1);
}

TEST_F(Lifecycle, MalformedStatesLeaveTheDesignedSize)
{
    for (const char* text :
         {"abc:7000:LAYERS:EXPANDED", "-9000:-7000:LAYERS:EXPANDED", "nan:inf:LAYERS:EXPANDED", ":::", "9000",
          "9000,5:7000,5:LAYERS:EXPANDED", "\xD9\xA9:\xD9\xA9:LAYERS:EXPANDED", "0:0:LAYERS:EXPANDED"}) {
        StoreViewState(QString::fromUtf8(text));
        Open();
        EXPECT_EQ(Form()->size(), Form()->sizeHint()) << text;
        EXPECT_TRUE(IsExpanded()) << text;
        Close();
    }
}

TEST_F(Lifecycle, AHugeStoredSizeFitsTheScreen)
{
    StoreViewState("1e30:999999999:LAYERS:EXPANDED");
    Open();
    EXPECT_EQ(Form()->size(), Form()->screen()->availableGeometry().size());
}

TEST_F(Lifecycle, ATinyStoredSizeStillShowsEverything)
{
    StoreViewState("1:1:LAYERS:EXPANDED");
    Open();
    EXPECT_EQ(Form()->size(), Form()->minimumSizeHint());
}

TEST_F(Lifecycle, OpensOnAScreenWhereverItStood)
{
    Create();
    Form()->move(-90000, 90000);
    Open();
    EXPECT_TRUE(Form()->screen()->availableGeometry().intersects(Form()->geometry()));
}

TEST_F(Lifecycle, ShowingAVisibleEditorCallsNobody)
{
    Open();
    host.ClearLog();
    Editor().Visible(true);
    EXPECT_THAT(host.Calls(), IsEmpty());
}

TEST_F(Lifecycle, HidingAnEditorThatWasNeverShownDoesNothing)
{
    Create();
    host.ClearLog();
    Editor().Visible(false);
    EXPECT_THAT(host.Calls(), IsEmpty());
    EXPECT_NE(Form(), nullptr);
}

TEST_F(Lifecycle, AnEditorThatWasNeverShownReadsNothingButWritesItsState)
{
    Create();
    host.ClearLog();
    EditorForm().UnloadWithoutApply();
    EXPECT_THAT(
        host.Calls(), ElementsAre("EditorClosed()", Mentions("WriteSetting(DrawStyleEditor::Main, ")));
    EXPECT_THAT(StoredViewState(), Mentions(":NOT EXPANDED")) << "it was never expanded";
}

TEST_F(Lifecycle, AnEditorUnloadsWithoutAHost)
{
    Library().Initialise(&host);
    auto editor = Library().NewStyleEditor("Lonely");
    EXPECT_NO_THROW(dynamic_cast<IStyleEditorForm&>(*editor).UnloadWithoutApply());
}

TEST_F(Lifecycle, TheStateSurvivesManySessionsExactly)
{
    for (const char* text :
         {"9001.25:7003.5:GROUPS:EXPANDED", "9000:7000:SCHEMES:NOT EXPANDED",
          "8888.125:7777:LAYERS:EXPANDED"}) {
        StoreViewState(text);
        for (int session = 0; session < 3; ++session) {
            Open();
            Close();
            EXPECT_EQ(StoredViewState(), text);
        }
    }
}

TEST_F(Lifecycle, PopupShowsWithoutReadingTheState)
{
    Create();
    host.ClearLog();
    EditorForm().Popup();
    EXPECT_TRUE(Editor().Visible());
    EXPECT_THAT(host.Calls(), Not(Contains(Mentions("ReadSetting"))));
    EXPECT_THAT(host.Calls(), Contains("ShowEditor()"));
    EXPECT_EQ(Nodes("tvLayers1"), 2);
}

TEST_F(Lifecycle, PopupShowsBeforeItReadsTheCaption)
{
    Create();
    host.ClearLog();
    EditorForm().Popup();
    const QStringList calls = host.Calls();
    const qsizetype shown = calls.indexOf("ShowEditor()");
    ASSERT_GE(shown, 0);
    EXPECT_GT(calls.indexOf("ThemeName()"), shown);
}

TEST_F(Lifecycle, PopupOfAVisibleEditorOnlyGoesToTheGroupsThatTheFilterAsksFor)
{
    const OddLayers filter(true);
    Open();
    EditorForm().Popup();
    EXPECT_EQ(CurrentTab(), 2);
    Editor().StyleFilter(&filter);
    host.ClearLog();
    EditorForm().Popup();
    EXPECT_EQ(CurrentTab(), 1);
    EXPECT_THAT(host.Calls(), Not(Contains("ShowEditor()")));
}

// ---- the caption

TEST_F(Lifecycle, TheCaptionNamesTheTheme)
{
    Open();
    EXPECT_EQ(Form()->windowTitle(), "Layer Control");
    host.themeName = "Night";
    EditorForm().Popup();
    EXPECT_EQ(Form()->windowTitle(), "Theme Control: Night");
    host.themeName.clear();
    EditorForm().Popup();
    EXPECT_EQ(Form()->windowTitle(), "Layer Control");
}

// ---- tabs

TEST_F(Lifecycle, ATreeIsReadWhenItsTabIsFirstLookedAt)
{
    Open();
    EXPECT_EQ(host.Queries().size(), 1);
    ClickTab(1);
    EXPECT_EQ(Nodes("tvLayers1"), 2);
    const auto queries = host.Queries().size();
    ClickTab(2);
    ClickTab(1);
    EXPECT_EQ(host.Queries().size(), queries);
}

TEST_F(Lifecycle, EachTabShowsItsOwnControls)
{
    Open();
    const auto shown = [&](const char* name) { return Find(name).isVisible(); };
    ClickLayer("Roads");
    EXPECT_TRUE(shown("tvLayers2") && shown("picLayerControls") && shown("cboStyle"));
    EXPECT_FALSE(shown("tvLayers1") || shown("picScheme"));
    ClickTab(1);
    ClickGroup("Transport");
    EXPECT_TRUE(shown("tvLayers1") && shown("cboStyle"));
    EXPECT_FALSE(shown("tvLayers2") || shown("picLayerControls") || shown("picScheme"));
    ClickTab(3);
    EXPECT_TRUE(shown("picScheme"));
    EXPECT_FALSE(shown("tvLayers1") || shown("tvLayers2") || shown("picLayerControls") || shown("cboStyle"));
}

TEST_F(Lifecycle, TheSchemesTabDisablesWhatEditsALayer)
{
    Open();
    ClickLayer("Roads");
    ClickTab(3);
    for (const char* name : {"Normal", "Backdrop", "Hidden", "framPriority", "framVisScaleRange"})
        EXPECT_FALSE(IsEnabled(name)) << name;
    ClickTab(2);
    for (const char* name : {"Normal", "Backdrop", "Hidden", "framPriority", "framVisScaleRange"})
        EXPECT_TRUE(IsEnabled(name)) << name;
}

TEST_F(Lifecycle, EachTabKeepsItsOwnSelection)
{
    Open();
    ClickLayer("Roads");
    ClickTab(1);
    ClickGroup("Land");
    EXPECT_EQ(CheckState("chkVisible"), 1);
    ClickTab(2);
    EXPECT_EQ(TextOf("lblCode"), "11");
}

TEST_F(Lifecycle, LeavingATabWithEditsAsksAndNoDropsThem)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    {
        MessageBoxRobot user{BoxKey::No};
        ClickTab(3);
        EXPECT_EQ(user.Only().text, "Do you wish to apply the changes to the 'Roads' layer?");
    }
    EXPECT_FALSE(CanApply());
    ClickTab(2);
    EXPECT_EQ(CheckState("chkVisible"), 1);
    EXPECT_EQ(Stored(1, "Visible"), 1);
}

TEST_F(Lifecycle, LeavingATabWithEditsAsksAndYesAppliesThem)
{
    Open();
    ClickLayer("Roads");
    Click("chkVisible");
    MessageBoxRobot user{BoxKey::Yes};
    ClickTab(1);
    EXPECT_EQ(Stored(1, "Visible"), 0);
    EXPECT_EQ(CurrentTab(), 1);
}

TEST_F(Lifecycle, NothingSelectedShowsAHintInsteadOfValues)
{
    Open();
    EXPECT_TRUE(Find("picHideLayerSettings").isVisible());
    EXPECT_FALSE(Find("chkVisible").isVisible());
    EXPECT_EQ(TextOf("lblHint"), "Select a layer or a group to see its settings.");
    EXPECT_FALSE(IsEnabled("Normal"));
    EXPECT_FALSE(IsEnabled("cmdDeleteLayer"));
    EXPECT_FALSE(IsEnabled("lblCode"));
    EXPECT_FALSE(CanApply());
}

TEST_F(Lifecycle, TheSchemesTabSaysWhereLayerSettingsAreEdited)
{
    Open();
    ClickTab(3);
    EXPECT_EQ(TextOf("lblHint"), "Edit layer settings on the Groups and Layers tabs.");
}

// ---- expansion

TEST_F(Lifecycle, ResizingHidesTheSettingsAndTheirWidth)
{
    Open();
    const QSize before = Form()->size();
    const QPoint place = Form()->pos();
    const int settings = Find("picLayerStyle").width();
    Click("cmdResize");
    EXPECT_FALSE(IsExpanded());
    EXPECT_EQ(Find<QToolButton>("cmdResize").text(), ">>");
    EXPECT_EQ(Find("cmdResize").accessibleName(), "Show settings");
    EXPECT_EQ(Form()->size(), QSize(before.width() - settings, before.height()));
    EXPECT_EQ(Form()->pos(), place);
    Click("cmdResize");
    EXPECT_EQ(Find<QToolButton>("cmdResize").text(), "<<");
    EXPECT_EQ(Find("cmdResize").accessibleName(), "Hide settings");
    EXPECT_EQ(Form()->size(), before);
}

TEST_F(Lifecycle, ResizingTwiceRestoresEveryWidth)
{
    Open();
    for (int width = Form()->minimumSizeHint().width(); width < 900; width += 7) {
        Form()->resize(width, 500);
        const int before = Form()->width();
        Click("cmdResize");
        QApplication::processEvents();
        Click("cmdResize");
        EXPECT_EQ(Form()->width(), before);
    }
}

TEST_F(Lifecycle, ResizingTwiceKeepsTheStoredTwips)
{
    StoreViewState("9001.5:7000.25:LAYERS:EXPANDED");
    Open();
    Click("cmdResize");
    Click("cmdResize");
    Close();
    EXPECT_EQ(StoredViewState(), "9001.5:7000.25:LAYERS:EXPANDED");
}

TEST_F(Lifecycle, TheSchemesTabReadsNoLayer)
{
    Open();
    ClickLayer("Roads");
    NewCalls();
    ClickTab(3);
    EXPECT_THAT(NewCalls(), Not(testing::Contains("LayersTable()")));
    EXPECT_FALSE(IsEnabled("Normal"));
    ClickTab(2);
    EXPECT_THAT(NewCalls(), testing::Contains("LayersTable()"));
}

} // namespace

} // namespace Orvane::Testing
