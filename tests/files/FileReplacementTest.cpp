// SPDX-License-Identifier: MIT
#include "files/FileReplacement.h"

#include "support/FileSizeLimit.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <gtest/gtest.h>

namespace Orvane::Testing {

namespace {

class FileReplacementTest : public testing::Test
{
protected:
    FileReplacementTest() { Write("old"); }

    QString Path() const { return m_folder.filePath(QStringLiteral("file.txt")); }
    QStringList Files() const { return QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden); }

    void Write(const QByteArray& content) const
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    QByteArray Content() const
    {
        QFile file(Path());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    // Writes in pieces of that size.
    static bool Replace(FileReplacement& file, const QByteArray& content, int piece)
    {
        if (!file.Begin())
            return false;
        for (qsizetype begin = 0; begin < content.size(); begin += piece)
            file.write(content.mid(begin, piece));
        return file.Commit();
    }

    QTemporaryDir m_folder;
    const QStringList m_onlyFile{QStringLiteral("file.txt")};
};

} // namespace

TEST_F(FileReplacementTest, TheNewContentReplacesTheOld)
{
    const QByteArray content(200001, 'x');
    for (const int piece : {1000, 65536, 300000}) {
        Write("old");
        FileReplacement file(Path());
        EXPECT_TRUE(Replace(file, content, piece)) << piece;
        EXPECT_EQ(Content(), content) << piece;
        EXPECT_EQ(file.Reason(), QString());
    }
    EXPECT_EQ(Files(), m_onlyFile);
}

TEST_F(FileReplacementTest, AnEmptyFileCanBeWritten)
{
    FileReplacement file(Path());
    EXPECT_TRUE(Replace(file, {}, 1));
    EXPECT_EQ(Content(), QByteArray());
}

TEST_F(FileReplacementTest, NothingChangesBeforeTheCommit)
{
    {
        FileReplacement file(Path());
        ASSERT_TRUE(file.Begin());
        file.write(QByteArray(100000, 'x'));
        EXPECT_EQ(Content(), "old");
    }
    EXPECT_EQ(Content(), "old");
    EXPECT_EQ(Files(), m_onlyFile);
}

TEST_F(FileReplacementTest, WithoutRoomTheOldFileStaysAtWhateverByteItEnds)
{
    const QByteArray content(200000, 'x');
    for (const qint64 room : {0, 1, 999, 65535, 65536, 65537, 131072, 150000, 199999}) {
        for (const int piece : {1000, 300000}) {
            FileReplacement file(Path());
            bool replaced = true;
            {
                const FileSizeLimit limit(room);
                replaced = Replace(file, content, piece);
            }
            EXPECT_FALSE(replaced) << room;
            EXPECT_FALSE(file.Reason().isEmpty()) << room;
            EXPECT_EQ(Content(), "old") << room;
        }
    }
    EXPECT_EQ(Files(), m_onlyFile);
    const FileSizeLimit limit(content.size());
    FileReplacement file(Path());
    EXPECT_TRUE(Replace(file, content, 1000));
    EXPECT_EQ(Content(), content);
}

TEST_F(FileReplacementTest, AfterAFailureAllWritesFail)
{
    FileReplacement file(Path());
    ASSERT_TRUE(file.Begin());
    {
        const FileSizeLimit limit(10);
        EXPECT_EQ(file.write(QByteArray(100000, 'x')), -1);
    }
    EXPECT_EQ(file.write("x"), -1);
    EXPECT_EQ(file.errorString(), file.Reason());
    EXPECT_FALSE(file.Commit());
}

TEST_F(FileReplacementTest, AMissingFolderIsNamed)
{
    const QString folder = m_folder.filePath(QStringLiteral("none"));
    FileReplacement file(folder + QStringLiteral("/file.txt"));
    EXPECT_FALSE(file.Begin());
    EXPECT_TRUE(file.Reason().contains(folder)) << qPrintable(file.Reason());
    EXPECT_FALSE(file.Commit());
}

TEST_F(FileReplacementTest, AFullDiskIsToldByTheFolderThatWasGiven)
{
    const QString full = qt_error_string(ENOSPC);
    EXPECT_EQ(
        WhyNotWritten(QStringLiteral("maps/town.pdf"), full),
        QStringLiteral("there is no room in the folder \"maps\""));
    EXPECT_EQ(
        WhyNotWritten(QStringLiteral("town.pdf"), full),
        QStringLiteral("there is no room in the folder \"%1\"").arg(QDir::currentPath()));
    EXPECT_EQ(WhyNotWritten(Path(), QStringLiteral("any other")), QStringLiteral("any other"));
}

} // namespace Orvane::Testing
