// SPDX-License-Identifier: MIT
#include "samples/StyleStrings.h"

#include <QLocale>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

class StyleStringsTest : public testing::Test
{
protected:
    std::string Colour(qint32 colour) const { return m_strings.ColourItem(colour, m_swatch).toStdString(); }
    std::string Line(qint16 style, qint16 thickness) const
    {
        return m_strings.LineItemText({style, thickness}, m_extent).toStdString();
    }

    StyleStrings m_strings{"@", {"klar", "<keine>", "mm", "Pixel", "Eigene Linie..."}};
    SwatchExtent m_swatch{138, 14};
    LineExtent m_extent{15, 138, 7};
};

TEST_F(StyleStringsTest, AColourIsASwatchOnePixelBelowTheTop)
{
    EXPECT_EQ(Colour(255), "@FG=255.@DRB=255:P=255:M0,1:F0,1,138,1,138,14,0,14,0,1.");
}

TEST_F(StyleStringsTest, ColoursAreSignedDecimals)
{
    EXPECT_EQ(Colour(0xFFFFFF).substr(0, 13), "@FG=16777215.");
    EXPECT_EQ(Colour(-1).substr(0, 7), "@FG=-1.");
}

TEST_F(StyleStringsTest, TransparentIsAPlainWord)
{
    EXPECT_EQ(Colour(TransparentColour), "klar");
    EXPECT_EQ(TransparentColour, -16777216);
}

TEST_F(StyleStringsTest, OnlyTheOneTransparentValueIsTheWord)
{
    EXPECT_EQ(Colour(TransparentColour + 1).substr(0, 14), "@FG=-16777215.");
}

TEST_F(StyleStringsTest, ASwatchExtentKeepsItsFractionWithTheLocalesSeparator)
{
    m_swatch = {138.5f, 14.25f};
    EXPECT_EQ(Colour(0), "@FG=0.@DRB=0:P=0:M0,1:F0,1,138.5,1,138.5,14.25,0,14.25,0,1.");
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(Colour(0), "@FG=0.@DRB=0:P=0:M0,1:F0,1,138,5,1,138,5,14,25,0,14,25,0,1.");
    QLocale::setDefault(before);
}

TEST_F(StyleStringsTest, WholeNumbersAreTheSameInEveryLocale)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    EXPECT_EQ(Colour(16777215), "@FG=16777215.@DRB=16777215:P=16777215:M0,1:F0,1,138,1,138,14,0,14,0,1.");
    QLocale::setDefault(before);
}

TEST_F(StyleStringsTest, APatternedLineRunsAcrossTheMiddle)
{
    EXPECT_EQ(Line(2, 0), "@DRP=0/2/0/:M0,7:D138,+0.");
    EXPECT_EQ(Line(2, 9), "@DRP=0/2/0/:M0,7:D138,+0.");
}

TEST_F(StyleStringsTest, TheThinnestLineHasALoneTab)
{
    EXPECT_EQ(Line(0, 0), "\t@DRB=0/8:P=0/0/0/:M0,7:F138,+0,138,7,0,7.");
}

TEST_F(StyleStringsTest, ThinPixelWidthsHaveNeitherLabelNorTab)
{
    EXPECT_EQ(Line(0, -3), "@DRB=0/-1:P=0/0/0/:M0,6:F138,+0,138,9,0,9.");
    EXPECT_EQ(Line(0, -5), "@DRB=0/-1:P=0/0/0/:M0,5:F138,+0,138,10,0,10.");
    EXPECT_EQ(Line(0, -1), "@DRB=0/-1:P=0/0/0/:M0,7:F138,+0,138,8,0,8.");
}

TEST_F(StyleStringsTest, FromSixPixelsOnTheWidthIsNamed)
{
    EXPECT_EQ(Line(0, -6), "6 Pixel  \t@DRB=0/-1:P=0/0/0/:M0,4:F138,+0,138,10,0,10.");
    EXPECT_EQ(Line(0, -8), "8 Pixel  \t@DRB=0/-1:P=0/0/0/:M0,3:F138,+0,138,11,0,11.");
}

TEST_F(StyleStringsTest, MillimetresAreNamedAndPreviewAsPixels)
{
    EXPECT_EQ(Line(0, 2), "2 mm  \t@DRB=0/8:P=0/0/0/:M0,6:F138,+0,138,8,0,8.");
}

TEST_F(StyleStringsTest, ASampleIsNeverThickerThanTheItemLessTwoPixels)
{
    EXPECT_EQ(Line(0, 13), "13 mm  \t@DRB=0/8:P=0/0/0/:M0,1:F138,+0,138,14,0,14.");
    EXPECT_EQ(Line(0, 100), "100 mm  \t@DRB=0/8:P=0/0/0/:M0,1:F138,+0,138,14,0,14.");
    EXPECT_EQ(Line(0, -100), "100 Pixel  \t@DRB=0/-1:P=0/0/0/:M0,1:F138,+0,138,14,0,14.");
}

TEST_F(StyleStringsTest, TheLargestThicknessesAreWritten)
{
    EXPECT_EQ(Line(0, -32768).substr(0, 6), "32768 ");
    EXPECT_EQ(Line(0, 32767).substr(0, 6), "32767 ");
}

TEST_F(StyleStringsTest, AnItemWithoutRoomIsStillWellFormed)
{
    m_extent = {1, -2, 0};
    EXPECT_EQ(Line(0, -3), "@DRB=0/-1:P=0/0/0/:M0,1:F-2,+0,-2,0,0,0.");
}

TEST_F(StyleStringsTest, NoLineIsAPlainWordWhateverTheThickness)
{
    EXPECT_EQ(Line(15, 0), "<keine>");
    EXPECT_EQ(Line(15, 7), "<keine>");
}

TEST_F(StyleStringsTest, AFillItemIsLeftToTheDialog)
{
    EXPECT_EQ(m_strings.FillItem(), "@UD.");
}

TEST_F(StyleStringsTest, TheCustomLineEntryIsInTheFontOfTheList)
{
    EXPECT_EQ(m_strings.CustomLineCaption(), "@FCMS Sans Serif,8,.Eigene Linie...");
}

TEST_F(StyleStringsTest, ThePrefixIsWrittenAsItIs)
{
    const StyleStrings odd("%1.:P\t", {});
    EXPECT_EQ(odd.FillItem(), "%1.:P\tUD.");
    EXPECT_EQ(StyleStrings("", {}).FillItem(), "UD.");
}

TEST(StandardLineItems, StandInTheirOrder)
{
    std::vector<std::pair<int, int>> lines;
    for (const LineItem& line : StandardLineItems)
        lines.emplace_back(line.style, line.thickness);
    const std::vector<std::pair<int, int>> expected{{15, 0}, {0, 0},  {1, 0},  {2, 0},  {3, 0},
                                                    {4, 0},  {0, -2}, {0, -3}, {0, -4}, {0, -5}};
    EXPECT_EQ(lines, expected);
}

} // namespace

} // namespace Orvane
