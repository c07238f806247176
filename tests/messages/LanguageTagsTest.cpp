// SPDX-License-Identifier: MIT
#include "messages/LanguageTags.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvane {

namespace {

using testing::ElementsAre;

} // namespace

TEST(LanguageTags, OfACountryComeBeforeThoseOfTheLanguageAlone)
{
    EXPECT_THAT(
        LanguageTags({"pt-Latn-BR", "pt-BR"}),
        ElementsAre(QStringList{"pt-Latn-BR", "pt-BR", "pt-Latn", "pt"}));
}

TEST(LanguageTags, KeepTheOrderOfTheLanguages)
{
    EXPECT_THAT(
        LanguageTags({"nl_BE", "de", "nl"}),
        ElementsAre(QStringList{"nl-BE", "nl"}, QStringList{"de"}, QStringList{"nl"}));
}

TEST(LanguageTags, TellEnglishInEveryCountry)
{
    for (const char* tag : {"en", "en-GB", "C"})
        EXPECT_TRUE(IsEnglish(tag)) << tag;
    for (const char* tag : {"de", "enm", ""})
        EXPECT_FALSE(IsEnglish(tag)) << tag;
}

} // namespace Orvane
