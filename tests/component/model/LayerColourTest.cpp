// SPDX-License-Identifier: MIT
#include "component/model/LayerColour.h"

#include <gtest/gtest.h>

using namespace Orvane;

namespace {

constexpr qint32 redNotForSymbols = qint32(0xFF0000FFU);

} // namespace

TEST(LayerColour, SplitsIntoColourAndFlag)
{
    EXPECT_EQ(ColourPart(redNotForSymbols), 0xFF);
    EXPECT_FALSE(UsesForSymbols(redNotForSymbols));
    EXPECT_EQ(ColourPart(0x123456), 0x123456);
    EXPECT_TRUE(UsesForSymbols(0x123456));
}

TEST(LayerColour, AnyOtherTopByteAlsoMeansNotForSymbols)
{
    EXPECT_FALSE(UsesForSymbols(0x01000000));
}

TEST(LayerColour, JoinsToWhatItWasSplitFrom)
{
    EXPECT_EQ(JoinColour(0xFF, false), redNotForSymbols);
    EXPECT_EQ(JoinColour(0xFF, true), 0xFF);
}

TEST(LayerColour, ATopByteOfTheColourNeverBecomesTheFlag)
{
    EXPECT_EQ(JoinColour(redNotForSymbols, true), 0xFF);
    EXPECT_EQ(JoinColour(0x01FFFFFF, false), qint32(0xFFFFFFFFU));
}
