// SPDX-License-Identifier: MIT
#include "store/sqlite/files/NewLayerFile.h"

#include "store/failing_files/FailingFiles.h"
#include "store/sqlite/StoreTest.h"
#include "support/FileSizeLimit.h"

#include <QFile>

namespace Orvane::Testing {

namespace {

constexpr int FileFormatOffset = 18; // in the header; 1 is a file without a write-ahead log
constexpr qint64 MuchRoom = 4 * 1024 * 1024; // bytes
const auto LockedError = int(ErrorNumber::DatabaseLocked);

class NewLayerFileTest : public StoreTest
{
protected:
    NewLayerFileTest() { AddLayer(*m_new, 1, QStringLiteral("New")); }

    // Replaces the file by a copy that is changed before it is put in place.
    void Replace(const QString& path) const
    {
        m_new->CopyToFile(path, IfExists::Replace, [](std::unique_ptr<ILayerStore> store) {
            store->Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (2, 'Added')"));
        });
    }

    static int ErrorWithRoom(qint64 room, const std::function<void()>& act)
    {
        const FileSizeLimit limit(room);
        return ErrorOf(act);
    }

    // Tries the act with more and more room until it works; calls check after each failure.
    static void TryWithGrowingRoom(const std::function<void()>& act, const std::function<void()>& check)
    {
        qint64 room = 0;
        while (ErrorWithRoom(room, act) != 0 && room < MuchRoom) {
            check();
            room += 2500;
        }
        EXPECT_GT(room, 2500) << "nothing failed";
        EXPECT_LT(room, MuchRoom) << "everything failed";
    }

    void ExpectNew(const QString& path) const
    {
        EXPECT_EQ(FilesThere(), QStringList{m_name});
        EXPECT_EQ(BytesOf(path).at(FileFormatOffset), 1);
        const auto database = SqliteLayerDatabase::Open(path);
        EXPECT_EQ(NameOfLayer(*database, 1), QStringLiteral("New"));
        EXPECT_EQ(NameOfLayer(*database, 2), QStringLiteral("Added"));
        EXPECT_EQ(RawDatabase(path).Text("PRAGMA integrity_check"), "ok");
    }

    // The file as a crash leaves it: with a log whose content is not in the file.
    QString FileWithLog()
    {
        const QString open = MadeFile(QStringLiteral("open.ovl"), 3);
        {
            const auto database = SqliteLayerDatabase::Open(open);
            database->Execute(QStringLiteral("UPDATE Layers SET Name = 'Late'"));
            FileWith(BytesOf(open), m_name);
            FileWith(BytesOf(open + QStringLiteral("-wal")), m_name + QStringLiteral("-wal"));
        }
        EXPECT_TRUE(QFile::remove(open));
        return PathOf(m_name);
    }

    // The file as a crash leaves it: with half a transaction, and the journal that takes it back.
    QString FileWithHotJournal()
    {
        const QString open = MadeFile(QStringLiteral("open.ovl"), 300);
        {
            RawDatabase database(open);
            database.Run("PRAGMA journal_mode = DELETE; PRAGMA cache_size = 5; BEGIN;"
                         " UPDATE Layers SET Name = hex(zeroblob(2000))");
            FileWith(BytesOf(open), m_name);
            FileWith(BytesOf(open + QStringLiteral("-journal")), m_name + QStringLiteral("-journal"));
            database.Run("ROLLBACK");
        }
        EXPECT_TRUE(QFile::remove(open));
        return PathOf(m_name);
    }

    const QString m_name = QStringLiteral("map.ovl");
    std::unique_ptr<SqliteLayerDatabase> m_new = SqliteLayerDatabase::CreateInMemory();
};

} // namespace

TEST_F(NewLayerFileTest, WithoutRoomTheOldFileStaysAndNothingIsLeft)
{
    const QString path = MadeFile();
    const QByteArray old = BytesOf(path);
    const auto check = [&] {
        EXPECT_TRUE(BytesOf(path) == old);
        EXPECT_EQ(FilesThere(), QStringList{m_name});
    };
    TryWithGrowingRoom([&] { Replace(path); }, check);
    ExpectNew(path);
}

TEST_F(NewLayerFileTest, WithoutRoomNoFileIsCreated)
{
    const QString path = PathOf(m_name);
    TryWithGrowingRoom(
        [&] { SqliteLayerDatabase::Create(path); }, [&] { EXPECT_EQ(FilesThere(), QStringList()); });
    EXPECT_FALSE(SqliteLayerDatabase::Open(path)->IsReadOnly());
    EXPECT_EQ(FilesThere(), QStringList{m_name});
}

TEST_F(NewLayerFileTest, WhatTheFillerRaisesLeavesTheOldFile)
{
    const QString path = MadeFile();
    const QByteArray old = BytesOf(path);
    const auto fail
        = [](std::unique_ptr<ILayerStore> store) { store->Execute(QStringLiteral("no statement")); };
    EXPECT_NE(ErrorOf([&] { SqliteLayerDatabase::Make(path, IfExists::Replace, fail); }), 0);
    EXPECT_EQ(BytesOf(path), old);
    EXPECT_EQ(FilesThere(), QStringList{m_name});
}

TEST_F(NewLayerFileTest, AFailureLeavesTheLogOfTheOldFile)
{
    const QString path = FileWithLog();
    const QByteArray old = BytesOf(path);
    const QByteArray log = BytesOf(path + QStringLiteral("-wal"));
    EXPECT_NE(ErrorWithRoom(5000, [&] { Replace(path); }), 0);
    EXPECT_TRUE(BytesOf(path) == old);
    EXPECT_TRUE(BytesOf(path + QStringLiteral("-wal")) == log);
    EXPECT_EQ(FilesThere(), QStringList({m_name, m_name + QStringLiteral("-wal")}));
}

TEST_F(NewLayerFileTest, TheLogOfTheOldFileIsNotAppliedToTheNewOne)
{
    const QString path = FileWithLog();
    Replace(path);
    ExpectNew(path);
}

TEST_F(NewLayerFileTest, AFailureLeavesTheHotJournalOfTheOldFile)
{
    const QString path = FileWithHotJournal();
    const QByteArray old = BytesOf(path);
    const QByteArray journal = BytesOf(path + QStringLiteral("-journal"));
    EXPECT_GT(journal.size(), 0);
    EXPECT_NE(ErrorWithRoom(5000, [&] { Replace(path); }), 0);
    EXPECT_TRUE(BytesOf(path) == old);
    EXPECT_TRUE(BytesOf(path + QStringLiteral("-journal")) == journal);
}

TEST_F(NewLayerFileTest, AHotJournalOfTheOldFileIsNotAppliedToTheNewOne)
{
    const QString path = FileWithHotJournal();
    Replace(path);
    ExpectNew(path);
}

TEST_F(NewLayerFileTest, AJournalWithoutItsFileIsNotAppliedToANewFile)
{
    const QString path = FileWithHotJournal();
    ASSERT_TRUE(QFile::remove(path));
    SqliteLayerDatabase::Create(path);
    EXPECT_EQ(FilesThere(), QStringList{m_name});
    EXPECT_EQ(RawDatabase(path).Text("SELECT count(*) FROM Layers"), "0");
}

TEST_F(NewLayerFileTest, AFileThatIsNoDatabaseIsReplacedWithWhatIsBesideIt)
{
    const QString path = FileWith("a shopping list", m_name);
    FileWith("left behind", m_name + QStringLiteral("-wal"));
    Replace(path);
    ExpectNew(path);
}

TEST_F(NewLayerFileTest, WhatACrashLeftOfANewFileIsRemoved)
{
    for (const char* suffix : {".part", ".part-wal", ".part-shm", ".part-journal"})
        FileWith("half a file", m_name + QLatin1String(suffix));
    Replace(PathOf(m_name));
    ExpectNew(PathOf(m_name));
}

TEST_F(NewLayerFileTest, AFileThatAnotherProgramIsMakingForThePlaceIsLeftAlone)
{
    const auto other = SqliteLayerDatabase::Create(PathOf(m_name + QStringLiteral(".part")));
    EXPECT_EQ(ErrorOf([&] { Replace(PathOf(m_name)); }), LockedError);
    AddLayer(*other, 1, QStringLiteral("Other"));
    EXPECT_EQ(NameOfLayer(*SqliteLayerDatabase::Open(other->Path()), 1), QStringLiteral("Other"));
}

TEST_F(NewLayerFileTest, AFileThatIsOpenedMeanwhileIsNotReplaced)
{
    const QString path = MadeFile();
    std::unique_ptr<SqliteLayerDatabase> late;
    const auto openLate
        = [&](const std::unique_ptr<ILayerStore>&) { late = SqliteLayerDatabase::Open(path); };
    EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Make(path, IfExists::Replace, openLate); }), LockedError);
    EXPECT_EQ(NameOfLayer(*late, 1), QStringLiteral("Layer 1"));
}

TEST_F(NewLayerFileTest, AFileThatAppearsMeanwhileIsNotReplacedUnlessWanted)
{
    const auto appear = [this](const std::unique_ptr<ILayerStore>&) { FileWith("precious", m_name); };
    EXPECT_EQ(
        ErrorOf([&] { SqliteLayerDatabase::Make(PathOf(m_name), IfExists::Refuse, appear); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(BytesOf(PathOf(m_name)), QByteArray("precious"));
    EXPECT_EQ(FilesThere(), QStringList{m_name});
}

TEST_F(NewLayerFileTest, ErrorsNameThePlaceOfTheFile)
{
    for (const qint64 room : {0, 5000, 20000, 40000}) {
        const FileSizeLimit limit(room);
        const QString text
            = DescriptionOf([&] { SqliteLayerDatabase::Make(PathOf(m_name), IfExists::Refuse); });
        EXPECT_TRUE(text.isEmpty() || text.contains(PathOf(m_name))) << qPrintable(text);
        EXPECT_FALSE(text.contains(QStringLiteral(".part"))) << qPrintable(text);
    }
}

TEST_F(NewLayerFileTest, AnEmptyLogThatCannotBeRemovedIsNotLeft)
{
    const QString path = PathOf(m_name);
    FailingFiles files;
    int number = 0;
    do {
        QFile::remove(path);
        files.Fail({.calls = FailingFiles::Delete, .number = ++number});
        const int error = ErrorOf([&] { Replace(path); });
        files.Heal();
        EXPECT_EQ(FilesThere(), error == 0 ? QStringList{m_name} : QStringList()) << files.FirstFailure();
    } while (files.HasFailed());
    EXPECT_GT(number, 1) << "nothing failed";
}

} // namespace Orvane::Testing
