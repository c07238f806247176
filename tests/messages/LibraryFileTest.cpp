// SPDX-License-Identifier: MIT
#include "messages/LibraryFile.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace Orvane {

TEST(LibraryFile, IsTheProgramThatTheCodeWasLinkedInto)
{
    EXPECT_EQ(QFileInfo(LibraryFile()).canonicalFilePath(), QCoreApplication::applicationFilePath());
}

} // namespace Orvane
