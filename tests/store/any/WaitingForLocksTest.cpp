// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

#include <OrvaneShellLib/Transaction.h>

namespace Orvane::Testing {

namespace {

const auto Locked = int(ErrorNumber::DatabaseLocked);

/// A layer store that another program uses too.
class WaitingForLocks : public AnyStoreTest
{
protected:
    std::unique_ptr<ILayerStore> Opened(const StoreOptions& options = {})
    {
        return AnyStoreTest::Opened(m_path, OpenMode::ReadWrite, options);
    }

    /// The other program keeps its lock until the store waits for it.
    void LetGoOnceAwaited(ILayerStore& store, const std::function<void()>& act)
    {
        m_maker.CommitOnceAwaited(*m_other, store, act);
    }

    void Lock()
    {
        m_other->BeginWriting();
        m_other->Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    }

    const QString m_path = MadeStore();
    const std::unique_ptr<Stranger> m_other = m_maker.OtherProgram(m_path);
};

} // namespace

TEST_F(WaitingForLocks, AnUpdateGivesUpAfterTheTimeAllowed)
{
    const auto database = Opened(Impatient());
    Lock();
    EXPECT_EQ(ErrorOf([&] { SetCode(*database, 1, 5); }), Locked);
    EXPECT_EQ(ErrorOf([&] { AddLayer(*database, 9, QStringLiteral("New")); }), Locked);
}

TEST_F(WaitingForLocks, TheErrorSaysThatAnotherProgramHasTheFile)
{
    const auto database = Opened(Impatient());
    Lock();
    const QString text = DescriptionOf([&] { SetCode(*database, 1, 5); });
    EXPECT_TRUE(text.contains(QStringLiteral("another program"))) << qPrintable(text);
    EXPECT_TRUE(text.contains(QStringLiteral("map.ovl"))) << qPrintable(text);
}

TEST_F(WaitingForLocks, AnUpdateIsDoneOnceTheOtherProgramLetsGo)
{
    const auto database = Opened();
    Lock();
    LetGoOnceAwaited(*database, [&] { SetCode(*database, 1, 5); });
    EXPECT_EQ(m_other->Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
    EXPECT_EQ(m_other->Text("SELECT Priority FROM Layers WHERE LayerID = 2"), "9");
}

TEST_F(WaitingForLocks, ReadingIsNeverHeldUp)
{
    const auto database = Opened(Impatient());
    Lock();
    Transaction transaction(*database);
    EXPECT_EQ(ToInt32(SeekLayer(*database, 2)->Field("Priority")), 0);
    transaction.Commit();
}

TEST_F(WaitingForLocks, ATransactionThatHasReadWaitsForItsFirstWrite)
{
    const auto database = Opened();
    Lock();
    LetGoOnceAwaited(*database, [&] {
        Transaction transaction(*database);
        SetCode(*database, 1, 5);
        transaction.Commit();
    });
    EXPECT_EQ(m_other->Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
    EXPECT_EQ(m_other->Text("SELECT Priority FROM Layers WHERE LayerID = 2"), "9");
}

TEST_F(WaitingForLocks, ATransactionThatCannotWriteInTimeIsUndoneWhole)
{
    const auto database = Opened(Impatient());
    Lock();
    const auto apply = [&] {
        Transaction transaction(*database);
        SetCode(*database, 1, 5);
        transaction.Commit();
    };
    EXPECT_EQ(ErrorOf(apply), Locked);
    m_other->Run("COMMIT");
    EXPECT_EQ(ErrorOf(apply), 0) << "the database must be usable again";
}

TEST_F(WaitingForLocks, NestedTransactionsAreBegunAnewTogether)
{
    const auto database = Opened();
    Lock();
    LetGoOnceAwaited(*database, [&] {
        Transaction outer(*database);
        {
            Transaction inner(*database);
            SetCode(*database, 1, 5);
        }
        SetCode(*database, 3, 7);
        outer.Commit();
    });
    EXPECT_EQ(m_other->Text("SELECT Code FROM Layers ORDER BY LayerID"), "0,0,7");
}

TEST_F(WaitingForLocks, AnEditSeesWhatTheOtherProgramStoredMeanwhile)
{
    const auto database = Opened();
    Transaction transaction(*database);
    const auto layer = SeekLayer(*database, 2);
    EXPECT_EQ(ToInt32(layer->Field("Priority")), 0);
    m_other->Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    layer->Edit();
    EXPECT_EQ(ToInt32(layer->Field("Priority")), 9);
    layer->SetField("Code", 5);
    layer->Update();
    transaction.Commit();
    EXPECT_EQ(m_other->Text("SELECT Code || ' ' || Priority FROM Layers WHERE LayerID = 2"), "5 9");
}

TEST_F(WaitingForLocks, AnEditOfARowThatTheOtherProgramDeletedIsReported)
{
    const auto database = Opened();
    Transaction transaction(*database);
    const auto layer = SeekLayer(*database, 2);
    m_other->Run("DELETE FROM Layers WHERE LayerID = 2");
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
    m_other->Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    for (; !rows->AtEOF(); rows->MoveNext()) {
        seen.push_back(ToInt32(rows->Field("LayerID")));
        SetCode(*database, seen.back(), 5);
    }
    rows.reset();
    transaction.Commit();
    EXPECT_EQ(seen, (std::vector<qint32>{1, 2, 3}));
    EXPECT_EQ(m_other->Text("SELECT Code || ' ' || Priority FROM Layers ORDER BY LayerID"), "5 0,5 9,5 0");
}

TEST_F(WaitingForLocks, ALoopOverAQueryMayWriteThoughTheOtherProgramWroteMeanwhile)
{
    const auto database = Opened();
    auto rows = database->OpenRecordset(QStringLiteral("SELECT LayerID, Name FROM Layers ORDER BY LayerID"));
    m_other->Run("UPDATE Layers SET Priority = 9 WHERE LayerID = 2");
    SetCode(*database, 1, 5);
    rows->MoveNext();
    EXPECT_EQ(ToInt32(rows->Field("LayerID")), 2);
    EXPECT_EQ(ToText(rows->Field("name")), QStringLiteral("Layer 2"));
    EXPECT_EQ(m_other->Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
}

} // namespace Orvane::Testing
