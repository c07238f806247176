// SPDX-License-Identifier: MIT
#include "component/dialog/place/ViewState.h"

#include <gmock/gmock.h>
#include <random>

namespace Orvane {

namespace {

std::optional<WindowSize> SizeIn(const char* text)
{
    return ViewState::FromText(QString::fromUtf8(text)).size;
}

ListTab TabIn(const char* text)
{
    return ViewState::FromText(QString::fromUtf8(text)).tab;
}

TEST(ViewState, ReadsTheWordsOfASetting)
{
    const ViewState state = ViewState::FromText("9000:7000:LAYERS:EXPANDED");
    EXPECT_EQ(state, (ViewState{WindowSize{9000, 7000}, true, ListTab::Layers}));
}

TEST(ViewState, ReadsACollapsedDialogOnTheSchemes)
{
    const ViewState state = ViewState::FromText("9000:7000:SCHEMES:NOT EXPANDED");
    EXPECT_EQ(state, (ViewState{WindowSize{9000, 7000}, false, ListTab::Schemes}));
}

TEST(ViewState, AnEmptySettingIsTheLayersTabAndNothingElse)
{
    EXPECT_EQ(ViewState::FromText(QString()), (ViewState{std::nullopt, std::nullopt, ListTab::Layers}));
}

TEST(ViewState, AnEmptyTabWordIsLayersAndAnUnknownOneGroups)
{
    EXPECT_EQ(TabIn("9000:7000::EXPANDED"), ListTab::Layers);
    EXPECT_EQ(TabIn("9000:7000:GROUPS:EXPANDED"), ListTab::Groups);
    EXPECT_EQ(TabIn("9000:7000:layers:EXPANDED"), ListTab::Groups);
    EXPECT_EQ(TabIn("9000:7000:COLOURS:EXPANDED"), ListTab::Groups);
}

TEST(ViewState, AMissingSideLeavesSizeAndExpansion)
{
    for (const char* text :
         {":7000:LAYERS:NOT EXPANDED", "9000::LAYERS:NOT EXPANDED", "::LAYERS:NOT EXPANDED"}) {
        const ViewState state = ViewState::FromText(text);
        EXPECT_FALSE(state.size) << text;
        EXPECT_FALSE(state.expanded) << text;
        EXPECT_EQ(state.tab, ListTab::Layers) << text;
    }
}

TEST(ViewState, OnlyTheExactWordsCollapse)
{
    EXPECT_EQ(ViewState::FromText("1:1:LAYERS:NOT EXPANDED").expanded, false);
    for (const char* text :
         {"1:1:LAYERS:", "1:1:LAYERS", "1:1:LAYERS:not expanded", "1:1:LAYERS:NOT EXPANDED:"})
        EXPECT_EQ(ViewState::FromText(text).expanded, true) << text;
}

TEST(ViewState, ASideThatIsNoUsableNumberLeavesTheSize)
{
    for (const char* side :
         {"abc", "-9000", "0", "-0", "nan", "inf", "-inf", "1e999", "1e39", "1e-60", "9000,5", "9.000,5",
          "9,000", "0x2328", "9000 twips", "\xD9\xA9\xD9\xA0\xD9\xA0\xD9\xA0", " ", "9 000",
          "\xE2\x88\x92"
          "5"}) {
        const QString text = QString::fromUtf8(side);
        EXPECT_FALSE(ViewState::FromText(text + ":7000:LAYERS:EXPANDED").size) << side;
        EXPECT_FALSE(ViewState::FromText("9000:" + text + ":LAYERS:EXPANDED").size) << side;
    }
}

TEST(ViewState, AMalformedSideStillSaysWhetherTheDialogIsExpanded)
{
    EXPECT_EQ(ViewState::FromText("abc:7000:LAYERS:NOT EXPANDED").expanded, false);
}

TEST(ViewState, ReadsNumbersInAnyPlainForm)
{
    EXPECT_EQ(SizeIn("9000.5:7000:LAYERS:EXPANDED"), (WindowSize{9000.5f, 7000}));
    EXPECT_EQ(SizeIn(" 9000 :7e3:LAYERS:EXPANDED"), (WindowSize{9000, 7000}));
}

TEST(ViewState, WritesPlainDecimals)
{
    const ViewState state{WindowSize{9000, 1234567.5f}, false, ListTab::Groups};
    EXPECT_EQ(state.ToText(), "9000:1234567.5:GROUPS:NOT EXPANDED");
}

TEST(ViewState, WritesLargeAndSmallNumbersWithoutAnExponent)
{
    const ViewState state{WindowSize{16777216e3f, 0.00001f}, true, ListTab::Schemes};
    EXPECT_EQ(state.ToText(), "16777216000:0.00001:SCHEMES:EXPANDED");
}

TEST(ViewState, AWordMoreTellsThatTheListsShowSamples)
{
    ViewState state{WindowSize{9000, 7000}, false, ListTab::Groups};
    state.samples = true;
    EXPECT_EQ(state.ToText(), "9000:7000:GROUPS:NOT EXPANDED:LINE AND FILL");
    EXPECT_EQ(ViewState::FromText(state.ToText()), state);
    EXPECT_EQ(ViewState::FromText("::LAYERS:EXPANDED:LINE AND FILL").samples, true);
    EXPECT_EQ(ViewState::FromText("9000:7000:GROUPS:EXPANDED:LINE").samples, false);
}

TEST(ViewState, ComesBackTheSameFromItsText)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<float> length(1, 40000);
    for (int round = 0; round < 2000; ++round) {
        const ViewState state{
            WindowSize{length(random), length(random)}, round % 2 == 0, ListTab(1 + round % 3)};
        EXPECT_EQ(ViewState::FromText(state.ToText()), state);
    }
}

TEST(ViewState, ReadsAnyTextWithoutHarm)
{
    std::mt19937 random(11);
    const QString letters = QStringLiteral("0123456789:.-+eE ,NOTEXPADLYRSGUCHM\u0663\u2212");
    for (int round = 0; round < 5000; ++round) {
        QString text;
        for (int count = int(random() % 40); count > 0; --count)
            text += letters.at(int(random() % unsigned(letters.size())));
        const ViewState state = ViewState::FromText(text);
        if (state.size) {
            EXPECT_GT(state.size->width, 0) << qPrintable(text);
            EXPECT_GT(state.size->height, 0) << qPrintable(text);
        }
    }
}

} // namespace

} // namespace Orvane
