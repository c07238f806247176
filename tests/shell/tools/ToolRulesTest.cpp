// SPDX-License-Identifier: MIT
#include "shell/tools/ToolRules.h"

#include "shell/tools/ToolCanvas.h"

namespace Orvane {

using namespace Testing;

namespace {

class ToolRulesTest : public testing::Test
{
protected:
    Refusal For(ToolUse use) const { return RefusalOf(m_layer, use, 5000); }

    std::string Why(ToolUse use, std::vector<MapLayer> layers, QPointF pixel = {100, 100}) const
    {
        return ToolSearch(layers, MapView({50, 50}, 0.5, {200, 200}), 5000, use)
            .MissAt(pixel)
            .Text()
            .toStdString();
    }

    MapLayer m_layer = NamedLayer(1, "Roads", FeatureBuilder().Square(10, 10, 80).Done());
};

} // namespace

TEST_F(ToolRulesTest, AnOrdinaryLayerServesEveryUseButSnapping)
{
    for (const ToolUse use : {ToolUse::PointOut, ToolUse::Identify, ToolUse::Select, ToolUse::Move})
        EXPECT_EQ(For(use), Refusal::None) << int(use);
    EXPECT_EQ(For(ToolUse::SnapTo), Refusal::NoSnap);
}

TEST_F(ToolRulesTest, EachFlagRefusesItsOwnUseAlone)
{
    m_layer.flags.enquirable = false;
    EXPECT_EQ(For(ToolUse::Identify), Refusal::NotEnquirable);
    m_layer.flags.selectable = false;
    EXPECT_EQ(For(ToolUse::Select), Refusal::NotSelectable);
    m_layer.flags.locked = true;
    EXPECT_EQ(For(ToolUse::Move), Refusal::Locked);
    EXPECT_EQ(For(ToolUse::PointOut), Refusal::None);
    m_layer.flags.snapRequired = true;
    EXPECT_EQ(For(ToolUse::SnapTo), Refusal::None);
}

TEST_F(ToolRulesTest, WhatIsNotHitableServesNothingButSnapping)
{
    m_layer.flags.hitable = false;
    m_layer.flags.snapRequired = true;
    for (const ToolUse use : {ToolUse::PointOut, ToolUse::Identify, ToolUse::Select, ToolUse::Move})
        EXPECT_EQ(For(use), Refusal::NotHitable) << int(use);
    EXPECT_EQ(For(ToolUse::SnapTo), Refusal::None);
}

TEST_F(ToolRulesTest, WhatIsNotShownServesNothing)
{
    m_layer.flags.snapRequired = true;
    const auto expectAll = [&](Refusal refusal) {
        for (const ToolUse use : {ToolUse::PointOut, ToolUse::Identify, ToolUse::Select, ToolUse::SnapTo})
            EXPECT_EQ(For(use), refusal) << int(use);
    };
    m_layer.maxDenominator = 4999;
    expectAll(Refusal::OutOfScale);
    m_layer.mode = DrawMode::Hidden;
    expectAll(Refusal::Hidden);
    m_layer.visible = false;
    expectAll(Refusal::Invisible);
}

TEST_F(ToolRulesTest, ABackdropLayerServesAsAnyOther)
{
    m_layer.mode = DrawMode::Backdrop;
    EXPECT_EQ(For(ToolUse::Select), Refusal::None);
}

TEST_F(ToolRulesTest, TheReasonNamesTheLayer)
{
    m_layer.flags.enquirable = false;
    EXPECT_EQ(Why(ToolUse::Identify, {m_layer}), "Roads is here but not enquirable.");
    m_layer.flags.selectable = false;
    EXPECT_EQ(Why(ToolUse::Select, {m_layer}), "Roads is here but not selectable.");
    m_layer.flags.locked = true;
    EXPECT_EQ(Why(ToolUse::Move, {m_layer}), "Roads is here but locked.");
    m_layer.flags.hitable = false;
    EXPECT_EQ(Why(ToolUse::Move, {m_layer}), "Roads is here but not hitable.");
    m_layer.minDenominator = 6000;
    EXPECT_EQ(Why(ToolUse::Move, {m_layer}), "Roads is here but hidden at this scale.");
    m_layer.mode = DrawMode::Hidden;
    EXPECT_EQ(Why(ToolUse::Move, {m_layer}), "Roads is here but hidden by its quick mode.");
    m_layer.visible = false;
    EXPECT_EQ(Why(ToolUse::Move, {m_layer}), "Roads is here but not visible.");
}

TEST_F(ToolRulesTest, WhereThereIsNothingNoLayerIsNamed)
{
    m_layer.flags.enquirable = false;
    EXPECT_EQ(Why(ToolUse::Identify, {m_layer}, {5, 5}), "No layer here.");
    EXPECT_EQ(Why(ToolUse::Identify, {}), "No layer here.");
}

TEST_F(ToolRulesTest, ALayerThatIsShownIsNamedBeforeOneThatIsNot)
{
    MapLayer unseen = m_layer;
    unseen.name = "Unseen";
    unseen.priority = 1;
    unseen.visible = false;
    m_layer.flags.enquirable = false;
    EXPECT_EQ(Why(ToolUse::Identify, {unseen, m_layer}), "Roads is here but not enquirable.");
}

TEST_F(ToolRulesTest, ALayerNameWithAPlaceholderIsShownAsItIs)
{
    m_layer.name = "100%1 & more";
    m_layer.visible = false;
    EXPECT_EQ(Why(ToolUse::Select, {m_layer}), "100%1 & more is here but not visible.");
}

} // namespace Orvane
