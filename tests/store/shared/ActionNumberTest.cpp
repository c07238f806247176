// SPDX-License-Identifier: MIT
#include "store/shared/ActionNumber.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

namespace Orvane::Testing {

TEST(ActionNumberTest, StaysTheSameUntilTheEventLoopRuns)
{
    ActionNumber action;
    const quint64 first = action.Present();
    EXPECT_EQ(action.Present(), first);
    QCoreApplication::processEvents();
    const quint64 second = action.Present();
    EXPECT_GT(second, first);
    EXPECT_EQ(action.Present(), second);
}

TEST(ActionNumberTest, OnlyAnEventLoopEndsActions)
{
    EXPECT_FALSE(ActionNumber::HasEnd());
    QEventLoop loop;
    bool hasEnd = false;
    const auto look = [&] {
        hasEnd = ActionNumber::HasEnd();
        loop.quit();
    };
    QMetaObject::invokeMethod(&loop, look, Qt::QueuedConnection);
    loop.exec();
    EXPECT_TRUE(hasEnd);
}

} // namespace Orvane::Testing
