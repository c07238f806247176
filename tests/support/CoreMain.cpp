// SPDX-License-Identifier: MIT
#include "support/QtMessageGuard.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    testing::InitGoogleMock(&argc, argv);
    Orvane::Testing::FailOnQtWarnings();
    return RUN_ALL_TESTS();
}
