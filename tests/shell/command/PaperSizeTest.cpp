// SPDX-License-Identifier: MIT
#include "shell/command/PaperSize.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(PaperSize, PapersLieWideUnlessTheyStand)
{
    EXPECT_EQ(ReadPaperSize("A4", false)->size, QSizeF(297, 210));
    EXPECT_EQ(ReadPaperSize("a4", true)->size, QSizeF(210, 297));
    EXPECT_EQ(ReadPaperSize("LETTER", false)->size, QSizeF(279.4, 215.9));
}

TEST(PaperSize, SidesAreMillimetresUnlessTheyArePixels)
{
    EXPECT_EQ(ReadPaperSize("200x150", false)->size, QSizeF(200, 150));
    EXPECT_EQ(ReadPaperSize("200.5x150mm", true)->size, QSizeF(200.5, 150));
    EXPECT_FALSE(ReadPaperSize("200x150mm", false)->inPixels);
    EXPECT_TRUE(ReadPaperSize("1600X900PX", false)->inPixels);
    EXPECT_NEAR(ReadPaperSize("960x480px", false)->Millimetres(96).width(), 254, 1e-9);
}

TEST(PaperSize, AnythingElseIsNoSize)
{
    for (const char* text :
         {"", "A", "A11", "200", "200x", "x150", "-5x5", "9x100", "99999x5px", "20000x20000", "10x10in"})
        EXPECT_FALSE(ReadPaperSize(text, false)) << text;
}

} // namespace Orvane
