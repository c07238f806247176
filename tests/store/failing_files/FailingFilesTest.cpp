// SPDX-License-Identifier: MIT
#include "store/failing_files/FailingFiles.h"

#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class FailingFilesTest : public testing::Test
{
protected:
    FailingFilesTest()
    {
        EXPECT_EQ(sqlite3_open(qPrintable(m_path), &m_handle), SQLITE_OK);
        EXPECT_EQ(Run("CREATE TABLE Numbers (Number)"), SQLITE_OK);
    }
    ~FailingFilesTest() override { sqlite3_close(m_handle); }

    int Run(const char* sql) { return sqlite3_exec(m_handle, sql, nullptr, nullptr, nullptr); }
    int Insert() { return Run("INSERT INTO Numbers VALUES (1)"); }

    FailingFiles m_files;
    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("file"));
    sqlite3* m_handle = nullptr;
};

} // namespace

TEST_F(FailingFilesTest, NothingFailsUntilItIsAskedFor)
{
    EXPECT_EQ(Insert(), SQLITE_OK);
    EXPECT_FALSE(m_files.HasFailed());
    EXPECT_EQ(m_files.Counted(), 0);
}

TEST_F(FailingFilesTest, OneCallFailsAndLaterOnesDoNot)
{
    m_files.Fail({.calls = FailingFiles::Sync});
    EXPECT_EQ(Insert(), SQLITE_IOERR);
    EXPECT_TRUE(m_files.HasFailed());
    EXPECT_EQ(Insert(), SQLITE_OK);
}

TEST_F(FailingFilesTest, ALastingFailureLastsUntilItIsHealed)
{
    m_files.Fail({.calls = FailingFiles::Write, .reason = FailingFiles::Reason::DiskFull, .lasts = true});
    EXPECT_EQ(Insert(), SQLITE_FULL);
    EXPECT_EQ(Insert(), SQLITE_FULL);
    m_files.Heal();
    EXPECT_EQ(Insert(), SQLITE_OK);
}

TEST_F(FailingFilesTest, CallsAreCountedByTheirKind)
{
    m_files.Fail({.calls = FailingFiles::Delete, .number = 100});
    EXPECT_EQ(Insert(), SQLITE_OK);
    EXPECT_EQ(m_files.Counted(), 1) << "the journal is deleted once";
    EXPECT_FALSE(m_files.HasFailed());
}

TEST_F(FailingFilesTest, TheFirstFailureIsNamed)
{
    m_files.Fail({.calls = FailingFiles::Delete, .lasts = true});
    EXPECT_NE(Insert(), SQLITE_OK);
    EXPECT_EQ(m_files.FirstFailure(), "xDelete file-journal");
}

TEST_F(FailingFilesTest, AWriteThatIsCutShortStoresHalf)
{
    sqlite3_file* file = nullptr;
    EXPECT_EQ(sqlite3_file_control(m_handle, "main", SQLITE_FCNTL_FILE_POINTER, &file), SQLITE_OK);
    ASSERT_TRUE(file);
    m_files.Fail({.calls = FailingFiles::Write, .writesHalf = true});
    const qint64 size = QFileInfo(m_path).size();
    EXPECT_EQ(file->pMethods->xWrite(file, "12345678", 8, size), SQLITE_IOERR_WRITE);
    EXPECT_EQ(QFileInfo(m_path).size(), size + 4);
}

TEST_F(FailingFilesTest, WaitsAreAddedUp)
{
    m_files.SkipSleep();
    sqlite3_sleep(250);
    EXPECT_EQ(m_files.SleptMilliseconds(), 250);
}

TEST(FailingFilesTests, AfterwardsSQLiteUsesTheRealFilesAgain)
{
    const sqlite3_vfs* before = sqlite3_vfs_find(nullptr);
    {
        const FailingFiles files;
        EXPECT_NE(sqlite3_vfs_find(nullptr), before);
    }
    EXPECT_EQ(sqlite3_vfs_find(nullptr), before);
}

} // namespace Orvane::Testing
