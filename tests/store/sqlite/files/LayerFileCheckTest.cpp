// SPDX-License-Identifier: MIT
#include "store/sqlite/files/LayerFileCheck.h"

#include "store/sqlite/StoreTest.h"
#include "support/ProcessorTime.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <random>
#include <sys/stat.h>

namespace Orvane::Testing {

namespace {

QByteArray RandomBytes(int count)
{
    std::mt19937 random(4711);
    QByteArray bytes;
    for (int i = 0; i < count; ++i)
        bytes += char(random());
    return bytes;
}

class LayerFileCheck : public StoreTest
{
protected:
    const ProcessorTime m_time{std::chrono::seconds(60)};

    /// Opens the file in both modes, expects the error each time, and the directory as it was.
    void ExpectRefused(const QString& path, ErrorNumber number)
    {
        const auto before = Content();
        for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
            const auto open = [&] { SqliteLayerDatabase::Open(path, mode, Impatient()); };
            EXPECT_EQ(ErrorOf(open), int(number)) << qPrintable(path);
            const QString text = DescriptionOf(open);
            EXPECT_TRUE(text.contains(QDir::toNativeSeparators(path))) << qPrintable(text);
        }
        EXPECT_EQ(Content(), before) << "something was touched";
    }

    QMap<QString, QByteArray> Content() const
    {
        QMap<QString, QByteArray> content;
        for (const QString& name : FilesThere())
            content[name] = BytesOf(PathOf(name));
        return content;
    }

    /// Bytes of a real database of several pages.
    QByteArray RealBytes()
    {
        const QString path = MadeFile(QStringLiteral("real.ovl"), 500);
        const QByteArray bytes = BytesOf(path);
        QFile::remove(path);
        return bytes;
    }
};

constexpr int SqlitePageSize = 4096;

} // namespace

TEST_F(LayerFileCheck, AMissingFileIsNotMade)
{
    ExpectRefused(PathOf(QStringLiteral("missing.ovl")), ErrorNumber::DatabaseFailure);
    EXPECT_TRUE(FilesThere().isEmpty());
}

TEST_F(LayerFileCheck, ADirectoryIsRefused)
{
    ExpectRefused(PathOf(QStringLiteral(".")), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, APipeIsRefusedAndNotWaitedFor)
{
    const QString path = PathOf(QStringLiteral("pipe.ovl"));
    ASSERT_EQ(mkfifo(path.toUtf8().constData(), 0600), 0);
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
        EXPECT_EQ(
            ErrorOf([&] { SqliteLayerDatabase::Open(path, mode); }), int(ErrorNumber::NotALayerDatabase));
    }
}

TEST_F(LayerFileCheck, APipeOrFolderInPlaceOfAJournalIsRefusedByName)
{
    const QString path = MadeFile();
    for (const char* suffix : {"-journal", "-wal", "-shm"}) {
        const QString beside = path + QLatin1String(suffix);
        const auto open = [&] { SqliteLayerDatabase::Open(path, OpenMode::ReadWrite, Impatient()); };
        ASSERT_EQ(mkfifo(beside.toUtf8().constData(), 0600), 0);
        EXPECT_EQ(ErrorOf(open), int(ErrorNumber::DatabaseFailure)) << suffix;
        EXPECT_TRUE(DescriptionOf(open).contains(QDir::toNativeSeparators(beside))) << suffix;
        ASSERT_TRUE(QFile::remove(beside));
        ASSERT_TRUE(QDir().mkpath(beside));
        EXPECT_EQ(ErrorOf(open), int(ErrorNumber::DatabaseFailure)) << suffix;
        ASSERT_TRUE(QDir().rmdir(beside));
    }
    EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(path), 2), QStringLiteral("Layer 2"));
}

TEST_F(LayerFileCheck, JournalsAreSoughtWhereALinkLeads)
{
    const QString path = MadeFile();
    const QString link = PathOf(QStringLiteral("link.ovl"));
    ASSERT_TRUE(QFile::link(path, link));
    ASSERT_EQ(mkfifo((path + QStringLiteral("-journal")).toUtf8().constData(), 0600), 0);
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Open(link); }), int(ErrorNumber::DatabaseFailure));
}

TEST_F(LayerFileCheck, AnEmptyFileIsRefused)
{
    ExpectRefused(FileWith({}), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, ATextFileIsRefused)
{
    ExpectRefused(FileWith("Not a database, but a text about layers.\n"), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, RandomBytesAreRefused)
{
    ExpectRefused(FileWith(RandomBytes(20000)), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, RandomBytesBehindARealHeaderAreRefused)
{
    const QByteArray real = RealBytes();
    ExpectRefused(
        FileWith(real.left(100) + RandomBytes(int(real.size()) - 100)), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, AFileCutShortIsRefusedWhereverItWasCut)
{
    const QByteArray real = RealBytes();
    const auto size = int(real.size());
    ASSERT_GT(size, 10 * SqlitePageSize);
    for (const int length :
         {1, 15, 16, 50, 99, 100, 101, 512, SqlitePageSize - 1, SqlitePageSize, 2 * SqlitePageSize, size / 2,
          size - SqlitePageSize, size - 1})
        ExpectRefused(FileWith(real.left(length)), ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, ADamagedPageIsNoticedWhicheverItIs)
{
    const QByteArray real = RealBytes();
    for (int at = 0; at < real.size(); at += SqlitePageSize) {
        QByteArray damaged = real;
        damaged.replace(at, SqlitePageSize, RandomBytes(SqlitePageSize));
        ExpectRefused(FileWith(damaged), ErrorNumber::NotALayerDatabase);
    }
}

TEST_F(LayerFileCheck, AnotherProgramsDatabaseIsRefused)
{
    const QString path = PathOf(QStringLiteral("foreign.db"));
    RawDatabase(path).Run("CREATE TABLE Layers (LayerID INTEGER PRIMARY KEY)");
    ExpectRefused(path, ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, AnotherProgramsDatabaseIsRefusedAlsoWhileItIsWritten)
{
    const QString path = PathOf(QStringLiteral("foreign.db"));
    RawDatabase foreign(path);
    foreign.Run("PRAGMA application_id = 77; PRAGMA journal_mode = WAL; CREATE TABLE Things (A)");
    ASSERT_EQ(FilesThere().size(), 3);
    ExpectRefused(path, ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, AFileOfANewerVersionIsRefused)
{
    const QString path = MadeFile();
    RawDatabase(path).Run("PRAGMA user_version = 1000");
    ExpectRefused(path, ErrorNumber::DatabaseTooNew);
}

TEST_F(LayerFileCheck, AFileWhoseNewerVersionIsStillInTheJournalIsRefused)
{
    const QString path = MadeFile();
    RawDatabase newer(path);
    newer.Run("PRAGMA wal_autocheckpoint = 0; PRAGMA user_version = 1000");
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly}) {
        EXPECT_EQ(
            ErrorOf([&] { SqliteLayerDatabase::Open(path, mode, Impatient()); }),
            int(ErrorNumber::DatabaseTooNew));
    }
    EXPECT_EQ(newer.Text("PRAGMA user_version"), "1000");
}

TEST_F(LayerFileCheck, AFileThatMisrepresentsItselfIsRefused)
{
    const QString path = MadeFile();
    RawDatabase(path).Run("DROP TABLE LayerGroupMembers");
    ExpectRefused(path, ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, AFileThatLacksAColumnIsRefused)
{
    const QString path = MadeFile();
    RawDatabase(path).Run("ALTER TABLE Layers RENAME COLUMN OverrideMode TO Mode");
    ExpectRefused(path, ErrorNumber::NotALayerDatabase);
}

TEST_F(LayerFileCheck, AWriteProtectedFileIsNotOpenedForWriting)
{
    const QString path = MadeFile();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup);
    const auto before = Content();
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Open(path); }), int(ErrorNumber::DatabaseReadOnly));
    EXPECT_EQ(Content(), before);
}

TEST_F(LayerFileCheck, AWriteProtectedFileIsReadWithoutATrace)
{
    const QString path = MadeFile();
    QFile::setPermissions(path, QFile::ReadOwner | QFile::ReadGroup);
    const auto before = Content();
    {
        const auto database = SqliteLayerDatabase::Open(path, OpenMode::ReadOnly);
        EXPECT_EQ(NameOfLayer(*database, 2), QStringLiteral("Layer 2"));
        EXPECT_EQ(Content(), before);
    }
    EXPECT_EQ(Content(), before);
}

TEST_F(LayerFileCheck, ReadingAFileLeavesNoTrace)
{
    const QString path = MadeFile();
    const auto before = Content();
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly})
        EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(path, mode), 2), QStringLiteral("Layer 2"));
    EXPECT_EQ(Content(), before);
}

TEST_F(LayerFileCheck, WhatACrashLeftInTheJournalIsReadWithTheFile)
{
    const QString path = MadeFile();
    RawDatabase writer(path);
    writer.Run("UPDATE Layers SET Name = 'Rivers' WHERE LayerID = 2");
    const QString copy = FileWith(BytesOf(path), QStringLiteral("copy.ovl"));
    FileWith(BytesOf(path + QStringLiteral("-wal")), QStringLiteral("copy.ovl-wal"));
    EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(copy), 2), QStringLiteral("Rivers"));
}

TEST_F(LayerFileCheck, NamesThatMeanSomethingInAnAddressAreJustNames)
{
    for (const char* name :
         {"50% of it?.ovl", "a#b&c=d.ovl", "mode=ro immutable=1.ovl", "\xE5\x9C\xB0\xE5\x9B\xB3.ovl"}) {
        const QString path = MadeFile(QString::fromUtf8(name), 1);
        EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(path), 1), QStringLiteral("Layer 1")) << name;
        EXPECT_TRUE(QFile::remove(path)) << name;
    }
    EXPECT_TRUE(FilesThere().isEmpty());
}

} // namespace Orvane::Testing
