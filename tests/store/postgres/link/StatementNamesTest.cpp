// SPDX-License-Identifier: MIT
#include "store/postgres/link/StatementNames.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {

TEST(StatementNames, ATextIsPreparedOnce)
{
    StatementNames names;
    const auto first = names.For("SELECT 1");
    EXPECT_TRUE(first.isNew);
    EXPECT_FALSE(names.For("SELECT 1").isNew);
    EXPECT_EQ(names.For("SELECT 1").name, first.name);
    EXPECT_NE(names.For("SELECT 2").name, first.name);
}

TEST(StatementNames, WhatCouldNotBePreparedIsPreparedAgain)
{
    StatementNames names;
    const QByteArray name = names.For("SELECT 1").name;
    names.Forget("SELECT 1");
    names.Forget("SELECT 1");
    EXPECT_TRUE(names.For("SELECT 1").isNew);
    EXPECT_NE(names.For("SELECT 1").name, name);
}

TEST(StatementNames, TheOneThatWasNotUsedForLongestIsDropped)
{
    StatementNames names;
    const QByteArray first = names.For("SELECT 0").name;
    const QByteArray second = names.For("SELECT 1").name;
    for (int i = 2; i < 128; ++i)
        EXPECT_TRUE(names.For("SELECT " + QByteArray::number(i)).dropped.isEmpty());
    names.For("SELECT 0");
    EXPECT_EQ(names.For("SELECT 128").dropped, second);
    EXPECT_EQ(names.For("SELECT 0").name, first);
    EXPECT_TRUE(names.For("SELECT 1").isNew);
}

TEST(StatementNames, AllCanBeForgotten)
{
    StatementNames names;
    names.For("SELECT 1");
    names.ForgetAll();
    EXPECT_TRUE(names.For("SELECT 1").isNew);
}

} // namespace Orvane::Testing
