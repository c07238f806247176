// SPDX-License-Identifier: MIT
#include "samples/FillSample.h"

#include "samples/BgrColour.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

constexpr qint32 red = 0x0000FF;
constexpr qint32 blue = 0xFF0000;
constexpr qint32 green = 0x00FF00;
constexpr qint32 listBack = 0xE0F0FF;
constexpr qint32 black = 0x000000;
constexpr qint32 white = 0xFFFFFF;

// One set pixel in the upper left corner of a tile of four by two.
const MonochromeBitmap corner{4, 2, QByteArray("\x80\x00", 2)};

FillSample Patterned()
{
    return {3, corner, {green, red, blue}, listBack};
}

class FillSampleTest : public testing::Test
{
protected:
    void Paint(const FillSample& sample, const QRect& item = QRect(0, 0, 142, 20))
    {
        m_image.fill(Qt::magenta);
        QPainter painter(&m_image);
        PaintFillItem(painter, item, sample);
    }
    qint32 At(int x, int y) const { return BgrFromQColor(m_image.pixelColor(x, y)); }

    QImage m_image{200, 40, QImage::Format_RGB32};
};

} // namespace

TEST_F(FillSampleTest, TheBackgroundOfTheListFramesTheSample)
{
    Paint(Patterned());
    EXPECT_EQ(At(0, 0), listBack);
    EXPECT_EQ(At(1, 10), listBack);
    EXPECT_EQ(At(10, 1), listBack);
    EXPECT_EQ(At(140, 10), listBack);
    EXPECT_EQ(At(10, 18), listBack);
    EXPECT_EQ(At(139, 17), blue);
    EXPECT_EQ(At(10, 20), BgrFromQColor(Qt::magenta));
}

TEST_F(FillSampleTest, APatternIsPaintedInForeAndBackColour)
{
    Paint(Patterned());
    EXPECT_EQ(At(74, 2), red);
    EXPECT_EQ(At(75, 2), blue);
    EXPECT_EQ(At(74, 3), blue);
    EXPECT_EQ(At(78, 4), red);
}

TEST_F(FillSampleTest, ThePatternStartsAtTheUpperLeftCornerOfEachSample)
{
    Paint(Patterned(), QRect(1, 3, 142, 20));
    EXPECT_EQ(At(3, 5), black);
    EXPECT_EQ(At(4, 5), white);
    EXPECT_EQ(At(3, 6), white);
}

TEST_F(FillSampleTest, WithBothTransparentSolidIsTheLineColourAndHollowTheList)
{
    FillSample sample{0, {}, {green, TransparentColour, TransparentColour}, listBack};
    Paint(sample);
    EXPECT_EQ(At(100, 10), green);
    sample.style = 15;
    Paint(sample);
    EXPECT_EQ(At(100, 10), listBack);
}

TEST_F(FillSampleTest, TheLeftPartIsBlackOnWhite)
{
    Paint(Patterned());
    EXPECT_EQ(At(2, 2), black);
    EXPECT_EQ(At(3, 2), white);
    EXPECT_EQ(At(6, 4), black);
}

TEST_F(FillSampleTest, TheLeftPartEndsAtLeftPlusHalfOfRight)
{
    Paint(Patterned());
    EXPECT_EQ(At(71, 3), white);
    EXPECT_EQ(At(72, 3), blue);
}

TEST_F(FillSampleTest, AHalfPixelGoesToTheEvenNeighbour)
{
    Paint(Patterned(), QRect(0, 0, 143, 20));
    EXPECT_EQ(At(71, 3), white) << "2 + 141 / 2 = 72.5";
    EXPECT_EQ(At(72, 3), blue);
    Paint(Patterned(), QRect(1, 0, 144, 20));
    EXPECT_EQ(At(73, 3), white) << "3 + 143 / 2 = 74.5";
    EXPECT_EQ(At(74, 3), blue);
}

TEST_F(FillSampleTest, TheLeftPartNeverLeavesTheSample)
{
    Paint(Patterned(), QRect(120, 0, 40, 20));
    EXPECT_EQ(At(157, 3), white);
    EXPECT_EQ(At(158, 3), listBack);
    EXPECT_EQ(At(160, 3), BgrFromQColor(Qt::magenta));
}

TEST_F(FillSampleTest, SolidIsTheForeColourAllOver)
{
    FillSample sample = Patterned();
    sample.style = 0;
    Paint(sample);
    EXPECT_EQ(At(2, 2), red);
    EXPECT_EQ(At(139, 17), red);
}

TEST_F(FillSampleTest, HollowIsTheBackColourAllOver)
{
    FillSample sample = Patterned();
    sample.style = 15;
    Paint(sample);
    EXPECT_EQ(At(2, 2), blue);
    EXPECT_EQ(At(139, 17), blue);
}

TEST_F(FillSampleTest, ATransparentForeColourIsTheBackgroundOfTheList)
{
    FillSample sample = Patterned();
    sample.colours.fore = TransparentColour;
    Paint(sample);
    EXPECT_EQ(At(74, 2), listBack);
    EXPECT_EQ(At(75, 2), blue);
}

TEST_F(FillSampleTest, ATransparentBackColourIsTheBackgroundOfTheList)
{
    FillSample sample = Patterned();
    sample.colours.back = TransparentColour;
    Paint(sample);
    EXPECT_EQ(At(74, 2), red);
    EXPECT_EQ(At(75, 2), listBack);
}

TEST_F(FillSampleTest, WithBothTransparentTheLineColourStandsOnTheBackgroundOfTheList)
{
    FillSample sample = Patterned();
    sample.colours.fore = sample.colours.back = TransparentColour;
    Paint(sample);
    EXPECT_EQ(At(74, 2), green);
    EXPECT_EQ(At(75, 2), listBack);
    EXPECT_EQ(At(2, 2), black);
}

TEST_F(FillSampleTest, DifferentTopBytesAreTransparentEachForItself)
{
    const FillColours shown = ShownColours({green, 0x01000000 | red, 0x02000000 | blue}, listBack);
    EXPECT_EQ(shown.fore, listBack);
    EXPECT_EQ(shown.back, listBack);
}

TEST_F(FillSampleTest, AnItemOfFourPixelsIsBackgroundOnly)
{
    Paint(Patterned(), QRect(0, 0, 142, 4));
    for (int y = 0; y < 4; ++y)
        EXPECT_EQ(At(70, y), listBack) << y;
    Paint(Patterned(), QRect(0, 0, 142, 5));
    EXPECT_EQ(At(3, 2), white);
}

TEST_F(FillSampleTest, APictureWithTooFewBytesIsBackgroundWhereTheyEnd)
{
    FillSample sample = Patterned();
    sample.picture = {8, 8, QByteArray("\x80", 1)};
    Paint(sample);
    EXPECT_EQ(At(74, 2), red);
    EXPECT_EQ(At(74, 3), blue);
}

TEST_F(FillSampleTest, APictureWithoutPixelsIsPaintedHollow)
{
    FillSample sample = Patterned();
    sample.picture = {};
    Paint(sample);
    EXPECT_EQ(At(139, 17), blue);
    sample.picture = {-5, 8, {}};
    Paint(sample);
    EXPECT_EQ(At(139, 17), blue);
}

TEST_F(FillSampleTest, EachBitCoversWholePixelsOfADenseScreen)
{
    m_image = QImage(400, 80, QImage::Format_RGB32);
    m_image.setDevicePixelRatio(2);
    Paint(Patterned());
    EXPECT_EQ(At(4, 4), black);
    EXPECT_EQ(At(5, 5), black);
    EXPECT_EQ(At(6, 5), white);
    EXPECT_EQ(At(5, 6), white);
}

TEST_F(FillSampleTest, AnAreaOfItsOwnShowsTheColoursOnly)
{
    m_image.fill(Qt::magenta);
    QPainter painter(&m_image);
    PaintFillSample(painter, QRect(5, 3, 40, 20), Patterned());
    EXPECT_EQ(At(5, 3), red);
    EXPECT_EQ(At(6, 3), blue);
    EXPECT_EQ(At(44, 22), blue);
    EXPECT_EQ(At(4, 3), BgrFromQColor(Qt::magenta));
    EXPECT_EQ(At(45, 3), BgrFromQColor(Qt::magenta));
}

} // namespace Orvane::Testing
