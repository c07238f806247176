// SPDX-License-Identifier: MIT
#include "component/styles/TranslatedStyleWords.h"

#include "support/PseudoLanguage.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

TEST(TranslatedStyleWords, FollowTheLanguageOfTheMoment)
{
    {
        const PseudoLanguage pseudo;
        const StyleWords words = TranslatedStyleWords();
        EXPECT_EQ(words.transparent, Pseudo("Transparent"));
        EXPECT_EQ(words.noLine, Pseudo("<none>"));
        EXPECT_EQ(words.millimetres, Pseudo("mm"));
        EXPECT_EQ(words.pixels, Pseudo("pixels"));
        EXPECT_EQ(words.customLineStyle, Pseudo("Custom Line Style..."));
    }
    EXPECT_EQ(TranslatedStyleWords().transparent, "Transparent");
}

} // namespace

} // namespace Orvane::Testing
