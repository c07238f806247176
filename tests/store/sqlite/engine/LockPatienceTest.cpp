// SPDX-License-Identifier: MIT
#include "store/sqlite/engine/LockPatience.h"

#include "store/ChangeRecorder.h"
#include "store/failing_files/FailingFiles.h"
#include "store/sqlite/StoreTest.h"

#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace Orvane::Testing {

namespace {

const auto Locked = int(ErrorNumber::DatabaseLocked);
const auto Lock = "BEGIN IMMEDIATE; UPDATE Layers SET Priority = 9 WHERE LayerID = 2";
constexpr std::int64_t Limit = 5000; // milliseconds, as in StoreOptions

/// A database whose waits take no time but are added up, with a second program on the same file.
class LockPatienceTest : public StoreTest
{
protected:
    LockPatienceTest() { m_files.SkipSleep(); }

    void SetCode(qint32 code)
    {
        const auto layer = SeekLayer(*m_database, 1);
        layer->Edit();
        layer->SetField("Code", code);
        layer->Update();
    }

    /// How long the act waits for the lock that it does not get.
    std::int64_t WaitOf(const std::function<void()>& act)
    {
        const std::int64_t before = m_files.SleptMilliseconds();
        EXPECT_EQ(ErrorOf(act), Locked);
        return m_files.SleptMilliseconds() - before;
    }
    std::int64_t WaitOfAnEdit()
    {
        return WaitOf([this] { SetCode(5); });
    }

    FailingFiles m_files;
    const QString m_path = MadeFile();
    RawDatabase m_other{m_path};
    const std::unique_ptr<SqliteLayerDatabase> m_database = SqliteLayerDatabase::Open(m_path);
};

} // namespace

TEST_F(LockPatienceTest, AnEditWaitsOnce)
{
    m_other.Run(Lock);
    EXPECT_EQ(WaitOfAnEdit(), Limit);
}

TEST_F(LockPatienceTest, AStatementWaitsOnce)
{
    m_other.Run(Lock);
    EXPECT_EQ(WaitOf([this] { AddLayer(*m_database, 9, QStringLiteral("New")); }), Limit);
}

TEST_F(LockPatienceTest, ATransactionThatBeginsWithAWriteWaitsOnce)
{
    m_other.Run(Lock);
    const auto act = [this] {
        Transaction transaction(*m_database);
        AddLayer(*m_database, 9, QStringLiteral("New"));
        transaction.Commit();
    };
    EXPECT_EQ(WaitOf(act), Limit);
}

TEST_F(LockPatienceTest, ATransactionThatHasReadWaitsOnce)
{
    m_other.Run(Lock);
    const auto act = [this] {
        Transaction transaction(*m_database);
        SetCode(5);
        transaction.Commit();
    };
    EXPECT_EQ(WaitOf(act), Limit);
}

TEST_F(LockPatienceTest, AnUndoWaitsOnce)
{
    const auto recorder = m_database->RecordChanges();
    SetCode(5);
    const Changeset undo = recorder->Changes().Inverted();
    m_other.Run(Lock);
    EXPECT_EQ(WaitOf([&] { m_database->Apply(undo); }), Limit);
}

TEST_F(LockPatienceTest, TheNextAttemptOfTheSameActionIsRefusedAtOnce)
{
    m_other.Run(Lock);
    EXPECT_EQ(WaitOfAnEdit(), Limit);
    EXPECT_EQ(WaitOfAnEdit(), 0);
    EXPECT_EQ(WaitOf([this] { AddLayer(*m_database, 9, QStringLiteral("New")); }), 0);
}

TEST_F(LockPatienceTest, TheNextActionWaitsAgain)
{
    m_other.Run(Lock);
    for (int action = 0; action < 3; ++action) {
        EXPECT_EQ(WaitOfAnEdit(), Limit) << action;
        QCoreApplication::processEvents();
    }
}

TEST_F(LockPatienceTest, WithoutAnEventLoopItWaitsAgainAfterASuccess)
{
    m_other.Run(Lock);
    EXPECT_EQ(WaitOfAnEdit(), Limit);
    m_other.Run("COMMIT");
    SetCode(6);
    m_other.Run(Lock);
    EXPECT_EQ(WaitOfAnEdit(), Limit);
}

TEST_F(LockPatienceTest, InAnEventLoopASuccessDoesNotProlongTheAction)
{
    const auto action = [this] {
        m_other.Run(Lock);
        EXPECT_EQ(WaitOfAnEdit(), Limit);
        m_other.Run("COMMIT");
        SetCode(6);
        m_other.Run(Lock);
        EXPECT_EQ(WaitOfAnEdit(), 0);
    };
    QEventLoop loop;
    QTimer::singleShot(0, &loop, [&] {
        action();
        loop.quit();
    });
    loop.exec();
    EXPECT_EQ(m_other.Text("SELECT Code FROM Layers WHERE LayerID = 1"), "6");
}

TEST_F(LockPatienceTest, WithoutTimeAllowedNothingWaits)
{
    const auto impatient = SqliteLayerDatabase::Open(m_path, OpenMode::ReadWrite, Impatient());
    m_other.Run(Lock);
    EXPECT_EQ(WaitOf([&] { AddLayer(*impatient, 9, QStringLiteral("New")); }), 0);
}

} // namespace Orvane::Testing
