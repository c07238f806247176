// SPDX-License-Identifier: MIT
#include "mapkit/drawing/ScaleText.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

class ScaleTextTest : public testing::Test
{
protected:
    ~ScaleTextTest() override { QLocale::setDefault(m_before); }

    const QLocale m_before;
};

} // namespace

TEST_F(ScaleTextTest, GroupsTheDigitsAsTheUsersLocaleDoes)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(ScaleText(2200000), "1:2,200,000");
    EXPECT_EQ(ScaleText(100), "1:100");
    QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
    EXPECT_EQ(ScaleText(2200000), "1:2.200.000");
}

TEST_F(ScaleTextTest, ShowsFourDigitsAtMost)
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(ScaleText(2199678.3), "1:2,200,000");
    EXPECT_EQ(ScaleText(12344), "1:12,340");
    EXPECT_EQ(ScaleText(999.6), "1:1,000");
}

TEST_F(ScaleTextTest, ReadsAScaleHoweverItsDigitsAreGrouped)
{
    for (const char* text :
         {"1:25000", "25000", "1:25 000", "1 : 25.000", "1:25,000", "1:25\u202f000", "1:25\u2019000",
          " 25'000 ", "1/25000"})
        EXPECT_EQ(ReadScale(QString::fromUtf8(text)), 25000) << text;
    EXPECT_EQ(ReadScale("1:2,500,000"), 2500000);
}

TEST_F(ScaleTextTest, ReadsWhatItWritesInEveryLocale)
{
    for (const char* name : {"en_US", "de_DE", "de_CH", "fr_FR", "ja_JP", "en_IN"}) {
        QLocale::setDefault(QLocale(QString(name)));
        EXPECT_EQ(ReadScale(ScaleText(2200000)), 2200000) << name;
    }
}

TEST_F(ScaleTextTest, ReadsNothingFromATextThatIsNoScale)
{
    for (const char* text :
         {"", "1:", "big", "2:25000", "-5", "1:25,00", "1e5", "1:0", "99999999999", "1:1:5"})
        EXPECT_FALSE(ReadScale(text)) << text;
}

} // namespace Orvane
