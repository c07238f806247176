// SPDX-License-Identifier: MIT
#include "component/styles/ItemDescriptions.h"

#include "component/styles/StandardColours.h"

#include <QSet>

#include <gtest/gtest.h>

namespace Orvane::Testing {

TEST(ItemDescriptions, EveryStandardColourHasANameOfItsOwn)
{
    QSet<QString> names;
    for (const StandardColour& standard : standardColours)
        names.insert(ColourDescription(standard.colour));
    EXPECT_EQ(names.size(), 15);
    EXPECT_TRUE(names.contains("Dark green"));
}

TEST(ItemDescriptions, AnyOtherColourIsNamedByItsParts)
{
    EXPECT_EQ(ColourDescription(0x0080FF), "#FF8000");
    EXPECT_EQ(ColourDescription(TransparentColour), "Transparent");
}

TEST(ItemDescriptions, LinesAreNamedByPatternOrWidth)
{
    EXPECT_EQ(LineDescription({NoLineStyle, 0}), "<none>");
    EXPECT_EQ(LineDescription({0, 0}), "Thinnest line");
    EXPECT_EQ(LineDescription({1, 0}), "Dashed line");
    EXPECT_EQ(LineDescription({4, 0}), "Dash-dot-dot line");
    EXPECT_EQ(LineDescription({7, 0}), "Line style 7");
    EXPECT_EQ(LineDescription({0, -1}), "1 pixel");
    EXPECT_EQ(LineDescription({0, -2}), "2 pixels");
    EXPECT_EQ(LineDescription({0, 3}), "3 mm");
    EXPECT_EQ(LineDescription({0, -32768}), "32768 pixels");
}

TEST(ItemDescriptions, FillsAreNamedByTheirNumbers)
{
    EXPECT_EQ(FillDescription(0), "Solid");
    EXPECT_EQ(FillDescription(15), "Outline only");
    EXPECT_EQ(FillDescription(31), "Pattern 31");
}

} // namespace Orvane::Testing
