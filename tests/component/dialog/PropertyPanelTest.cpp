// SPDX-License-Identifier: MIT
#include "component/dialog/PropertyPanel.h"

#include "component/dialog/EditorFixture.h"
#include "component/dialog/FlagEditor.h"
#include "component/dialog/ScaleRangeEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QSlider>
#include <QToolButton>
#include <QtTest>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

class Panel : public EditorFixture
{
protected:
    void SetUp() override
    {
        AddTown();
        host.AddLayer({.id = 5, .name = "Scaled", .minVisScale = 10000.0, .maxVisScale = 20000.0});
        host.AddLayer({.id = 6, .name = "Low", .minVisScale = 0.0, .maxVisScale = 5000.0});
        Open();
        ClickLayer("Roads");
    }

    void SelectTransport()
    {
        ClickTab(1);
        ClickGroup("Transport");
    }

    std::vector<int> StatesOfClicks(const char* box, int clicks)
    {
        std::vector<int> states;
        for (; clicks > 0; --clicks) {
            Click(box);
            states.push_back(CheckState(box));
        }
        return states;
    }
};

TEST(CheckStateToValue, GivesTheThreeValuesAndNothingForAnyOther)
{
    EXPECT_THAT(CheckStateToValue(0), IsValue(false));
    EXPECT_THAT(CheckStateToValue(1), IsValue(true));
    EXPECT_TRUE(CheckStateToValue(2).IsNull());
    EXPECT_TRUE(CheckStateToValue(3).IsEmpty());
    EXPECT_TRUE(CheckStateToValue(-1).IsEmpty());
}

TEST(NullDefault, StandsInForNullOnly)
{
    EXPECT_THAT(NullDefault(Value::Null(), qint32(257)), IsValue(qint32(257)));
    EXPECT_THAT(NullDefault(qint16(0), qint32(257)), IsValue(qint16(0)));
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

// ---- scales

TEST_F(Panel, AMinimumAboveTheMaximumTakesItAlong)
{
    ClickLayer("Low");
    ChooseScale("cmdEditMinScale", 10);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:10000");
    EXPECT_EQ(TextOf("lblScaleMax"), "1:10000");
    EXPECT_TRUE(IsUnderlined("lblScaleMin") && IsUnderlined("lblScaleMax"));
}

TEST_F(Panel, AMaximumBelowTheMinimumTakesItAlong)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMaxScale", 3);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:3000");
    EXPECT_EQ(TextOf("lblScaleMin"), "1:3000");
}

TEST_F(Panel, LimitsThatDoNotCrossAreLeftAlone)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMinScale", 20);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:20000");
    EXPECT_FALSE(IsUnderlined("lblScaleMax"));
    ChooseScale("cmdEditMaxScale", 20);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:20000");
}

// "dont care" reads back as 0, below every minimum.
TEST_F(Panel, AnUnlimitedMaximumTakesOverAMinimumOfOneOrMore)
{
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    ChooseScale("cmdEditMinScale", 1);
    EXPECT_EQ(TextOf("lblScaleMax"), "1:1000");
}

TEST_F(Panel, AnUnlimitedMaximumStaysWithAMinimumOfNone)
{
    ClickLayer("Scaled");
    ChooseScale("cmdEditMaxScale", 256);
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    ChooseScale("cmdEditMinScale", 0);
    EXPECT_EQ(TextOf("lblScaleMax"), "dont care");
    EXPECT_EQ(TextOf("lblScaleMin"), "dont care");
}

TEST_F(Panel, AVariousMaximumIsNeverTouched)
{
    SelectTransport();
    ChooseScale("cmdEditMinScale", 255);
    EXPECT_EQ(TextOf("lblScaleMin"), "1:255000");
    EXPECT_EQ(TextOf("lblScaleMax"), "various");
    EXPECT_FALSE(IsUnderlined("lblScaleMax"));
}

TEST_F(Panel, AVariousMinimumIsNeverTouched)
{
    SelectTransport();
    ChooseScale("cmdEditMaxScale", 1);
    EXPECT_EQ(TextOf("lblScaleMin"), "various");
}

TEST_F(Panel, ConfirmingVariousLeavesTheLabelUnmarked)
{
    SelectTransport();
    ASSERT_TRUE(EditWithSlider("cmdEditMinScale", [](QWidget& slider) {
        EXPECT_TRUE(slider.findChild<QCheckBox*>("chkVarious")->isEnabled());
        QTest::mouseClick(slider.findChild<QWidget*>("cmdOK"), Qt::LeftButton);
    }));
    EXPECT_EQ(TextOf("lblScaleMin"), "various");
    EXPECT_FALSE(IsUnderlined("lblScaleMin"));
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, VariousCanBeChosenOnlyWhereTheLayersDiffer)
{
    for (const char* button : {"cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority"}) {
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            EXPECT_FALSE(slider.findChild<QCheckBox*>("chkVarious")->isEnabled()) << button;
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
    }
}

TEST_F(Panel, AnAbandonedSliderChangesNothing)
{
    ASSERT_TRUE(EditWithSlider("cmdEditMinScale", [](QWidget& slider) {
        slider.findChild<QSlider*>("sldValue")->setValue(9);
        QTest::mouseClick(slider.findChild<QWidget*>("cmdCancel"), Qt::LeftButton);
    }));
    EXPECT_EQ(TextOf("lblScaleMin"), "dont care");
    EXPECT_FALSE(CanApply());
}

TEST_F(Panel, EachSliderHasItsRange)
{
    const std::vector<std::tuple<const char*, int, int>> ranges{
        {"cmdEditMinScale", 0, 255}, {"cmdEditMaxScale", 1, 256}, {"cmdEditPriority", 1, 255}};
    for (const auto& [button, minimum, maximum] : ranges) {
        int seenMinimum = -1;
        int seenMaximum = -1;
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            auto* value = slider.findChild<QSlider*>("sldValue");
            seenMinimum = value->minimum();
            seenMaximum = value->maximum();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        EXPECT_EQ(seenMinimum, minimum) << button;
        EXPECT_EQ(seenMaximum, maximum) << button;
    }
}

TEST_F(Panel, VariousValuesStartTheSliderAtItsDefault)
{
    host.SetLayerColumn(2, "Priority", qint32(7));
    SelectTransport();
    const std::vector<std::pair<const char*, int>> defaults{
        {"cmdEditMinScale", 0}, {"cmdEditMaxScale", 256}, {"cmdEditPriority", 1}};
    for (const auto& [button, expected] : defaults) {
        int position = -1;
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            position = slider.findChild<QSlider*>("sldValue")->value();
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
        EXPECT_EQ(position, expected) << button;
    }
}

TEST_F(Panel, APriorityTouchesNoOtherLabel)
{
    ChooseScale("cmdEditPriority", 1);
    EXPECT_EQ(TextOf("lblPriority"), "1 (highest)");
    EXPECT_TRUE(IsUnderlined("lblPriority"));
    EXPECT_FALSE(IsUnderlined("lblScaleMin") || IsUnderlined("lblScaleMax"));
    EXPECT_TRUE(CanApply());
}

TEST_F(Panel, TheSliderOpensOnThePressAndOnKeys)
{
    for (const int key : {Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter, Qt::Key_Down}) {
        bool opened = false;
        auto& button = Find<QToolButton>("cmdEditPriority");
        QTimer::singleShot(0, &button, [&] {
            opened = QApplication::activeModalWidget() != nullptr;
            if (opened)
                QApplication::activeModalWidget()->close();
        });
        QTest::keyPress(&button, Qt::Key(key));
        QApplication::processEvents();
        EXPECT_TRUE(opened) << key;
        EXPECT_FALSE(button.isDown());
        QTest::keyRelease(&button, Qt::Key(key));
    }
}

TEST_F(Panel, TheSliderOpensBeforeTheMouseIsReleased)
{
    auto& button = Find<QToolButton>("cmdEditPriority");
    bool opened = false;
    QTimer::singleShot(0, &button, [&] {
        opened = QApplication::activeModalWidget() != nullptr;
        if (opened)
            QApplication::activeModalWidget()->close();
    });
    QTest::mousePress(&button, Qt::LeftButton);
    QApplication::processEvents();
    EXPECT_TRUE(opened);
    QTest::mouseRelease(&button, Qt::LeftButton);
}

TEST_F(Panel, OneSliderServesAllThreeProperties)
{
    std::vector<QWidget*> sliders;
    for (const char* button : {"cmdEditMinScale", "cmdEditMaxScale", "cmdEditPriority"}) {
        ASSERT_TRUE(EditWithSlider(button, [&](QWidget& slider) {
            sliders.push_back(&slider);
            QTest::keyClick(&slider, Qt::Key_Escape);
        }));
    }
    EXPECT_THAT(sliders, ElementsAre(sliders.front(), sliders.front(), sliders.front()));
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

TEST_F(Panel, ALabelThatCannotBeReadIsToldToThePerson)
{
    Find<QLabel>("lblPriority").setText("abc");
    MessageBoxRobot person{BoxKey::Enter};
    Click("cmdEditPriority");
    EXPECT_EQ(person.Only().text, "Type mismatch");
}

} // namespace

} // namespace Orvane::Testing
