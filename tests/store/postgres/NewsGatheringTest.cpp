// SPDX-License-Identifier: MIT
#include "store/postgres/NewsGathering.h"

#include <gmock/gmock.h>
#include <string>

namespace Orvane::Testing {

namespace {

using testing::UnorderedElementsAre;

} // namespace

TEST(NewsGatheringTest, GathersTheLayersOfManyNews)
{
    NewsGathering news;
    EXPECT_TRUE(news.IsEmpty());
    EXPECT_EQ(news.AddNotice("17 layers 1,5,-2"), 17);
    news.Add("layers", "5,9");
    const ForeignChange change = news.Take();
    EXPECT_THAT(change.layerIDs, UnorderedElementsAre(-2, 1, 5, 9));
    EXPECT_FALSE(change.all);
    EXPECT_TRUE(news.IsEmpty());
}

TEST(NewsGatheringTest, OtherTablesAndManyRowsStandForEverything)
{
    for (const char* notice :
         {"17 layergroups 1", "17 layers *", "17 * *", "17 themelayers 3", "17 Town's table 3"}) {
        NewsGathering news;
        EXPECT_EQ(news.AddNotice(notice), 17);
        EXPECT_TRUE(news.Take().all) << notice;
    }
}

TEST(NewsGatheringTest, WhatIsNotAsItShouldBeStandsForEverything)
{
    for (const char* notice :
         {"", "17", "17 layers", "layers 1", " layers 1", "x layers 1 2", "17 layers ", "17 layers 1,,2",
          "17 layers 1;2", "17 layers 99999999999", "99999999999999999999 layers x"}) {
        NewsGathering news;
        news.AddNotice(notice);
        EXPECT_TRUE(news.Take().all) << notice;
    }
}

TEST(NewsGatheringTest, TooManyLayersStandForEverything)
{
    std::string ids = "0";
    for (int id = 1; id < 6000; ++id)
        ids += ',' + std::to_string(id);
    NewsGathering news;
    news.Add("layers", ids);
    EXPECT_TRUE(news.Take().all);
}

} // namespace Orvane::Testing
