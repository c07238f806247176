// SPDX-License-Identifier: MIT
#include "component/styles/FillStylePicker.h"

#include "component/common/Component.h"
#include "component/styles/PickersFixture.h"
#include "samples/BgrColour.h"
#include "support/MessageBoxRobot.h"

#include <OrvaneShellLib/ForwardingShellServices.h>
#include <OrvaneShellLib/RunTimeError.h>

#include <QCoreApplication>
#include <QPainter>
#include <QSignalSpy>

namespace Orvane::Testing {

namespace {

using Special = PickerList::Special;

// A host whose patterns are not available.
class NoPatterns : public ForwardingShellServices
{
public:
    using ForwardingShellServices::ForwardingShellServices;

private:
    MonochromeBitmap IShellServices_FillPattern(int, int) const override
    {
        throw RunTimeError(10007, "no pattern");
    }
};

class FillStylePickerTest : public PickersFixture
{
protected:
    FillStylePickerTest()
    {
        TakeUsualSize(list);
        picker.BuildFillStyleList();
    }

    QImage PaintedItem(int index)
    {
        QImage image(142, 20, QImage::Format_RGB32);
        QPainter painter(&image);
        list.PaintItem(painter, image.rect(), index, false);
        return image;
    }

    FillColours colours{0x00FF00, 0x0000FF, 0xFF0000};
    OvCombo list{&window};
    FillStylePicker picker{list, "~", [this] { return colours; }};
};

} // namespace

TEST_F(FillStylePickerTest, OffersSolidAndHollowFirstThenThePatterns)
{
    std::vector<qint32> expected{0, 15};
    for (qint32 style = 1; style < 32; ++style) {
        if (style != 15)
            expected.push_back(style);
    }
    EXPECT_EQ(DataOf(list), expected);
    EXPECT_EQ(list.List(4), "~UD.");
    EXPECT_EQ(list.DropDownRows(), 10);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), -1);
}

TEST_F(FillStylePickerTest, AsksTheHostForThirtyPatternsOfKind7)
{
    const QStringList calls = host.Log().Of(CallKind::Shell);
    EXPECT_EQ(calls.size(), 30);
    EXPECT_EQ(calls.first(), "FillPattern(7, 1)");
    EXPECT_EQ(calls.last(), "FillPattern(7, 31)");
    EXPECT_FALSE(calls.contains("FillPattern(7, 0)"));
    EXPECT_FALSE(calls.contains("FillPattern(7, 15)"));
}

TEST_F(FillStylePickerTest, BuildingAgainReusesThePictures)
{
    EXPECT_NO_THROW(picker.BuildFillStyleList());
    EXPECT_EQ(list.ListCount(), 32);
}

TEST_F(FillStylePickerTest, AnErrorOfTheHostsPatternsReachesTheCaller)
{
    NoPatterns services(host.Shell());
    Component::Get().SetHost(&host, &services);
    EXPECT_THROW(picker.BuildFillStyleList(), RunTimeError);
}

TEST_F(FillStylePickerTest, SelectsTheStyleOfTheLayer)
{
    picker.SetFillStyleSelection(qint16(15));
    EXPECT_EQ(list.ListIndex(), 1);
    EXPECT_THAT(picker.GetSelectedFillStyle(), IsValue(15));
}

TEST_F(FillStylePickerTest, ShowsNullAsVariousNeverTwice)
{
    picker.SetFillStyleSelection(Value::Null());
    picker.SetFillStyleSelection(3);
    picker.SetFillStyleSelection(Value::Null());
    EXPECT_EQ(list.ListCount(), 33);
    EXPECT_EQ(list.ListIndex(), 32);
    EXPECT_EQ(TextOf(list, 32), "[various]");
    EXPECT_TRUE(picker.GetSelectedFillStyle().IsNull());
    EXPECT_EQ(list.DropDownRows(), 10);
}

TEST_F(FillStylePickerTest, TellsOfAnUnknownStyleAndShowsTheFirst)
{
    MessageBoxRobot user{BoxKey::Enter};
    picker.SetFillStyleSelection(99);
    EXPECT_EQ(list.ListIndex(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(user.Only().text, "Unknown Fill Style!");
    EXPECT_EQ(user.Only().buttons, QStringList("OK"));
    EXPECT_EQ(user.Only().icon, QMessageBox::NoIcon);
}

TEST_F(FillStylePickerTest, AChosenStyleIsToldOnce)
{
    const QSignalSpy changes(&picker, &FillStylePicker::Changed);
    Choose(list, 20);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_THAT(picker.GetSelectedFillStyle(), IsValue(20));
}

TEST_F(FillStylePickerTest, PaintsAnItemInTheColoursOfTheMoment)
{
    EXPECT_EQ(BgrFromQColor(PaintedItem(0).pixelColor(70, 10)), 0x0000FF);
    EXPECT_EQ(BgrFromQColor(PaintedItem(1).pixelColor(70, 10)), 0xFF0000);
    colours.fore = 0x00FFFF;
    EXPECT_EQ(BgrFromQColor(PaintedItem(0).pixelColor(70, 10)), 0x00FFFF);
}

TEST_F(FillStylePickerTest, PaintsAPatternWithTheHostsBitmap)
{
    // The first row of the pattern is its number, here 2 = 00000010, the others are 00010001.
    const QImage item = PaintedItem(3);
    EXPECT_EQ(item.pixelColor(8, 2), QColor(Qt::black));
    EXPECT_EQ(item.pixelColor(9, 2), QColor(Qt::white));
    EXPECT_EQ(item.pixelColor(9, 3), QColor(Qt::black));
}

TEST_F(FillStylePickerTest, PaintsOnTheHostsListBackground)
{
    host.Shell().listBackColour = 0x112233;
    EXPECT_EQ(BgrFromQColor(PaintedItem(3).pixelColor(0, 0)), 0x112233);
}

TEST_F(FillStylePickerTest, PaintingWithoutAHostRaisesNothing)
{
    Component::Get().SetHost(nullptr, nullptr);
    EXPECT_NO_THROW(PaintedItem(3));
}

TEST_F(FillStylePickerTest, OffersVariousOnlyWhileTheLayersDiffer)
{
    picker.SetFillStyleSelection(Value::Null());
    picker.SetFillStyleSelection(7);
    EXPECT_EQ(list.ListCount(), 32);
    EXPECT_EQ(picker.List().IndexOf(Special::Various), -1);
}

TEST_F(FillStylePickerTest, RebuildingKeepsTheSelection)
{
    picker.SetFillStyleSelection(Value::Null());
    picker.ShowEdit(7);
    picker.Rebuild();
    EXPECT_EQ(list.ListCount(), 33);
    EXPECT_THAT(picker.GetSelectedFillStyle(), IsValue(7));
    EXPECT_EQ(picker.List().IndexOf(Special::Various), 32);
}

TEST_F(FillStylePickerTest, AValueThatIsNoNumberRaises)
{
    EXPECT_THROW(picker.SetFillStyleSelection(QString("dots")), RunTimeError);
}

TEST_F(FillStylePickerTest, SaysWhatTheFillsAre)
{
    EXPECT_EQ(TextOf(list, 0), "Solid");
    EXPECT_EQ(TextOf(list, 1), "Outline only");
    EXPECT_EQ(TextOf(list, 2), "Pattern 1");
}

TEST_F(FillStylePickerTest, TheItemsOfTheListSayTheirNamesAsToolTips)
{
    EXPECT_EQ(list.itemData(0, Qt::ToolTipRole).toString(), "Solid");
    EXPECT_EQ(list.itemData(1, Qt::ToolTipRole).toString(), "Outline only");
    EXPECT_EQ(list.itemData(31, Qt::ToolTipRole).toString(), "Pattern 31");
}

} // namespace Orvane::Testing
