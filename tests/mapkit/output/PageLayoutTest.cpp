// SPDX-License-Identifier: MIT
#include "mapkit/output/PageLayout.h"

#include <gtest/gtest.h>

namespace Orvane {

namespace {

std::vector<LegendRow> Rows(int count)
{
    std::vector<LegendRow> rows;
    for (int i = 0; i < count; ++i)
        rows.push_back(LegendRow::Heading(QStringLiteral("Row %1").arg(i)));
    return rows;
}

PageSettings OfSize(double width, double height)
{
    PageSettings settings;
    settings.size = {width, height};
    settings.title = QStringLiteral("Title");
    return settings;
}

void ExpectApartAndOnThePage(const PageLayout& layout)
{
    const QRectF page({0, 0}, layout.page);
    EXPECT_TRUE(page.contains(layout.map));
    EXPECT_TRUE(page.contains(layout.title));
    EXPECT_TRUE(layout.legend.isEmpty() || page.contains(layout.legend));
    EXPECT_FALSE(layout.map.intersects(layout.title));
    EXPECT_FALSE(layout.map.intersects(layout.legend));
    EXPECT_FALSE(layout.title.intersects(layout.legend));
}

} // namespace

TEST(PageLayout, NothingOverlapsOnAnyPaper)
{
    for (const QSizeF size :
         {QSizeF(297, 210), QSizeF(210, 297), QSizeF(60, 60), QSizeF(1189, 841), QSizeF(300, 40)}) {
        for (const int count : {0, 1, 12, 500}) {
            SCOPED_TRACE(testing::Message() << size.width() << 'x' << size.height() << ' ' << count);
            ExpectApartAndOnThePage(LayOutPage(OfSize(size.width(), size.height()), Rows(count)));
        }
    }
}

TEST(PageLayout, TheLegendStandsBesideAWideMapAndBelowATallOne)
{
    const PageLayout wide = LayOutPage(OfSize(297, 210), Rows(5));
    EXPECT_GE(wide.legend.left(), wide.map.right());
    const PageLayout tall = LayOutPage(OfSize(210, 297), Rows(5));
    EXPECT_GE(tall.legend.top(), tall.map.bottom());
}

TEST(PageLayout, AHugeLegendLeavesTheMapMostOfThePage)
{
    for (const bool wide : {true, false}) {
        const PageLayout layout = LayOutPage(wide ? OfSize(297, 210) : OfSize(210, 297), Rows(5000));
        EXPECT_GT(layout.map.width() * layout.map.height(), layout.page.width() * layout.page.height() / 3);
    }
}

TEST(PageLayout, WhatIsNotWantedTakesNoRoom)
{
    PageSettings settings;
    settings.legend = false;
    settings.margin = 0;
    const PageLayout layout = LayOutPage(settings, Rows(5));
    EXPECT_TRUE(layout.legend.isEmpty());
    EXPECT_TRUE(layout.title.isEmpty());
    EXPECT_GE(layout.map.width(), layout.page.width());
    EXPECT_GE(layout.map.height(), layout.page.height());
}

TEST(PageLayout, AMarginOnATinyPageLeavesAMap)
{
    PageSettings settings = OfSize(10, 10);
    settings.margin = 50;
    EXPECT_GE(LayOutPage(settings, Rows(3)).map.width(), 1);
}

} // namespace Orvane
