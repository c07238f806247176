// SPDX-License-Identifier: MIT
#include "component/styles/LineItemData.h"

#include "hosts/ValueMatchers.h"
#include "samples/StyleStrings.h"

#include <gtest/gtest.h>
#include <limits>
#include <set>

namespace Orvane::Testing {

namespace {

int ErrorOf(qint16 style, qint16 thickness)
{
    try {
        LineStyleItemData(style, thickness);
    } catch (const RunTimeError& error) {
        return error.Number();
    }
    return 0;
}

constexpr int someIndex = 3;
constexpr int noVarious = -1;

SelectedLine Read(qint32 itemData)
{
    return ReadSelectedLine(someIndex, noVarious, itemData);
}

TEST(LineItemData, APatternedLineIsItsStyleWhateverTheThickness)
{
    EXPECT_EQ(LineStyleItemData(4, 0), 4);
    EXPECT_EQ(LineStyleItemData(15, 9), 15);
}

TEST(LineItemData, ASolidLineIsItsThicknessTimesTwenty)
{
    EXPECT_EQ(LineStyleItemData(0, 0), 0);
    EXPECT_EQ(LineStyleItemData(0, 1), 20);
    EXPECT_EQ(LineStyleItemData(0, -3), -60);
}

TEST(LineItemData, AProductBeyond16BitsOverflows)
{
    EXPECT_EQ(LineStyleItemData(0, 1638), 32760);
    EXPECT_EQ(LineStyleItemData(0, -1638), -32760);
    EXPECT_EQ(ErrorOf(0, 1639), int(ErrorNumber::Overflow));
    EXPECT_EQ(ErrorOf(0, -1639), int(ErrorNumber::Overflow));
    EXPECT_EQ(ErrorOf(1, 32767), 0);
}

TEST(LineItemData, OneMillimetreReadsBack)
{
    EXPECT_THAT(Read(20).style, IsNumber(0));
    EXPECT_THAT(Read(20).thickness, IsValue(1.0));
}

TEST(LineItemData, NineteenIsStillAStyle)
{
    EXPECT_THAT(Read(19).style, IsNumber(19));
    EXPECT_THAT(Read(19).thickness, IsNumber(0));
    EXPECT_THAT(Read(-19).style, IsNumber(-19));
}

TEST(LineItemData, PixelWidthsReadBackNegative)
{
    EXPECT_THAT(Read(-60).style, IsNumber(0));
    EXPECT_THAT(Read(-60).thickness, IsValue(-3.0));
    EXPECT_THAT(Read(-20).thickness, IsValue(-1.0));
}

TEST(LineItemData, AThicknessKeepsItsFraction)
{
    EXPECT_THAT(Read(30).thickness, IsValue(1.5));
}

TEST(LineItemData, TheSmallestNumberIsAThicknessLikeAnyOther)
{
    EXPECT_THAT(Read(std::numeric_limits<qint32>::min()).style, IsNumber(0));
}

TEST(LineItemData, TheVariousItemReadsBackNullForBoth)
{
    const SelectedLine line = ReadSelectedLine(7, 7, 60);

    EXPECT_THAT(line.style, IsNullValue());
    EXPECT_THAT(line.thickness, IsNullValue());
}

TEST(LineItemData, NoSelectionInAListWithoutVariousIsVariousToo)
{
    EXPECT_THAT(ReadSelectedLine(-1, noVarious, 0).style, IsNullValue());
}

TEST(LineItemData, TheStandardLinesAreToldApart)
{
    std::set<qint32> data;
    for (const LineItem& line : StandardLineItems)
        data.insert(LineStyleItemData(line.style, line.thickness));
    EXPECT_EQ(data.size(), StandardLineItems.size());
}

} // namespace

} // namespace Orvane::Testing
