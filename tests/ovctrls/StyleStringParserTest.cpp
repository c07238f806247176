// SPDX-License-Identifier: MIT
#include "ovctrls/StyleStringParser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>

namespace Orvane {

namespace {

std::vector<StyleElement> Parse(const QString& item)
{
    return ParseStyleString(item, "@");
}

// The one element of an item, of the kind given.
template <typename Element> Element Only(const QString& item)
{
    const auto elements = Parse(item);
    EXPECT_EQ(elements.size(), 1u);
    if (elements.size() != 1 || !std::holds_alternative<Element>(elements[0])) {
        ADD_FAILURE() << "another kind of element";
        return {};
    }
    return std::get<Element>(elements[0]);
}

QPolygonF Through(std::initializer_list<QPointF> points)
{
    return QPolygonF(QVector<QPointF>(points));
}

QPolygonF PointsOf(const QString& item)
{
    const auto drawing = Only<Drawing>(item);
    return drawing.figures.empty() ? QPolygonF() : drawing.figures.back().points;
}

TEST(StyleStringParser, PlainTextIsOneRun)
{
    EXPECT_EQ(Only<TextRun>("Transparent. Really.").text, "Transparent. Really.");
    EXPECT_TRUE(Parse("").empty());
}

TEST(StyleStringParser, TheTextsOfAnItemComeWithoutItsDrawings)
{
    const auto elements = ParseStyleTexts("@FG=3.2 mm\t@DRP=0:M0,1:D5.5,5.@UD.", "@");
    ASSERT_EQ(elements.size(), 4u);
    EXPECT_EQ(std::get<TextRun>(elements[1]).text, "2 mm");
    EXPECT_TRUE(std::holds_alternative<TabStop>(elements[2]));
    EXPECT_TRUE(std::holds_alternative<UserDrawn>(elements[3]));
}

TEST(StyleStringParser, AForeColourIsASignedOrUnsignedNumber)
{
    EXPECT_EQ(Only<ForeColour>("@FG=255.").colour, 255);
    EXPECT_EQ(Only<ForeColour>("@FG=-1.").colour, -1);
    EXPECT_EQ(Only<ForeColour>("@FG=4294967295.").colour, -1);
}

TEST(StyleStringParser, AFontHasFaceAndSizeAndTextFollows)
{
    const auto elements = Parse("@FCMS Sans Serif,8,.Custom Line Style...");

    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(std::get<FontChange>(elements[0]).face, "MS Sans Serif");
    EXPECT_EQ(std::get<FontChange>(elements[0]).points, 8);
    EXPECT_EQ(std::get<TextRun>(elements[1]).text, "Custom Line Style...");
}

TEST(StyleStringParser, AFaceMayHoldAPointAndASizeAFraction)
{
    const auto font = Only<FontChange>("@FCDr. Sans,8.5,.");
    EXPECT_EQ(font.face, "Dr. Sans");
    EXPECT_EQ(font.points, 8.5);
}

TEST(StyleStringParser, AUserDrawnItemIsKnown)
{
    Only<UserDrawn>("@UD.");
}

TEST(StyleStringParser, LabelTabAndDrawingStandInTheirOrder)
{
    const auto elements = Parse("8 pixels  \t@DRB=0/-1:P=0/0/0/:M0,3:F138,+0,138,11,0,11.");

    ASSERT_EQ(elements.size(), 3u);
    EXPECT_EQ(std::get<TextRun>(elements[0]).text, "8 pixels  ");
    EXPECT_TRUE(std::holds_alternative<TabStop>(elements[1]));
    const auto& figure = std::get<Drawing>(elements[2]).figures.at(0);
    EXPECT_TRUE(figure.isFilled);
    EXPECT_EQ(figure.points, Through({{0, 3}, {138, 3}, {138, 11}, {0, 11}}));
}

TEST(StyleStringParser, APatternedLineHasColourStyleAndWidth)
{
    const auto drawing = Only<Drawing>("@DRP=255/2/3/:M0,7:D138,+0.");

    EXPECT_EQ(drawing.penColour, 255);
    EXPECT_EQ(drawing.penStyle, 2);
    EXPECT_EQ(drawing.penWidth, 3);
    EXPECT_FALSE(drawing.figures.at(0).isFilled);
    EXPECT_EQ(drawing.figures.at(0).points, Through({{0, 7}, {138, 7}}));
}

TEST(StyleStringParser, BrushAndPenHaveTheirOwnColours)
{
    const auto drawing = Only<Drawing>("@DRB=65280/8:P=255:M0,0:F1,1.");

    EXPECT_EQ(drawing.brushColour, 65280);
    EXPECT_EQ(drawing.penColour, 255);
    EXPECT_EQ(drawing.penStyle, 0);
}

TEST(StyleStringParser, APointBetweenDigitsOfADrawingIsADecimalOne)
{
    EXPECT_EQ(PointsOf("@DRP=0:M0,1:D138.5,14.25."), Through({{0, 1}, {138.5, 14.25}}));
}

TEST(StyleStringParser, APlusCountsFromThePointBefore)
{
    EXPECT_EQ(PointsOf("@DRP=0:M5,6:D+1,+2,+1,-2,+-3,9."), Through({{5, 6}, {6, 8}, {7, -2}, {4, 9}}));
}

TEST(StyleStringParser, ALineGoesOnWhereTheLastFigureEnded)
{
    EXPECT_EQ(PointsOf("@DRP=0:M1,1:D5,5:D9,+0."), Through({{5, 5}, {9, 5}}));
}

TEST(StyleStringParser, WithoutItsPointACommandRunsToTheEnd)
{
    EXPECT_EQ(PointsOf("@DRP=0:M0,1:D5,5"), Through({{0, 1}, {5, 5}}));
    EXPECT_EQ(Only<ForeColour>("@FG=7").colour, 7);
}

TEST(StyleStringParser, OfABrokenFigureRemainsWhatStandsBeforeTheDamage)
{
    EXPECT_EQ(PointsOf("@DRP=0:M0,1:D5,5,x,9,8,8."), Through({{0, 1}, {5, 5}}));
    EXPECT_EQ(PointsOf("@DRP=0:M0,1:D5,5,7."), Through({{0, 1}, {5, 5}}));
    EXPECT_EQ(PointsOf("@DRP=0:M0,1:Dinf,nan."), QPolygonF());
}

TEST(StyleStringParser, AnUnknownCommandIsLeftOut)
{
    const auto elements = Parse("a@XY=1,2.b");

    ASSERT_EQ(elements.size(), 2u);
    EXPECT_EQ(std::get<TextRun>(elements[1]).text, "b");
}

TEST(StyleStringParser, AnUnknownPartOfADrawingIsLeftOut)
{
    EXPECT_EQ(PointsOf("@DRP=0:Q9:M0,1::D5,5."), Through({{0, 1}, {5, 5}}));
}

TEST(StyleStringParser, HugeCoordinatesAreCut)
{
    EXPECT_EQ(PointsOf("@DRP=0:M0,0:D1e300,-9999999."), Through({{0, 0}, {32767, -32767}}));
}

TEST(StyleStringParser, APrefixMayBeAnyText)
{
    EXPECT_EQ(std::get<ForeColour>(ParseStyleString("<.:FG=9.", "<.:").at(0)).colour, 9);
}

TEST(StyleStringParser, WithoutAPrefixCommandsAreKnownByTheirKeywords)
{
    const auto elements = ParseStyleString("8 px \tDRP=0:M0,1:D5,5.FG=3.Fish", "");

    ASSERT_EQ(elements.size(), 5u);
    EXPECT_EQ(std::get<Drawing>(elements[2]).figures.size(), 1u);
    EXPECT_EQ(std::get<ForeColour>(elements[3]).colour, 3);
    EXPECT_EQ(std::get<TextRun>(elements[4]).text, "Fish");
}

TEST(StyleStringParser, RandomItemsNeverFail)
{
    std::mt19937 random(20261121);
    const QStringList pieces{
        "@",
        "FG=",
        "DRB=",
        "DRP=",
        "FC",
        "UD",
        ".",
        ":",
        "P=",
        "M",
        "F",
        "D",
        ",",
        "/",
        "+",
        "-",
        "\t",
        "0",
        "138",
        "1e999",
        "99999999999999999999",
        "text",
        "nan",
        "\n",
        QString(QChar(0xD800)),
        QString()};
    for (int round = 0; round < 20000; ++round) {
        QString item;
        for (int length = int(random() % 20); length > 0; --length)
            item += pieces[qsizetype(random() % quint32(pieces.size()))];
        for (const StyleElement& element : ParseStyleString(item, round % 3 ? "@" : "")) {
            const auto* drawing = std::get_if<Drawing>(&element);
            for (const Figure& figure : drawing ? drawing->figures : std::vector<Figure>())
                ASSERT_GE(figure.points.size(), 2) << item.toStdString();
        }
    }
}

} // namespace

} // namespace Orvane
