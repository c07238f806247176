// SPDX-License-Identifier: MIT
#include "component/model/CollectionKey.h"

#include "hosts/ValueMatchers.h"

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

TEST(CollectionKey, NamesTheIDInDecimal)
{
    EXPECT_EQ(CollectionKey(17), "IDequals_17");
    EXPECT_EQ(CollectionKey(-5), "IDequals_-5");
}
