// SPDX-License-Identifier: MIT
#include "component/dialog/place/TwipsLength.h"

#include <cmath>
#include <gmock/gmock.h>

namespace Orvane {

namespace {

TEST(TwipsLength, ConvertsWhatWasNeverRestored)
{
    EXPECT_EQ(TwipsLength().TwipsOf(600, 15), 9000);
}

TEST(TwipsLength, GivesBackTheRestoredTwipsAtAnyResolution)
{
    for (const double dpi : {72.0, 96.0, 110.0, 120.0, 144.0, 192.0, 287.5}) {
        const double twipsPerPixel = 1440 / dpi;
        for (float twips = 3000; twips < 3100; twips += 0.25f) {
            TwipsLength length;
            const int pixels = int(std::round(twips / twipsPerPixel));
            length.Restore(twips, pixels);
            EXPECT_EQ(length.TwipsOf(pixels, twipsPerPixel), twips) << dpi;
        }
    }
}

TEST(TwipsLength, ConvertsAnewWhenTheWindowWasResized)
{
    TwipsLength length;
    length.Restore(9001, 600);
    EXPECT_EQ(length.TwipsOf(601, 15), 9015);
}

TEST(TwipsLength, RemembersTheRestoredTwipsWhenTheWindowIsAsItWas)
{
    TwipsLength length;
    length.Restore(9001, 600);
    length.TwipsOf(300, 15);
    EXPECT_EQ(length.TwipsOf(600, 15), 9001);
}

} // namespace

} // namespace Orvane
