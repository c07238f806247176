// SPDX-License-Identifier: MIT
#include "component/styles/StylePickers.h"

#include "component/styles/PickersFixture.h"
#include "samples/BgrColour.h"
#include "support/PaintWatch.h"
#include "support/PseudoLanguage.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QPainter>
#include <QtTest>

namespace Orvane::Testing {

namespace {

class StylePickersTest : public PickersFixture
{
protected:
    StylePickersTest()
    {
        for (OvCombo* list : {&colours[0], &colours[1], &colours[2], &fillStyles, &lineStyles})
            TakeUsualSize(*list);
        pickers.Build();
    }

    QColor FillSampleAt(int index, int x, int y)
    {
        QImage image(142, 20, QImage::Format_RGB32);
        QPainter painter(&image);
        fillStyles.PaintItem(painter, image.rect(), index, false);
        return image.pixelColor(x, y);
    }

    std::array<OvCombo, 3> colours{OvCombo(&window), OvCombo(&window), OvCombo(&window)};
    OvCombo fillStyles{&window};
    OvCombo lineStyles{&window};
    StylePickers pickers{{{&colours[0], &colours[1], &colours[2]}, &fillStyles, &lineStyles}, "@"};
};

int RaisedBy(const StylePickers& pickers, int index)
{
    try {
        pickers.Colour(index);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

} // namespace

TEST_F(StylePickersTest, OnlyTheFillListsOfferTransparent)
{
    EXPECT_EQ(pickers.Colour(0).List().Find(TransparentColour), -1);
    EXPECT_EQ(pickers.Colour(1).List().Find(TransparentColour), 15);
    EXPECT_EQ(pickers.Colour(2).List().Find(TransparentColour), 15);
}

TEST_F(StylePickersTest, ThereAreThreeColourLists)
{
    EXPECT_EQ(RaisedBy(pickers, 0), 0);
    EXPECT_EQ(RaisedBy(pickers, 2), 0);
    EXPECT_EQ(RaisedBy(pickers, -1), int(ErrorNumber::SubscriptOutOfRange));
    EXPECT_EQ(RaisedBy(pickers, 3), int(ErrorNumber::SubscriptOutOfRange));
}

TEST_F(StylePickersTest, FillSamplesShowTheColoursThatAreSelected)
{
    pickers.Colour(1).SetColourSelection(0x0000FF);
    pickers.Colour(2).SetColourSelection(0x00FF00);
    EXPECT_EQ(FillSampleAt(0, 100, 10), QColor(Qt::red));
    EXPECT_EQ(FillSampleAt(1, 100, 10), QColor(Qt::green));
}

TEST_F(StylePickersTest, VariousColoursCountAsBlackInASample)
{
    pickers.Colour(1).SetColourSelection(Value::Null());
    pickers.Colour(2).SetColourSelection(0xFFFFFF);
    EXPECT_EQ(FillSampleAt(0, 100, 10), QColor(Qt::black));
}

TEST_F(StylePickersTest, WithBothFillColoursTransparentAPatternShowsTheLineColourOnTheList)
{
    host.Shell().listBackColour = 0x112233;
    pickers.Colour(0).SetColourSelection(0x0000FF);
    pickers.Colour(1).SetColourSelection(TransparentColour);
    pickers.Colour(2).SetColourSelection(TransparentColour);
    // Style 2: the first row of the pattern is 00000010.
    EXPECT_EQ(FillSampleAt(3, 2 + 8 * 10 + 6, 2), QColor(Qt::red));
    EXPECT_EQ(BgrFromQColor(FillSampleAt(3, 2 + 8 * 10 + 5, 2)), 0x112233);
}

TEST_F(StylePickersTest, AChangedColourRepaintsTheSampleOfTheClosedList)
{
    pickers.Colour(1).SetColourSelection(0x0000FF);
    pickers.FillStyles().SetFillStyleSelection(0);
    fillStyles.raise();
    const QPoint middle = fillStyles.rect().center();
    EXPECT_EQ(fillStyles.grab().toImage().pixelColor(middle), QColor(Qt::red));
    Choose(colours[1], 5);
    EXPECT_EQ(fillStyles.grab().toImage().pixelColor(middle), QColor(Qt::green));
}

TEST_F(StylePickersTest, AChangedColourSendsThePaintEvent)
{
    fillStyles.move(20, 120);
    QCoreApplication::processEvents();
    PaintWatch paints(fillStyles);
    Choose(colours[1], 5);
    QCoreApplication::processEvents();
    EXPECT_GT(paints.Count(), 0);
}

TEST_F(StylePickersTest, ALayerOfTheSameColoursPaintsNothingAgain)
{
    const auto showLayer = [this] {
        for (int index = 0; index < StylePickers::ColourCount; ++index)
            pickers.Colour(index).SetColourSelection(0x0000FF);
        pickers.FillStyles().SetFillStyleSelection(2);
    };
    fillStyles.move(20, 120);
    QCoreApplication::processEvents();
    showLayer();
    PaintWatch paints(fillStyles);
    showLayer();
    EXPECT_EQ(paints.Count(), 0);
    pickers.Colour(2).SetColourSelection(0x00FF00);
    EXPECT_EQ(paints.Count(), 1);
}

TEST_F(StylePickersTest, SaysWhichListChanged)
{
    std::vector<OvCombo*> changed;
    QObject::connect(&pickers, &StylePickers::Changed, [&](OvCombo* list) { changed.push_back(list); });
    Choose(colours[2], 4);
    Choose(fillStyles, 4);
    Choose(lineStyles, 4);
    EXPECT_THAT(changed, testing::ElementsAre(&colours[2], &fillStyles, &lineStyles));
}

TEST_F(StylePickersTest, TheCustomLineItemOpensTheWidthDialogThroughTheHost)
{
    host.Shell().OnShowModal = [](QWidget* form) {
        EXPECT_EQ(form->objectName(), "frmOtherLineStyle");
        QTest::keyClicks(form->findChild<QWidget*>("bedThickness"), "7");
    };
    Choose(lineStyles, 10);
    EXPECT_THAT(pickers.LineStyles().GetSelectedLineStyle().thickness, IsValue(7.0));
    EXPECT_EQ(TextOf(lineStyles, 10), "7 mm");
}

TEST_F(StylePickersTest, AllWordsFollowTheLanguage)
{
    pickers.Colour(0).SetColourSelection(Value::Null());
    const PseudoLanguage pseudo;
    pickers.Rebuild();
    EXPECT_EQ(TextOf(colours[0], 16), Pseudo("[various]"));
    EXPECT_EQ(TextOf(colours[0], 0), Pseudo("Black"));
    EXPECT_EQ(TextOf(colours[1], 15), Pseudo("Transparent"));
    EXPECT_EQ(TextOf(colours[1], 16), Pseudo("Custom Colour..."));
    EXPECT_EQ(TextOf(lineStyles, 0), Pseudo("<none>"));
    EXPECT_EQ(TextOf(lineStyles, 10), Pseudo("Custom Line Style..."));
    EXPECT_EQ(TextOf(fillStyles, 0), Pseudo("Solid"));
    EXPECT_TRUE(pickers.Colour(0).GetSelectedColour().IsNull());
}

} // namespace Orvane::Testing
