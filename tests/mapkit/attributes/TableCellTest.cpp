// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableCell.h"

#include <QDateTime>

#include <gtest/gtest.h>

namespace Orvane {

namespace {

const QLocale German(QLocale::German, QLocale::Germany);

} // namespace

TEST(TableCell, WritesNumbersWithTheLocalesSignsButNotBetweenThousands)
{
    EXPECT_EQ(CellText(2023LL, German), "2023");
    EXPECT_EQ(CellText(-1234567LL, German), "-1234567");
    EXPECT_EQ(CellText(1234567.5, German), "1234567,5");
    EXPECT_EQ(CellText(0.1, QLocale::c()), "0.1");
    EXPECT_EQ(CellText(0.0, German), "0");
}

TEST(TableCell, WritesVeryLargeAndSmallNumbersWithAnExponent)
{
    EXPECT_EQ(CellText(1e20, QLocale::c()), "1e+20");
    EXPECT_EQ(CellText(1e-9, QLocale::c()), "1e-09");
}

TEST(TableCell, WritesDatesWithAllDigitsOfTheYear)
{
    EXPECT_EQ(CellText(QDate(1871, 1, 18), German), "18.01.1871");
    const QDateTime moment(QDate(1871, 1, 18), QTime(6, 7, 8), Qt::UTC);
    EXPECT_EQ(CellText(moment, German), "18.01.1871 06:07:08");
    EXPECT_EQ(CellText(QTime(6, 7, 8), German), "06:07:08");
}

TEST(TableCell, IsEmptyForNull)
{
    EXPECT_EQ(CellText({}, German), "");
}

} // namespace Orvane
