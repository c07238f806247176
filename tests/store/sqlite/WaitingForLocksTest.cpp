// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <future>
#include <thread>

namespace Orvane::Testing {

namespace {

const auto Locked = int(ErrorNumber::DatabaseLocked);
const auto Lock = "BEGIN IMMEDIATE; UPDATE Layers SET Priority = 9 WHERE LayerID = 2";

/// A layer database with a second program on the same file.
class WaitingForLocks : public StoreTest
{
protected:
    std::unique_ptr<SqliteLayerDatabase> Opened(const StoreOptions& options = {})
    {
        return SqliteLayerDatabase::Open(m_path, OpenMode::ReadWrite, options);
    }

    /// While act runs, the other program keeps its lock until the database begins to run sql.
    void ReleaseAt(SqliteLayerDatabase& database, const QString& sql, const std::function<void()>& act)
    {
        std::promise<void> reached;
        bool told = false;
        std::thread releaser([&] {
            reached.get_future().wait();
            m_other.Run("COMMIT");
        });
        database.SetQueryListener([&](const QString& text) {
            if (!told && text.startsWith(sql)) {
                told = true;
                reached.set_value();
            }
        });
        act();
        database.SetQueryListener({});
        EXPECT_TRUE(told) << "the statement was never run";
        if (!told)
            reached.set_value();
        releaser.join();
    }

    const QString m_path = MadeFile();
    RawDatabase m_other{m_path};
};

} // namespace

TEST_F(WaitingForLocks, AnUpdateGivesUpAfterTheTimeAllowed)
{
    const auto database = Opened(Impatient());
    m_other.Run(Lock);
    EXPECT_EQ(ErrorOf([&] { SetCode(*database, 1, 5); }), Locked);
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 9, QStringLiteral("New")); }), Locked);
}

TEST_F(WaitingForLocks, TheErrorSaysThatAnotherProgramHasTheFile)
{
    const auto database = Opened(Impatient());
    m_other.Run(Lock);
    const QString text = DescriptionOf([&] { SetCode(*database, 1, 5); });
    EXPECT_TRUE(text.contains(QStringLiteral("another program"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("map.ovl"))) << qPrintable(text);
}

TEST_F(WaitingForLocks, AnUpdateIsDoneOnceTheOtherProgramLetsGo)
{
    const auto database = Opened();
    m_other.Run(Lock);
    ReleaseAt(*database, QStringLiteral("UPDATE"), [&] { SetCode(*database, 1, 5); });
    EXPECT_EQ(m_other.Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
    EXPECT_EQ(m_other.Text("SELECT Priority FROM Layers WHERE LayerID = 2"), "9");
}

TEST_F(WaitingForLocks, ReadingIsNeverHeldUp)
{
    const auto database = Opened(Impatient());
    m_other.Run(Lock);
    Transaction transaction(*database);
    EXPECT_EQ(ToInt32(SeekLayer(*database, 2)->Field("Priority")), 0);
    transaction.Commit();
}

TEST_F(WaitingForLocks, AnExclusiveLockKeepsTheFileFromOpening)
{
    RawDatabase exclusive(m_path);
    exclusive.Run("PRAGMA locking_mode = EXCLUSIVE; BEGIN EXCLUSIVE; UPDATE Layers SET Code = 1");
    for (const OpenMode mode : {OpenMode::ReadWrite, OpenMode::ReadOnly})
        EXPECT_EQ(ErrorOf([&] { SqliteLayerDatabase::Open(m_path, mode, Impatient()); }), Locked);
}

TEST_F(WaitingForLocks, ATransactionThatHasReadWaitsForItsFirstWrite)
{
    const auto database = Opened();
    m_other.Run(Lock);
    ReleaseAt(*database, QStringLiteral("BEGIN IMMEDIATE"), [&] {
        Transaction transaction(*database);
        SetCode(*database, 1, 5);
        transaction.Commit();
    });
    EXPECT_EQ(m_other.Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
    EXPECT_EQ(m_other.Text("SELECT Priority FROM Layers WHERE LayerID = 2"), "9");
}

TEST_F(WaitingForLocks, ATransactionThatCannotWriteInTimeIsUndoneWhole)
{
    const auto database = Opened(Impatient());
    m_other.Run(Lock);
    const auto apply = [&] {
        Transaction transaction(*database);
        SetCode(*database, 1, 5);
        transaction.Commit();
    };
    EXPECT_EQ(ErrorOf(apply), Locked);
    m_other.Run("COMMIT");
    EXPECT_EQ(ErrorOf(apply), 0) << "the database must be usable again";
}

TEST_F(WaitingForLocks, NestedTransactionsAreBegunAnewTogether)
{
    const auto database = Opened();
    m_other.Run(Lock);
    ReleaseAt(*database, QStringLiteral("BEGIN IMMEDIATE"), [&] {
        Transaction outer(*database);
        {
            Transaction inner(*database);
            SetCode(*database, 1, 5);
        }
        SetCode(*database, 3, 7);
        outer.Commit();
    });
    EXPECT_EQ(m_other.Text("SELECT group_concat(Code) FROM Layers"), "0,0,7");
}

TEST_F(WaitingForLocks, AnEditSeesWhatTheOtherProgramStoredMeanwhile)
{
    const auto database = Opened();
    Transaction transaction(*database);
    const auto layer = SeekLayer(*database, 2);
    EXPECT_EQ(ToInt32(layer->Field("Priority")), 0);
    m_other.Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    layer->Edit();
    EXPECT_EQ(ToInt32(layer->Field("Priority")), 9);
    layer->SetField("Code", 5);
    layer->Update();
    transaction.Commit();
    EXPECT_EQ(m_other.Text("SELECT Code || ' ' || Priority FROM Layers WHERE LayerID = 2"), "5 9");
}

TEST_F(WaitingForLocks, AnEditOfARowThatTheOtherProgramDeletedIsReported)
{
    const auto database = Opened();
    Transaction transaction(*database);
    const auto layer = SeekLayer(*database, 2);
    m_other.Run("DELETE FROM Layers WHERE LayerID = 2");
    layer->Edit();
    layer->SetField("Code", 5);
    EXPECT_EQ(ErrorOf([&] { layer->Update(); }), int(ErrorNumber::DatabaseFailure));
}

TEST_F(WaitingForLocks, ALoopOverAQueryGoesOnWhenTheTransactionIsBegunAgain)
{
    const auto database = Opened();
    std::vector<qint32> seen;
    Transaction transaction(*database);
    auto rows = database->OpenRecordset(QStringLiteral("SELECT LayerID FROM Layers ORDER BY LayerID"));
    m_other.Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    for (; !rows->AtEOF(); rows->MoveNext()) {
        seen.push_back(ToInt32(rows->Field("LayerID")));
        SetCode(*database, seen.back(), 5);
    }
    rows.reset();
    transaction.Commit();
    EXPECT_EQ(seen, (std::vector<qint32>{1, 2, 3}));
    EXPECT_EQ(m_other.Text("SELECT group_concat(Code || ' ' || Priority) FROM Layers"), "5 0,5 9,5 0");
}

TEST_F(WaitingForLocks, ALoopOverAQueryMayWriteThoughTheOtherProgramWroteMeanwhile)
{
    const auto database = Opened();
    auto rows = database->OpenRecordset(QStringLiteral("SELECT LayerID, Name FROM Layers ORDER BY LayerID"));
    m_other.Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    SetCode(*database, 1, 5);
    rows->MoveNext();
    EXPECT_EQ(ToInt32(rows->Field("LayerID")), 2);
    EXPECT_EQ(ToText(rows->Field("name")), QStringLiteral("Layer 2"));
    EXPECT_EQ(m_other.Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
}

} // namespace Orvane::Testing
