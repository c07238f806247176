// SPDX-License-Identifier: MIT
#include "qgis/plugin/RefusalText.h"

#include <OrvaneShellLib/LayerColumns.h>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

TEST(RefusalText, OneLayerIsNamedWithItsSettings)
{
    EXPECT_EQ(
        RefusalText::Of({{"Air", {"FillForeColor", "locked"}}}),
        "QGIS cannot set this for the layer \"Air\": fill colour; locked.");
}

TEST(RefusalText, OfManyLayersTheFirstIsNamed)
{
    const QString text = RefusalText::Of({{"Air", {"locked"}}, {"Soil", {"locked"}}, {"Mesh", {"locked"}}});
    EXPECT_TRUE(text.contains("\"Air\": locked."));
    EXPECT_TRUE(text.endsWith("Other layers with settings that could not be set: 2."));
}

TEST(RefusalText, EveryColumnThatCanBeSetHasATitle)
{
    for (const LayerColumn& column : LayerColumns) {
        const QString text = RefusalText::Of({{"Air", {column.name}}});
        const bool isSet = column.inSchemes == InSchemes::Yes || QLatin1String(column.name) == "Code";
        const bool isTitle = !text.endsWith(QLatin1String(": ") + column.name + ".");
        if (isSet && QLatin1String(column.name) != "locked") // whose title is the same
            EXPECT_TRUE(isTitle) << column.name;
    }
}

} // namespace

} // namespace Orvane::Testing
