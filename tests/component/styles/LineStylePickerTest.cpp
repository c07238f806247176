// SPDX-License-Identifier: MIT
#include "component/styles/LineStylePicker.h"

#include "component/styles/PickersFixture.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QSignalSpy>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using Special = PickerList::Special;

constexpr int customIndex = 10;

class LineStylePickerTest : public PickersFixture
{
protected:
    LineStylePickerTest()
    {
        TakeUsualSize(list);
        picker.BuildLineStyleList();
    }

    // What the user answers in the width dialog; nothing cancels it.
    bool Ask(qint16& thickness, Twips x, Twips y)
    {
        asked = thickness;
        place = {x, y};
        if (fails)
            throw RunTimeError(ErrorNumber::TypeMismatch, "Type mismatch");
        if (answer)
            thickness = *answer;
        return answer.has_value();
    }

    void ExpectLine(const Value& style, const Value& thickness)
    {
        EXPECT_THAT(ToDouble(picker.GetSelectedLineStyle().style), ToDouble(style));
        EXPECT_THAT(ToDouble(picker.GetSelectedLineStyle().thickness), ToDouble(thickness));
    }
    void ExpectVarious()
    {
        EXPECT_TRUE(picker.GetSelectedLineStyle().style.IsNull());
        EXPECT_TRUE(picker.GetSelectedLineStyle().thickness.IsNull());
    }

    std::optional<qint16> answer;
    bool fails = false;
    std::optional<qint16> asked;
    TwipPoint place;
    OvCombo list{&window};
    LineStylePicker picker{
        list, "~", [this](qint16& thickness, Twips x, Twips y) { return Ask(thickness, x, y); }};
};

} // namespace

TEST_F(LineStylePickerTest, OffersTheStandardLinesInTheirOrder)
{
    EXPECT_THAT(DataOf(list), ElementsAre(15, 0, 1, 2, 3, 4, -40, -60, -80, -100, 0));
    EXPECT_EQ(picker.List().IndexOf(Special::Custom), customIndex);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), -1);
    EXPECT_EQ(list.List(customIndex), "~FCMS Sans Serif,8,.Custom Line Style...");
    EXPECT_EQ(TextOf(list, customIndex), "Custom Line Style...");
}

TEST_F(LineStylePickerTest, DrawsTheLinesForTheListsSize)
{
    EXPECT_EQ(list.List(0), "<none>");
    EXPECT_EQ(list.List(1), "\t~DRB=0/8:P=0/0/0/:M0,7:F138,+0,138,7,0,7.");
    EXPECT_EQ(list.List(3), "~DRP=0/2/0/:M0,7:D138,+0.");
    EXPECT_EQ(list.List(7), "~DRB=0/-1:P=0/0/0/:M0,6:F138,+0,138,9,0,9.");
}

TEST_F(LineStylePickerTest, DrawsAllLinesAnewWhenTheListIsResized)
{
    picker.SetLineStyleSelection(0, -8);
    list.resize(182, 21);
    EXPECT_EQ(list.List(3), "~DRP=0/2/0/:M0,7:D160,+0.");
    ExpectLine(0, -8);
}

TEST_F(LineStylePickerTest, AWidthBeforeTheStandardLinesStaysWhenTheListIsResized)
{
    picker.AddLineStyleItem(0, -9, 0);
    picker.SetLineStyleSelection(0, -9);
    list.resize(182, 21);
    EXPECT_EQ(list.ItemData(0), -180);
    EXPECT_EQ(list.ListCount(), 12);
    ExpectLine(0, -9);
}

TEST_F(LineStylePickerTest, OffersVariousOnlyWhileTheLayersDiffer)
{
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    EXPECT_GE(picker.List().IndexOf(Special::Various), 0);
    picker.SetLineStyleSelection(0, -3);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), -1);
    EXPECT_EQ(list.ListCount(), 11);
}

TEST_F(LineStylePickerTest, SelectsTheLineOfTheLayer)
{
    picker.SetLineStyleSelection(qint16(0), qint16(-3));
    EXPECT_EQ(list.ListIndex(), 7);
    ExpectLine(0, -3.0);
    picker.SetLineStyleSelection(15, 0);
    EXPECT_EQ(list.ListIndex(), 0);
    ExpectLine(15, 0);
}

TEST_F(LineStylePickerTest, AddsAnUnknownWidthBeforeTheCustomItem)
{
    picker.SetLineStyleSelection(0, 2);
    EXPECT_EQ(list.ListIndex(), 10);
    EXPECT_EQ(list.ItemData(10), 40);
    EXPECT_EQ(TextOf(list, 10), "2 mm");
    EXPECT_EQ(picker.List().IndexOf(Special::Custom), 11);
    EXPECT_EQ(list.DropDownRows(), list.ListCount() + 1);
    ExpectLine(0, 2);
}

TEST_F(LineStylePickerTest, AddsAnUnknownStyleToo)
{
    picker.SetLineStyleSelection(7, 0);
    EXPECT_EQ(list.ItemData(10), 7);
    ExpectLine(7, 0);
}

TEST_F(LineStylePickerTest, ShowsNullAsVarious)
{
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    EXPECT_EQ(TextOf(list, list.ListIndex()), "[various]");
    EXPECT_EQ(list.DropDownRows(), list.ListCount() + 1);
    ExpectVarious();
    picker.SetLineStyleSelection(0, Value::Null());
    ExpectVarious();
    EXPECT_EQ(list.ListCount(), 12);
}

TEST_F(LineStylePickerTest, AStyleThatWouldReadBackAsAWidthIsShownAsVarious)
{
    picker.SetLineStyleSelection(20, 0);
    ExpectVarious();
    picker.SetLineStyleSelection(19, 0);
    ExpectLine(19, 0);
}

TEST_F(LineStylePickerTest, AWidthBeyondTheDataOverflows)
{
    picker.SetLineStyleSelection(0, -3);
    EXPECT_THROW(picker.SetLineStyleSelection(0, 1639), RunTimeError);
    EXPECT_THROW(picker.SetLineStyleSelection(QString("thick"), 0), RunTimeError);
    ExpectLine(0, -3);
}

TEST_F(LineStylePickerTest, AnInsertedLineMovesEveryRememberedIndexBehindIt)
{
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    picker.AddLineStyleItem(0, -9, 0);
    EXPECT_EQ(picker.List().IndexOf(Special::Custom), 11);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), 12);
    ExpectVarious();
}

TEST_F(LineStylePickerTest, AChosenLineIsToldOnce)
{
    const QSignalSpy changes(&picker, &LineStylePicker::Changed);
    Choose(list, 3);
    EXPECT_EQ(changes.count(), 1);
    ExpectLine(2, 0);
}

TEST_F(LineStylePickerTest, ACustomWidthIsInsertedBeforeTheCustomItemAndSelected)
{
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    const QSignalSpy changes(&picker, &LineStylePicker::Changed);
    answer = qint16(-8);
    Choose(list, customIndex);
    ExpectLine(0, -8);
    EXPECT_EQ(list.ListIndex(), 10);
    EXPECT_EQ(TextOf(list, 10), "8 pixels");
    EXPECT_EQ(picker.List().IndexOf(Special::Custom), 11);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), 12);
    EXPECT_EQ(list.DropDownRows(), 14);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(LineStylePickerTest, ACustomWidthOfTheListIsOnlySelected)
{
    answer = qint16(-4);
    Choose(list, customIndex);
    EXPECT_EQ(list.ListIndex(), 8);
    EXPECT_EQ(list.ListCount(), 11);
}

TEST_F(LineStylePickerTest, TheWidthDialogAlwaysStartsWithNoThickness)
{
    picker.SetLineStyleSelection(0, -5);
    Choose(list, customIndex);
    EXPECT_EQ(asked, 0);
}

TEST_F(LineStylePickerTest, TheWidthDialogOpensAtTheListTwiceItsHeightDown)
{
    Choose(list, customIndex);
    const QPoint pixels = window.mapToGlobal(QPoint(20, 30 + 2 * 21));
    EXPECT_EQ(place, (TwipPoint{pixels.x() * 15, pixels.y() * 15}));
}

TEST_F(LineStylePickerTest, CancellingTheWidthDialogShowsTheLineOfTheLayerAgain)
{
    picker.SetLineStyleSelection(0, -3);
    Choose(list, 3);
    const QSignalSpy changes(&picker, &LineStylePicker::Changed);
    Choose(list, customIndex);
    ExpectLine(0, -3);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(LineStylePickerTest, AFailureOfTheWidthDialogIsToldAndTheLineOfTheLayerShownAgain)
{
    picker.SetLineStyleSelection(0, -3);
    fails = true;
    const MessageBoxRobot user{BoxKey::Enter};
    Choose(list, customIndex);
    EXPECT_EQ(user.Only().text, "Type mismatch");
    ExpectLine(0, -3);
}

TEST_F(LineStylePickerTest, KeysStepOverTheCustomItem)
{
    picker.SetLineStyleSelection(0, -5);
    Key(list, Qt::Key_Down);
    EXPECT_EQ(list.ListIndex(), 9);
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    Key(list, Qt::Key_Up);
    EXPECT_EQ(list.ListIndex(), 9);
    EXPECT_EQ(asked, std::nullopt);
}

TEST_F(LineStylePickerTest, RebuildingKeepsWhatWasAddedAndSelected)
{
    picker.SetLineStyleSelection(7, 0);
    picker.SetLineStyleSelection(Value::Null(), Value::Null());
    picker.ShowEdit(0, 2);
    picker.Rebuild();
    EXPECT_EQ(list.ListCount(), 14);
    ExpectLine(0, 2);
    EXPECT_EQ(picker.List().IndexOf(Special::Custom), 12);
    EXPECT_EQ(TextOf(list, picker.List().IndexOf(Special::Various)), "[various]");
}

TEST_F(LineStylePickerTest, SaysWhatTheLinesAre)
{
    EXPECT_EQ(TextOf(list, 0), "<none>");
    EXPECT_EQ(TextOf(list, 1), "Thinnest line");
    EXPECT_EQ(TextOf(list, 2), "Dashed line");
    EXPECT_EQ(TextOf(list, 9), "5 pixels");
}

} // namespace Orvane::Testing
