// SPDX-License-Identifier: MIT
#include "component/common/ErrorTexts.h"

#include "support/PseudoLanguage.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

using Testing::Pseudo;
using Testing::PseudoLanguage;

class HostError : public RunTimeError
{
public:
    HostError() : RunTimeError(10001, "The host (mine) is out of order") { }
};

} // namespace

TEST(ErrorTexts, ATextIsTranslated)
{
    const PseudoLanguage pseudo;
    EXPECT_EQ(TranslatedDescription("Overflow"), Pseudo("Overflow"));
}

TEST(ErrorTexts, AnUnknownTextStaysAsItIs)
{
    const PseudoLanguage pseudo;
    EXPECT_EQ(TranslatedDescription("No such thing (really)"), "No such thing (really)");
    EXPECT_EQ(TranslatedDescription("(alone)"), "(alone)");
    EXPECT_EQ(TranslatedDescription(""), "");
}

TEST(ErrorTexts, AnErrorOfTheComponentReachesTheHostTranslatedWithItsNumber)
{
    const PseudoLanguage pseudo;
    try {
        WithTranslatedErrors([] { throw RunTimeError(ErrorNumber::Overflow, "Overflow", "Layers"); });
        FAIL() << "nothing was raised";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Number(), int(ErrorNumber::Overflow));
        EXPECT_EQ(error.Description(), Pseudo("Overflow"));
        EXPECT_EQ(error.Source(), "Layers");
    }
}

TEST(ErrorTexts, AnErrorOfTheHostIsPassedOnUnchanged)
{
    const PseudoLanguage pseudo;
    EXPECT_THROW(WithTranslatedErrors([] { throw HostError(); }), HostError);
    EXPECT_EQ(WithTranslatedErrors([] { return 5; }), 5);
}

} // namespace Orvane
