// SPDX-License-Identifier: MIT
#include "shell/ShownName.h"

#include <gtest/gtest.h>

namespace Orvane {

TEST(ShownName, LeavesAnOrdinaryNameAsItIs)
{
    EXPECT_EQ(ShownName("O'Neill's \"best\" & worst"), "O'Neill's \"best\" & worst");
}

TEST(ShownName, IsOneLine)
{
    EXPECT_EQ(ShownName("a\nb\r\n\tc"), "a b c");
}

TEST(ShownName, IsShortAndSaysThatThereIsMore)
{
    const QString shown = ShownName(QString(10000, 'x'), 20);
    EXPECT_EQ(shown.size(), 20);
    EXPECT_TRUE(shown.endsWith(QChar(0x2026)));
}

TEST(ShownName, CutsNoCharacterInTwo)
{
    const QString map = QString::fromUtf8("🗺");
    for (const int maximum : {10, 11}) {
        for (const QChar character : ShownName(map.repeated(50), maximum).chopped(1))
            EXPECT_TRUE(character.isSurrogate());
        EXPECT_EQ(ShownName(map.repeated(50), maximum).size() % 2, 1);
    }
}

TEST(MenuName, MarksNoLetter)
{
    EXPECT_EQ(MenuName("Roads & Rivers"), "Roads && Rivers");
}

} // namespace Orvane
