// SPDX-License-Identifier: MIT
#include "component/dialog/panel/PropertyPanel.h"

#include "component/dialog/panel/FlagEditor.h"
#include "component/dialog/panel/PanelFixture.h"
#include "ovctrls/CheckBoxPlus.h"

#include <OrvaneShellLib/IStyleEditorForm.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

TEST(CheckStateToValue, GivesTheThreeValuesAndNothingForAnyOther)
{
    EXPECT_THAT(CheckStateToValue(0), IsValue(false));
    EXPECT_THAT(CheckStateToValue(1), IsValue(true));
    EXPECT_TRUE(CheckStateToValue(2).IsNull());
    EXPECT_TRUE(CheckStateToValue(3).IsEmpty());
    EXPECT_TRUE(CheckStateToValue(-1).IsEmpty());
}

TEST_F(Panel, WhatAListenerOfACheckBoxRaisesIsToldToTheUser)
{
    QObject::connect(&Find<CheckBoxPlus>("chkVisible"), &CheckBoxPlus::MouseUp, [] {
        throw RunTimeError(ErrorNumber::DatabaseFailure, "The layer table is gone.");
    });
    MessageBoxRobot user{BoxKey::Enter};
    Click("chkVisible");
    EXPECT_EQ(user.Only().text, "The layer table is gone.");
    EXPECT_EQ(CheckState("chkVisible"), 0);
    EditorForm().UnloadWithoutApply();
}

TEST_F(Panel, EachControlCarriesItsSlot)
{
    const std::vector<std::pair<const char*, const char*>> tags{
        {"chkVisible", "2"},      {"chkSelectable", "3"}, {"chkLocked", "4"},         {"chkHitable", "5"},
        {"chkSnapRequired", "6"}, {"chkEnquirable", "7"}, {"chkUseForSymbols", "11"}, {"lblScaleMin", "15"},
        {"lblScaleMax", "16"},    {"cboStyle", "17"},     {"lblPriority", "18"}};
    for (const auto& [name, slot] : tags)
        EXPECT_EQ(Find(name).property(TagProperty), QString(slot)) << name;
}

TEST_F(Panel, ShowsTheValuesOfALayer)
{
    ClickLayer("Rivers");
    EXPECT_EQ(CheckState("chkVisible"), 0);
    EXPECT_EQ(CheckState("chkLocked"), 1);
    EXPECT_EQ(CheckState("chkSnapRequired"), 1);
    EXPECT_EQ(CheckState("chkUseForSymbols"), 0);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:5000");
    EXPECT_EQ(TextOf("lblScaleMax"), "1:20000");
    EXPECT_EQ(TextOf("lblPriority"), "100");
    EXPECT_EQ(Find<QComboBox>("cboStyle").currentText(), "Hatched");
}

TEST_F(Panel, ShowsWhatDiffersInAGroupAsVarious)
{
    SelectTransport();
    for (const char* box :
         {"chkVisible", "chkSelectable", "chkLocked", "chkHitable", "chkSnapRequired", "chkEnquirable",
          "chkUseForSymbols"})
        EXPECT_EQ(CheckState(box), 2) << box;
    EXPECT_EQ(TextOf("lblScaleMin"), "various");
    EXPECT_EQ(TextOf("lblScaleMax"), "various");
    EXPECT_EQ(TextOf("lblPriority"), "100");
    EXPECT_EQ(Find<QComboBox>("cboStyle").currentIndex(), -1);
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, ARendererStyleThatIsNotListedIsNamedByItsNumberAndStays)
{
    host.SetLayerColumn(2, "Style", qint32(5));
    SelectTransport(); // "various" first
    ClickTab(2);
    ClickLayer("Rivers");
    EXPECT_EQ(Find<QComboBox>("cboStyle").currentIndex(), -1);
    EXPECT_EQ(Find<QComboBox>("cboStyle").placeholderText(), "5");
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_EQ(Stored(2, "Style"), 5);
}

// ---- boxes

TEST_F(Panel, ABoxOfOneLayerIsNeverGreyed)
{
    EXPECT_THAT(StatesOfClicks("chkVisible", 4), ElementsAre(0, 1, 0, 1));
}

TEST_F(Panel, ABoxThatDiffersCyclesThroughGreyed)
{
    SelectTransport();
    EXPECT_THAT(StatesOfClicks("chkVisible", 4), ElementsAre(0, 1, 2, 0));
}

TEST_F(Panel, TheSpaceBarTogglesBetweenTwoStates)
{
    SelectTransport();
    auto* box = Find("chkVisible").findChild<QCheckBox*>();
    for (const int expected : {0, 1, 0}) {
        QTest::keyClick(box, Qt::Key_Space);
        EXPECT_EQ(CheckState("chkVisible"), expected);
    }
}

TEST_F(Panel, ANewSelectionGivesEachBoxItsOwnCycle)
{
    SelectTransport();
    ClickGroup("Land");
    EXPECT_THAT(StatesOfClicks("chkVisible", 3), ElementsAre(0, 1, 0));
}

TEST_F(Panel, ChangingABoxUnderlinesItAndAllowsApplying)
{
    Click("chkVisible");
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    EXPECT_FALSE(IsUnderlined("chkLocked"));
    EXPECT_TRUE(CanApply());
}

TEST_F(Panel, ChangingABoxBackTakesTheLineAwayAndLeavesApplyAllowed)
{
    Click("chkVisible");
    Click("chkVisible");
    EXPECT_FALSE(IsUnderlined("chkVisible"));
    EXPECT_TRUE(CanApply());
}

TEST_F(Panel, AGreyedBoxThatIsGreyedAgainIsUnchanged)
{
    SelectTransport();
    StatesOfClicks("chkVisible", 2);
    EXPECT_TRUE(IsUnderlined("chkVisible"));
    Click("chkVisible");
    EXPECT_FALSE(IsUnderlined("chkVisible"));
}

TEST_F(Panel, AMarkIsSpokenToo)
{
    Click("chkVisible");
    auto* box = Find("chkVisible").findChild<QCheckBox*>();
    EXPECT_EQ(box->accessibleDescription(), "changed");
    Click("cmdCancel");
    EXPECT_EQ(box->accessibleDescription(), QString());
}

TEST_F(Panel, SelectableAndEnquirableNeedAHitableLayer)
{
    EXPECT_TRUE(IsEnabled("chkSelectable") && IsEnabled("chkEnquirable"));
    Click("chkHitable");
    EXPECT_FALSE(IsEnabled("chkSelectable") || IsEnabled("chkEnquirable"));
    Click("chkHitable");
    EXPECT_TRUE(IsEnabled("chkSelectable") && IsEnabled("chkEnquirable"));
}

TEST_F(Panel, SelectableAndEnquirableStayEnabledWhereHitableDiffers)
{
    SelectTransport();
    EXPECT_TRUE(IsEnabled("chkSelectable") && IsEnabled("chkEnquirable"));
}

TEST_F(Panel, AnUnhitableLayerDisablesThemFromTheStart)
{
    ClickLayer("Rivers");
    EXPECT_FALSE(IsEnabled("chkSelectable") || IsEnabled("chkEnquirable"));
    Click("chkLocked");
    Click("cmdApply");
    EXPECT_FALSE(IsEnabled("chkSelectable") || IsEnabled("chkEnquirable"));
}

// ---- the renderer style

TEST_F(Panel, AnotherRendererStyleIsMarked)
{
    auto& list = Find<QComboBox>("cboStyle");
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(list.currentText(), "Hatched");
    EXPECT_TRUE(IsUnderlined("cboStyle"));
    EXPECT_TRUE(CanApply());
}

TEST_F(Panel, ARendererStyleThatTheHostForgotStaysStored)
{
    host.SetLayerColumn(1, "Style", qint32(99));
    ClickLayer("Rivers");
    ClickLayer("Roads");
    EXPECT_EQ(Find<QComboBox>("cboStyle").currentIndex(), -1);
    Click("chkVisible");
    Click("cmdApply");
    EXPECT_EQ(Stored(1, "Style"), 99);
}

// ---- loading

TEST_F(Panel, LoadingNeverMarksAnything)
{
    // A maximum of 256 shows a text that reads back as 0.
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    EXPECT_FALSE(IsUnderlined("lblScaleMax"));
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, OnlyReloadingClearsTheMarks)
{
    Click("chkVisible");
    ChooseScale("cmdEditPriority", 3);
    Click("cmdCancel");
    EXPECT_FALSE(IsUnderlined("chkVisible") || IsUnderlined("lblPriority"));
    EXPECT_EQ(CheckState("chkVisible"), 1);
    EXPECT_EQ(TextOf("lblPriority"), "100");
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, ALabelThatCannotBeReadIsToldToTheUser)
{
    Find<QLabel>("lblPriority").setText("abc");
    MessageBoxRobot user{BoxKey::Enter};
    Click("cmdEditPriority");
    EXPECT_EQ(user.Only().text, "Type mismatch");
}

TEST_F(Panel, AButtonSpeaksTheValueThatItEditsAndWhetherItChanged)
{
    ClickLayer("Rivers");
    const auto spoken = [this](const char* button) { return Find(button).accessibleDescription(); };
    EXPECT_EQ(spoken("cmdEditMinScale"), "1:5000");
    EXPECT_EQ(spoken("cmdEditMaxScale"), "1:20000");
    EXPECT_EQ(spoken("cmdEditPriority"), "100");
    ChooseScale("cmdEditMinScale", 8);
    ChooseScale("cmdEditMinScale", 9);
    EXPECT_EQ(spoken("cmdEditMinScale"), "1:9000, changed");
    EXPECT_EQ(spoken("cmdEditMaxScale"), "1:20000");
    Click("cmdCancel");
    EXPECT_EQ(spoken("cmdEditMinScale"), "1:5000");
}

TEST_F(Panel, AnEmptyCaptionReadsAsNull)
{
    Find<QLabel>("lblPriority").clear();
    Find<QLabel>("lblScaleMin").clear();
    Click("chkLocked");
    host.ClearLog();
    Click("cmdApply");
    const QStringList written = host.Log().CallsTo("SetField");
    EXPECT_FALSE(written.filter("locked").isEmpty());
    EXPECT_TRUE(written.filter("Priority").isEmpty());
    EXPECT_TRUE(written.filter("MinVisScale").isEmpty());
}

} // namespace

} // namespace Orvane::Testing
