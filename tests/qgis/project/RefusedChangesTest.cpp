// SPDX-License-Identifier: MIT
#include "qgis/project/RefusedChanges.h"

#include <OrvaneShellLib/LayerValues.h>

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;

LayerValues Row(std::string_view column, const Value& value)
{
    LayerValues row = UnknownLayerValues();
    SetValue(row, column, value);
    return row;
}

TEST(RefusedChanges, WhatWasRefusedCountsEvenIfOthersTookIt)
{
    RefusedChanges changes;
    changes.Add("Roads", {"locked"}, Row("locked", false), Row("locked", true));
    changes.Add("Lakes", {}, Row("locked", false), Row("locked", true));
    ASSERT_EQ(changes.All().size(), 1u);
    EXPECT_EQ(changes.All()[0].layer, "Roads");
    EXPECT_THAT(changes.All()[0].columns, ElementsAre("locked"));
}

TEST(RefusedChanges, WhatALayerCannotHaveCountsIfNobodyTookIt)
{
    RefusedChanges changes;
    changes.Add("Air", {}, UnknownLayerValues(), Row("FillForeColor", 7));
    EXPECT_THAT(changes.All().at(0).columns, ElementsAre("FillForeColor"));
    changes.Add("Lakes", {}, Row("FillForeColor", 1), Row("FillForeColor", 7));
    EXPECT_TRUE(changes.All().empty());
}

TEST(RefusedChanges, TheColourThatComesWithTheFlagForSymbolsDoesNotCount)
{
    RefusedChanges changes;
    changes.Add("Soil", {}, UnknownLayerValues(), Row("Color", TransparentColour));
    EXPECT_TRUE(changes.All().empty());
}

TEST(RefusedChanges, WhatIsAsItWasIsNoChange)
{
    RefusedChanges changes;
    changes.Add("Lakes", {}, Row("Code", 1), Row("Code", 1));
    EXPECT_TRUE(changes.All().empty());
}

} // namespace

} // namespace Orvane::Testing
