// SPDX-License-Identifier: MIT
#include "files/DiskSync.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane {

TEST(DiskSync, AFileThatIsThereIsWritten)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("a")));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("text");
    ASSERT_TRUE(file.flush());
    EXPECT_FALSE(SyncHandle(file.handle()));
    file.close();
    EXPECT_FALSE(SyncFile(file.fileName()));
    EXPECT_EQ(file.size(), 4);
}

TEST(DiskSync, AFileThatIsMissingIsAnErrorAndIsNotMade)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a"));
    EXPECT_TRUE(SyncFile(path));
    EXPECT_FALSE(QFile::exists(path));
    SyncFolder(path); // raises nothing
}

TEST(DiskSync, AHandleThatIsNotOpenIsAnError)
{
    EXPECT_TRUE(SyncHandle(9999));
}

} // namespace Orvane
