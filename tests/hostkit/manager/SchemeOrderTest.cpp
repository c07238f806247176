// SPDX-License-Identifier: MIT
#include "hostkit/manager/SchemeOrder.h"

#include <gtest/gtest.h>

namespace Orvane::Testing {
namespace {

// The names are letters.
QStringList Letters(const QString& names)
{
    QStringList letters;
    for (const QChar letter : names)
        letters << QString(letter);
    return letters;
}

TEST(SchemeOrder, OneMovesUpUntilItIsTheFirst)
{
    EXPECT_EQ(SchemeOrder::MovedUp(Letters("abc"), {"c"}), Letters("acb"));
    EXPECT_EQ(SchemeOrder::MovedUp(Letters("cab"), {"c"}), Letters("cab"));
}

TEST(SchemeOrder, SeveralMoveTogether)
{
    EXPECT_EQ(SchemeOrder::MovedUp(Letters("abcd"), Letters("cd")), Letters("acdb"));
    EXPECT_EQ(SchemeOrder::MovedDown(Letters("abcd"), Letters("ab")), Letters("cabd"));
    EXPECT_EQ(SchemeOrder::MovedUp(Letters("abcd"), Letters("bd")), Letters("badc"));
    EXPECT_EQ(SchemeOrder::MovedUp(Letters("abcd"), Letters("ac")), Letters("acbd"));
    EXPECT_EQ(SchemeOrder::MovedDown(Letters("abc"), Letters("bc")), Letters("abc"));
}

TEST(SchemeOrder, ThoseThatWereDroppedStandTogetherThere)
{
    EXPECT_EQ(SchemeOrder::MovedTo(Letters("abcd"), Letters("ad"), 2), Letters("badc"));
    EXPECT_EQ(SchemeOrder::MovedTo(Letters("abcd"), Letters("a"), 4), Letters("bcda"));
    EXPECT_EQ(SchemeOrder::MovedTo(Letters("abcd"), Letters("d"), 0), Letters("dabc"));
    EXPECT_EQ(SchemeOrder::MovedTo(Letters("abcd"), Letters("b"), 1), Letters("abcd"));
    EXPECT_EQ(SchemeOrder::MovedTo(Letters("abcd"), {"gone"}, 1), Letters("abcd"));
}

} // namespace
} // namespace Orvane::Testing
