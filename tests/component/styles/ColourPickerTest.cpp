// SPDX-License-Identifier: MIT
#include "component/styles/ColourPicker.h"

#include "component/styles/PickersFixture.h"
#include "samples/StyleStrings.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QSignalSpy>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using Special = PickerList::Special;

constexpr int customOfLine = 15;
constexpr int customOfFill = 16;
constexpr qint32 orange = 0x0080FF;

class ColourPickerTest : public PickersFixture
{
protected:
    ColourPickerTest()
    {
        TakeUsualSize(lineList);
        TakeUsualSize(fillList);
        line.BuildColourList();
        fill.BuildColourList();
    }

    OvCombo lineList{&window};
    OvCombo fillList{&window};
    ColourPicker line{lineList, "~", ColourPicker::Offer::Colours};
    ColourPicker fill{fillList, "~", ColourPicker::Offer::ColoursAndTransparent};
};

const std::vector<qint32> lineColours{0x000000, 0x808080, 0xC0C0C0, 0xFFFFFF, 0xFF0000, 0x00FF00,
                                      0x0000FF, 0xFFFF00, 0x00FFFF, 0xFF00FF, 0x800000, 0x008000,
                                      0x000080, 0x808000, 0x008080, 0};

} // namespace

TEST_F(ColourPickerTest, OffersTheStandardColoursInTheirOrder)
{
    EXPECT_THAT(DataOf(lineList), ElementsAreArray(lineColours));
    EXPECT_EQ(TextOf(lineList, customOfLine), "Custom Colour...");
    EXPECT_EQ(line.List().IndexOf(Special::Custom), customOfLine);
    EXPECT_EQ(line.List().IndexOf(Special::Various), -1);
    EXPECT_EQ(lineList.DropDownRows(), 18);
}

TEST_F(ColourPickerTest, OnlyFillsMayBeTransparent)
{
    EXPECT_EQ(fillList.ItemData(15), TransparentColour);
    EXPECT_EQ(TextOf(fillList, 15), "Transparent");
    EXPECT_EQ(fillList.List(15), "Transparent");
    EXPECT_EQ(TextOf(fillList, customOfFill), "Custom Colour...");
    EXPECT_EQ(line.List().Find(TransparentColour), -1);
}

TEST_F(ColourPickerTest, DrawsAColourAsASwatchOfTheListsSize)
{
    EXPECT_EQ(lineList.List(6), "~FG=255.~DRB=255:P=255:M0,1:F0,1,138,1,138,14,0,14,0,1.");
}

TEST_F(ColourPickerTest, DrawsAllSwatchesAnewWhenTheListIsResized)
{
    line.SetColourSelection(orange);
    lineList.resize(182, 24);
    EXPECT_EQ(lineList.List(6), "~FG=255.~DRB=255:P=255:M0,1:F0,1,160,1,160,17,0,17,0,1.");
    EXPECT_EQ(lineList.ItemData(15), orange);
    EXPECT_THAT(line.GetSelectedColour(), IsValue(orange));
}

TEST_F(ColourPickerTest, NothingIsSelectedInANewList)
{
    EXPECT_EQ(lineList.ListIndex(), -1);
    EXPECT_TRUE(line.GetSelectedColour().IsNull());
}

TEST_F(ColourPickerTest, SelectsTheColourOfTheLayer)
{
    line.SetColourSelection(0x0000FF);
    EXPECT_EQ(lineList.ListIndex(), 6);
    EXPECT_THAT(line.GetSelectedColour(), IsValue(0x0000FF));
}

TEST_F(ColourPickerTest, ReadsAColourFromAnyNumber)
{
    line.SetColourSelection(255.0);
    EXPECT_EQ(lineList.ListIndex(), 6);
}

TEST_F(ColourPickerTest, AddsAnUnknownColourBeforeTheCustomItem)
{
    fill.SetColourSelection(orange);
    EXPECT_EQ(fillList.ListIndex(), 16);
    EXPECT_EQ(fillList.ItemData(16), orange);
    EXPECT_EQ(TextOf(fillList, 16), "#FF8000");
    EXPECT_EQ(fill.List().IndexOf(Special::Custom), 17);
    EXPECT_EQ(fillList.DropDownRows(), fillList.ListCount() + 2);
}

TEST_F(ColourPickerTest, AddsAnUnknownColourOnlyOnce)
{
    line.SetColourSelection(orange);
    line.SetColourSelection(0);
    line.SetColourSelection(orange);
    EXPECT_EQ(lineList.ListCount(), 17);
    EXPECT_EQ(lineList.ListIndex(), 15);
}

TEST_F(ColourPickerTest, AnyBitOfTheTopByteMeansTransparent)
{
    fill.SetColourSelection(qint32(0x01123456));
    EXPECT_EQ(fillList.ListIndex(), 15);
    EXPECT_THAT(fill.GetSelectedColour(), IsValue(TransparentColour));
}

TEST_F(ColourPickerTest, ATransparentLineIsAddedAsAnExtraItem)
{
    line.SetColourSelection(qint32(0xFF0000FF));
    EXPECT_EQ(lineList.ListIndex(), 15);
    EXPECT_EQ(TextOf(lineList, 15), "Transparent");
    EXPECT_THAT(line.GetSelectedColour(), IsValue(TransparentColour));
}

TEST_F(ColourPickerTest, ShowsNullAsVarious)
{
    line.SetColourSelection(Value::Null());
    EXPECT_EQ(lineList.ListIndex(), 16);
    EXPECT_EQ(TextOf(lineList, 16), "[various]");
    EXPECT_TRUE(line.GetSelectedColour().IsNull());
    EXPECT_EQ(lineList.DropDownRows(), 19);
}

TEST_F(ColourPickerTest, NeverAddsVariousTwice)
{
    line.SetColourSelection(Value::Null());
    line.SetColourSelection(0);
    line.SetColourSelection(Value::Null());
    EXPECT_EQ(lineList.ListCount(), 17);
    EXPECT_EQ(lineList.ListIndex(), 16);
}

TEST_F(ColourPickerTest, AnInsertedColourMovesEveryRememberedIndexBehindIt)
{
    line.SetColourSelection(Value::Null());
    line.AddColourItem(orange, 3);
    EXPECT_EQ(line.List().IndexOf(Special::Custom), 16);
    EXPECT_EQ(line.List().IndexOf(Special::Various), 17);
    EXPECT_TRUE(line.GetSelectedColour().IsNull());
}

TEST_F(ColourPickerTest, BuildingAnewForgetsWhatWasAdded)
{
    line.SetColourSelection(orange);
    line.SetColourSelection(Value::Null());
    line.BuildColourList();
    EXPECT_THAT(DataOf(lineList), ElementsAreArray(lineColours));
    EXPECT_EQ(line.List().IndexOf(Special::Various), -1);
    EXPECT_EQ(line.List().IndexOf(Special::Custom), customOfLine);
}

TEST_F(ColourPickerTest, RebuildingKeepsWhatWasAddedAndSelected)
{
    line.SetColourSelection(orange);
    line.SetColourSelection(Value::Null());
    line.Rebuild();
    EXPECT_EQ(lineList.ListCount(), 18);
    EXPECT_EQ(lineList.ItemData(15), orange);
    EXPECT_EQ(line.List().IndexOf(Special::Custom), 16);
    EXPECT_EQ(lineList.ListIndex(), line.List().IndexOf(Special::Various));
}

TEST_F(ColourPickerTest, AColourBeforeTheStandardOnesStaysWhenTheListIsResized)
{
    line.AddColourItem(orange, 0);
    line.SetColourSelection(orange);
    lineList.resize(200, 21);
    EXPECT_EQ(lineList.ItemData(0), orange);
    EXPECT_EQ(lineList.ItemData(1), 0);
    EXPECT_EQ(lineList.ListCount(), 17);
    EXPECT_EQ(lineList.ListIndex(), 0);
}

TEST_F(ColourPickerTest, OffersVariousOnlyWhileTheLayersDiffer)
{
    line.SetColourSelection(Value::Null());
    EXPECT_EQ(lineList.ListCount(), 17);
    line.SetColourSelection(0);
    EXPECT_EQ(lineList.ListCount(), 16);
    EXPECT_EQ(line.List().IndexOf(Special::Various), -1);
    EXPECT_EQ(line.List().IndexOf(Special::Custom), customOfLine);
}

TEST_F(ColourPickerTest, AnEditLeavesTheLayersOwnColourAsItIs)
{
    line.SetColourSelection(Value::Null());
    line.ShowEdit(0xFF0000);
    EXPECT_THAT(line.GetSelectedColour(), IsValue(0xFF0000));
    EXPECT_GE(line.List().IndexOf(Special::Various), 0);
}

TEST_F(ColourPickerTest, RebuildingTellsNobody)
{
    line.SetColourSelection(0);
    const QSignalSpy changes(&line, &ColourPicker::Changed);
    line.Rebuild();
    lineList.resize(200, 21);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(ColourPickerTest, AChosenColourIsToldOnce)
{
    const QSignalSpy changes(&line, &ColourPicker::Changed);
    Choose(lineList, 4);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_THAT(line.GetSelectedColour(), IsValue(0xFF0000));
}

TEST_F(ColourPickerTest, ACustomColourIsInsertedBeforeTheCustomItemAndSelected)
{
    line.SetColourSelection(Value::Null());
    const QSignalSpy changes(&line, &ColourPicker::Changed);
    const ColourDialogRobot user(ColourDialogRobot::Pick(QColor(255, 128, 0)));
    Choose(lineList, customOfLine);
    EXPECT_TRUE(user.HasOpened());
    EXPECT_THAT(line.GetSelectedColour(), IsValue(orange));
    EXPECT_EQ(lineList.ListIndex(), 15);
    EXPECT_EQ(line.List().IndexOf(Special::Custom), 16);
    EXPECT_EQ(TextOf(lineList, 16), "Custom Colour...");
    EXPECT_EQ(line.List().IndexOf(Special::Various), 17);
    EXPECT_EQ(TextOf(lineList, 17), "[various]");
    EXPECT_GE(lineList.DropDownRows(), lineList.ListCount());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(ColourPickerTest, ACustomColourOfTheListIsOnlySelected)
{
    const ColourDialogRobot user(ColourDialogRobot::Pick(Qt::red));
    Choose(lineList, customOfLine);
    EXPECT_EQ(lineList.ListIndex(), 6);
    EXPECT_EQ(lineList.ListCount(), 16);
}

TEST_F(ColourPickerTest, TheColourDialogStartsWithTheColourOfTheLayer)
{
    line.SetColourSelection(orange);
    Choose(lineList, 4);
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    Choose(lineList, line.List().IndexOf(Special::Custom));
    EXPECT_EQ(user.Start(), QColor(255, 128, 0));
    EXPECT_EQ(user.Title(), "Extended Colours");
}

TEST_F(ColourPickerTest, TheColourDialogStartsBlackWhereLayersDiffer)
{
    line.SetColourSelection(Value::Null());
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    Choose(lineList, customOfLine);
    EXPECT_EQ(user.Start(), QColor(Qt::black));
}

TEST_F(ColourPickerTest, CancellingTheColourDialogGoesBackToTheChoiceBefore)
{
    line.SetColourSelection(orange);
    Choose(lineList, 4);
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    Choose(lineList, line.List().IndexOf(Special::Custom));
    EXPECT_TRUE(user.HasOpened());
    EXPECT_THAT(line.GetSelectedColour(), IsValue(0xFF0000));
}

TEST_F(ColourPickerTest, CancellingTheColourDialogKeepsVarious)
{
    line.SetColourSelection(Value::Null());
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    Choose(lineList, customOfLine);
    EXPECT_TRUE(line.GetSelectedColour().IsNull());
}

TEST_F(ColourPickerTest, KeysStepOverTheCustomItemWithoutOpeningTheDialog)
{
    line.SetColourSelection(Value::Null());
    line.ShowEdit(0x008080);
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    Key(lineList, Qt::Key_Down);
    EXPECT_EQ(lineList.ListIndex(), 16);
    EXPECT_TRUE(line.GetSelectedColour().IsNull());
    Key(lineList, Qt::Key_Up);
    EXPECT_EQ(lineList.ListIndex(), 14);
    EXPECT_FALSE(user.HasOpened());
}

TEST_F(ColourPickerTest, TheWheelStopsBeforeTheCustomItemAtTheEnd)
{
    line.SetColourSelection(0x808000);
    const QSignalSpy changes(&line, &ColourPicker::Changed);
    const ColourDialogRobot user(ColourDialogRobot::Cancel());
    TurnDown(lineList);
    TurnDown(lineList);
    EXPECT_EQ(lineList.ListIndex(), 14);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_FALSE(user.HasOpened());
    TurnUp(lineList);
    EXPECT_EQ(lineList.ListIndex(), 13);
}

TEST_F(ColourPickerTest, TheEndKeyGoesToTheLastColour)
{
    line.SetColourSelection(0);
    Key(lineList, Qt::Key_End);
    EXPECT_THAT(line.GetSelectedColour(), IsValue(0x008080));
}

TEST_F(ColourPickerTest, AValueThatIsNoColourRaisesAndLeavesTheListAsItWas)
{
    line.SetColourSelection(0x0000FF);
    EXPECT_THROW(line.SetColourSelection(QString("red")), RunTimeError);
    EXPECT_THROW(line.SetColourSelection(4294967295.0), RunTimeError);
    EXPECT_EQ(lineList.ListIndex(), 6);
    EXPECT_EQ(lineList.ListCount(), 16);
}

TEST_F(ColourPickerTest, SaysTheNamesOfColours)
{
    EXPECT_EQ(TextOf(lineList, 0), "Black");
    EXPECT_EQ(TextOf(lineList, 14), "Olive");
}

} // namespace Orvane::Testing
