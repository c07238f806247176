// SPDX-License-Identifier: MIT
#include "mapkit/attributes/TableOrder.h"

#include "mapkit/common/Progress.h"

#include <QDate>

#include <gmock/gmock.h>

namespace Orvane {

using testing::ElementsAre;

namespace {

std::vector<qint64> Sorted(const std::vector<QVariant>& values, Qt::SortOrder direction)
{
    TableOrder order;
    qint64 id = 0;
    for (const QVariant& value : values)
        order.Add(++id, value);
    return order.Sorted(direction, QLocale::c(), Progress());
}

} // namespace

TEST(TableOrder, IsThatOfTheSizesNotOfTheDigits)
{
    EXPECT_THAT(Sorted({10LL, 9LL, 100LL}, Qt::AscendingOrder), ElementsAre(2, 1, 3));
    EXPECT_THAT(Sorted({QDate(2000, 1, 1), QDate(1999, 12, 31)}, Qt::AscendingOrder), ElementsAre(2, 1));
}

TEST(TableOrder, KeepsEqualValuesInTheirOrder)
{
    EXPECT_THAT(Sorted({"b", "a", "b", "a"}, Qt::AscendingOrder), ElementsAre(2, 4, 1, 3));
    EXPECT_THAT(Sorted({"b", "a", "b", "a"}, Qt::DescendingOrder), ElementsAre(1, 3, 2, 4));
}

TEST(TableOrder, HasNullLastAndTextsAfterNumbers)
{
    EXPECT_THAT(Sorted({QVariant(), "a", 5LL}, Qt::AscendingOrder), ElementsAre(3, 2, 1));
    EXPECT_THAT(Sorted({QVariant(), "a", 5LL}, Qt::DescendingOrder), ElementsAre(2, 3, 1));
}

TEST(TableOrder, EndsWhenTheUserCancels)
{
    TableOrder order;
    order.Add(1, "a");
    Progress progress;
    progress.Cancel();
    EXPECT_THROW(order.Sorted(Qt::AscendingOrder, QLocale::c(), progress), Cancelled);
}

} // namespace Orvane
