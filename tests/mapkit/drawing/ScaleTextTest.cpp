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

} // namespace Orvane
