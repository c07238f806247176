// SPDX-License-Identifier: MIT
#include "component/dialog/showing/ShownOnly.h"

#include <gmock/gmock.h>

namespace Orvane {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr qint16 N = QuickMode::Normal;
constexpr qint16 B = QuickMode::Backdrop;
constexpr qint16 H = QuickMode::Hidden;

std::vector<std::pair<qint32, int>> Pairs(const std::vector<LayerMode>& modes)
{
    std::vector<std::pair<qint32, int>> pairs;
    pairs.reserve(modes.size());
    for (const LayerMode& mode : modes)
        pairs.emplace_back(mode.layerID, mode.quickMode);
    return pairs;
}

TEST(ShownOnlyTest, HidesTheOthersAndKeepsTheirOwnModes)
{
    const ShownOnly::Change change = ShownOnly().Show({{1, N}, {2, B}, {3, N}, {4, H}}, {3});
    EXPECT_THAT(Pairs(change.modes), ElementsAre(Pair(1, H), Pair(2, H)));
    EXPECT_EQ(change.kept.Text(), "normal=1;backdrop=2");
    EXPECT_THAT(
        Pairs(change.kept.Back({{1, H}, {2, H}, {3, N}, {4, H}})), ElementsAre(Pair(1, N), Pair(2, B)));
}

TEST(ShownOnlyTest, ShowsAHiddenLayerAndHidesItAgain)
{
    const ShownOnly::Change change = ShownOnly().Show({{1, H}, {2, N}}, {1});
    EXPECT_THAT(Pairs(change.modes), ElementsAre(Pair(1, N), Pair(2, H)));
    EXPECT_THAT(Pairs(change.kept.Back({{1, N}, {2, H}})), ElementsAre(Pair(1, H), Pair(2, N)));
}

TEST(ShownOnlyTest, KeepsTheFirstOwnModeWhenOthersAreShownNext)
{
    const ShownOnly first = ShownOnly().Show({{1, B}, {2, N}, {3, N}}, {2}).kept;
    const ShownOnly::Change next = first.Show({{1, H}, {2, N}, {3, H}}, {3});
    EXPECT_THAT(Pairs(next.modes), ElementsAre(Pair(2, H), Pair(3, N)));
    EXPECT_THAT(Pairs(next.kept.Back({{1, H}, {2, H}, {3, N}})), ElementsAre(Pair(1, B), Pair(2, N)));
}

TEST(ShownOnlyTest, LeavesWhatTheUserHasChangedMeanwhileAndLayersThatCame)
{
    const ShownOnly kept = ShownOnly().Show({{1, N}, {2, N}, {3, N}}, {3}).kept;
    EXPECT_THAT(Pairs(kept.Back({{1, B}, {3, N}, {9, H}})), IsEmpty());
}

TEST(ShownOnlyTest, ForgetsLayersWhoseModesAreTheirOwnNow)
{
    const std::vector<LayerMode> now{{1, H}, {2, H}, {3, N}};
    const ShownOnly kept = ShownOnly().Show({{1, N}, {2, N}, {3, N}}, {3}).kept;
    EXPECT_EQ(kept.Without(now, {1}).Text(), "normal=2");
}

TEST(ShownOnlyTest, ChangesNothingIfNoneOfTheLayersExists)
{
    const ShownOnly before = ShownOnly::FromText("normal=1");
    const ShownOnly::Change change = before.Show({{1, H}, {2, N}}, {7});
    EXPECT_THAT(change.modes, IsEmpty());
    EXPECT_EQ(change.kept.Text(), "normal=1");
}

TEST(ShownOnlyTest, WritesSuccessiveIDsAsOneRange)
{
    const ShownOnly::Change change = ShownOnly().Show({{3, N}, {-1, N}, {2, N}, {1, N}, {0, N}, {7, N}}, {1});
    EXPECT_EQ(change.kept.Text(), "normal=-1..0,2..3,7");
}

TEST(ShownOnlyTest, ReadsWhatItWroteAndNothingElse)
{
    const QString text = QStringLiteral("normal=-3..5,7;backdrop=6;hidden=9..2147483647");
    EXPECT_EQ(ShownOnly::FromText(text).Text(), text);
    for (const char* damaged : {"", ";", "normal", "normal=", "normal=5..1", "odd=1", "hidden=1..x", "=1"})
        EXPECT_TRUE(ShownOnly::FromText(damaged).IsEmpty()) << damaged;
    EXPECT_EQ(ShownOnly::FromText("normal=1,x,4294967297,3").Text(), "normal=1,3");
    EXPECT_EQ(ShownOnly::FromText("hidden=2..9;normal=1..5,9..12").Text(), "normal=1..5,9..12");
}

} // namespace

} // namespace Orvane
