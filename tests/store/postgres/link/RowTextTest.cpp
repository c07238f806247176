// SPDX-License-Identifier: MIT
#include "store/postgres/link/RowText.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::Optional;

using RowValues = std::vector<std::optional<std::string>>;

RowValues ValuesIn(const char* text)
{
    RowValues values{std::string("left over"), std::nullopt, std::nullopt, std::nullopt, std::nullopt};
    EXPECT_TRUE(ReadRowText(text, values)) << text;
    return values;
}

bool IsRow(const char* text)
{
    RowValues values;
    return ReadRowText(text, values);
}

} // namespace

TEST(RowText, HasPlainValues)
{
    EXPECT_THAT(ValuesIn("(7,t,-0.5)"), ElementsAre(Optional(std::string("7")), "t", "-0.5"));
}

TEST(RowText, TellsMissingValuesFromEmptyOnes)
{
    EXPECT_THAT(ValuesIn("(,\"\",)"), ElementsAre(std::nullopt, std::string(), std::nullopt));
    EXPECT_THAT(ValuesIn("()"), ElementsAre(std::nullopt));
}

TEST(RowText, ReadsWhatIsQuoted)
{
    EXPECT_THAT(
        ValuesIn("(\"a, (b)\",\"say \"\"no\"\"\",\"C:\\\\x\",\"two\nlines\")"),
        ElementsAre(std::string("a, (b)"), "say \"no\"", "C:\\x", "two\nlines"));
}

TEST(RowText, IsRefusedWhenItIsNotWhole)
{
    for (const char* text : {"", "7", "(", "(7", "(7,", "(\"7", "(\"7\"", "(\"7\"x)", "(7)x", "(\"\\\")"})
        EXPECT_FALSE(IsRow(text)) << text;
}

} // namespace Orvane::Testing
