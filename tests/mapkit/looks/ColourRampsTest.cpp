// SPDX-License-Identifier: MIT
#include "mapkit/looks/ColourRamps.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

// How bright a colour looks, from 0 to 255.
int Brightness(const QColor& colour)
{
    return qGray(colour.rgb());
}

} // namespace

TEST(ColourRamps, EachIsFoundByItsKeyAndHasAName)
{
    ASSERT_GE(ColourRamps::Offered().size(), 6u);
    for (const ColourRamps::Ramp& ramp : ColourRamps::Offered()) {
        EXPECT_TRUE(ColourRamps::Has(ramp.key));
        EXPECT_FALSE(ramp.name.isEmpty());
    }
    EXPECT_FALSE(ColourRamps::Has({}));
    EXPECT_TRUE(ColourRamps::ColoursOf("no such ramp", 3, false).empty());
}

TEST(ColourRamps, NeighboursCanBeToldApartWithNineClasses)
{
    for (const ColourRamps::Ramp& ramp : ColourRamps::Offered()) {
        const std::vector<QColor> colours = ColourRamps::ColoursOf(ramp.key, 9, false);
        ASSERT_EQ(colours.size(), 9u);
        for (size_t i = 1; i < colours.size(); ++i) {
            const int difference = std::abs(colours[i].red() - colours[i - 1].red())
                + std::abs(colours[i].green() - colours[i - 1].green())
                + std::abs(colours[i].blue() - colours[i - 1].blue());
            EXPECT_GT(difference, 24) << ramp.key.toStdString() << ", class " << i;
        }
    }
}

TEST(ColourRamps, EachButTheOneWithAPaleMiddleGetsDarkerFromClassToClass)
{
    for (const ColourRamps::Ramp& ramp : ColourRamps::Offered()) {
        const std::vector<QColor> colours = ColourRamps::ColoursOf(ramp.key, 9, false);
        const bool isDarkening = std::is_sorted(colours.begin(), colours.end(), [](auto& one, auto& other) {
            return Brightness(one) > Brightness(other);
        });
        EXPECT_EQ(isDarkening, ramp.key != "balance") << ramp.key.toStdString();
    }
}

TEST(ColourRamps, ReversedIsTheOtherWayRound)
{
    std::vector<QColor> colours = ColourRamps::ColoursOf("heat", 4, false);
    std::reverse(colours.begin(), colours.end());
    EXPECT_EQ(ColourRamps::ColoursOf("heat", 4, true), colours);
}

TEST(ColourRamps, BetweenTwoColoursTheEndsAreExact)
{
    const QColor low(250, 240, 10);
    const QColor high(20, 30, 140);
    const std::vector<QColor> colours = ColourRamps::ColoursBetween(low, high, 3);
    ASSERT_EQ(colours.size(), 3u);
    EXPECT_EQ(colours.front(), low);
    EXPECT_EQ(colours.back(), high);
    EXPECT_LT(Brightness(colours[1]), Brightness(low));
    EXPECT_GT(Brightness(colours[1]), Brightness(high));
}

TEST(ColourRamps, ASingleClassIsStrong)
{
    EXPECT_EQ(ColourRamps::ColoursBetween(Qt::white, Qt::blue, 1).front(), QColor(Qt::blue));
    EXPECT_LT(Brightness(ColourRamps::ColoursOf("blues", 1, false).front()), 128);
}

} // namespace Orvane
