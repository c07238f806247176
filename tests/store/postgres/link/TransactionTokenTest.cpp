// SPDX-License-Identifier: MIT
#include "store/postgres/link/TransactionToken.h"

#include <QUuid>

#include <gtest/gtest.h>

namespace Orvane::Testing {

TEST(TransactionTokenTest, IsAnotherUuidForEachTransaction)
{
    TransactionToken token;
    const QByteArray first = token.Text();
    token.Next();
    EXPECT_NE(token.Text(), first);
    EXPECT_FALSE(QUuid(QString::fromLatin1(first)).isNull());
    EXPECT_FALSE(QUuid(QString::fromLatin1(token.Text())).isNull());
}

TEST(TransactionTokenTest, BeginsInTheSameWayForASessionAndInAnotherForEachOther)
{
    TransactionToken token;
    const QByteArray beginning = token.Beginning();
    for (int transaction = 0; transaction < 1000; ++transaction)
        token.Next();
    EXPECT_EQ(token.Beginning(), beginning);
    EXPECT_TRUE(token.Text().startsWith(beginning));
    EXPECT_NE(TransactionToken().Beginning(), beginning);
}

} // namespace Orvane::Testing
