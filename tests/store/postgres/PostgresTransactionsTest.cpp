// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/StoreTable.h"
#include "store/postgres/ProxiedMapTest.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Transaction.h>

#include <functional>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto Locked = int(ErrorNumber::DatabaseLocked);

class PostgresTransactionsTest : public ProxiedMapTest
{
protected:
    // The error of adding to the Code of layer 1, which somebody changes after the caller has read it.
    int ErrorOfAdding(ILayerStore& store, const std::function<qint32(IRecordset& layers)>& read)
    {
        const Transaction transaction(store);
        const auto layers = Sought(store, 1);
        const qint32 code = read(*layers);
        Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 1");
        layers->Edit();
        layers->SetField("Code", code + 5);
        return ErrorOf([&] { layers->Update(); });
    }
};

} // namespace

TEST_F(PostgresTransactionsTest, ARefusedStatementLeavesTheTransactionAsItWas)
{
    const auto store = Opened();
    {
        Transaction outer(*store);
        SetCode(*store, 1, 5);
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "SELECT nonsense FROM Layers"); }), Failure);
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "INSERT INTO Layers (LayerID) VALUES (1)"); }), Failure);
        {
            Transaction inner(*store);
            EXPECT_EQ(ErrorOf([&] { SetCode(*store, 2, QStringLiteral("red")); }), typeMismatchError);
            SetCode(*store, 2, 6);
            inner.Commit();
        }
        outer.Commit();
    }
    EXPECT_EQ(CodeOf(*store, 1), 5);
    EXPECT_EQ(CodeOf(*store, 2), 6);
}

TEST_F(PostgresTransactionsTest, ATransactionReadsOneStateUntilItWrites)
{
    const auto store = Opened();
    Transaction transaction(*store);
    EXPECT_EQ(CodeOf(*store, 1), 0);
    Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 1");
    EXPECT_EQ(CodeOf(*store, 1), 0);
    SetCode(*store, 2, 5);
    EXPECT_EQ(CodeOf(*store, 1), 7);
}

TEST_F(PostgresTransactionsTest, ARowThatSomebodyChangedSinceTheTransactionWroteIsLocked)
{
    const auto store = Opened();
    store->BeginTrans();
    SetCode(*store, 1, 5);
    EXPECT_EQ(CodeOf(*store, 1), 5); // so that the server has got it
    Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 2");
    SetCode(*store, 2, 5);
    EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), Locked);
    store->Rollback();
    EXPECT_EQ(CodeOf(*store, 1), 0);
    EXPECT_EQ(CodeOf(*store, 2), 7);
}

TEST_F(PostgresTransactionsTest, EditsThatSomebodyOvertakesInOtherColumnsAreStoredByTheCommit)
{
    const auto store = Opened();
    {
        Transaction transaction(*store);
        SetCode(*store, 1, 5);
        SetCode(*store, 2, 6);
        Owner().Run("UPDATE Layers SET Priority = 7");
        transaction.Commit();
    }
    EXPECT_EQ(
        Owner().Rows("SELECT Code, Priority FROM Layers ORDER BY LayerID"),
        (std::vector<std::string>{"5|7", "6|7"}));
}

TEST_F(PostgresTransactionsTest, NoEditOverwritesWhatSomebodyStoredInItsColumnMeanwhile)
{
    const auto store = Opened();
    const auto edit = [&] {
        Transaction transaction(*store);
        SetCode(*store, 1, 5);
        SetCode(*store, 2, 6);
        if (CodeOf(*PostgresLayerDatabase::Open(SharedServer().Place(m_schema)), 2) == 0)
            Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 2");
        transaction.Commit();
    };
    EXPECT_EQ(ErrorOf(edit), Locked);
    EXPECT_EQ(CodeOf(*store, 1), 0);
    EXPECT_EQ(CodeOf(*store, 2), 7);
    EXPECT_EQ(ErrorOf(edit), 0) << "once the other value was read";
    EXPECT_EQ(CodeOf(*store, 2), 6);
}

TEST_F(PostgresTransactionsTest, AnEditOfARowThatThisTransactionHasDeletedIsRefusedAtOnce)
{
    const auto store = Opened();
    Transaction transaction(*store);
    const auto layers = Sought(*store, 1);
    layers->Edit();
    layers->SetField("Code", 5);
    store->Send(QStringLiteral("DELETE FROM Layers WHERE LayerID = 1"));
    EXPECT_EQ(ErrorOf([&] { layers->Update(); }), Failure);
    transaction.Commit();
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers"), "1");
}

TEST_F(PostgresTransactionsTest, AnEditThatSomebodyOvertakesIsBegunAgain)
{
    const auto store = Opened();
    Transaction transaction(*store);
    const auto layers = Sought(*store, 1);
    layers->Edit();
    layers->SetField("Code", ToInt32(layers->Field("Code")) + 5);
    Owner().Run("UPDATE Layers SET Priority = 7 WHERE LayerID = 1");
    layers->Update();
    EXPECT_EQ(ToInt32(layers->Field("Priority")), 7);
    transaction.Commit();
    EXPECT_EQ(CodeOf(*store, 1), 5);
}

TEST_F(PostgresTransactionsTest, AnEditOfARowThatWasOnlySoughtBeforeSomebodyChangedItSeesTheChange)
{
    const auto store = Opened();
    Transaction transaction(*store);
    const auto layers = Sought(*store, 1);
    Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 1");
    layers->Edit();
    layers->SetField("Code", ToInt32(layers->Field("Code")) + 5);
    layers->Update();
    transaction.Commit();
    EXPECT_EQ(CodeOf(*store, 1), 12);
}

TEST_F(PostgresTransactionsTest, AnEditOfWhatSomebodyChangedSinceItWasReadIsRefused)
{
    const auto store = Opened();
    const auto read = [](IRecordset& layers) { return ToInt32(layers.Field("Code")); };
    EXPECT_EQ(ErrorOfAdding(*store, read), Locked);
    EXPECT_EQ(CodeOf(*store, 1), 7);
}

TEST_F(PostgresTransactionsTest, AnEditOfWhatSomebodyChangedSinceAnotherCursorReadItIsRefused)
{
    const auto store = Opened();
    const auto read = [&](IRecordset& /*layers*/) { return CodeOf(*store, 1); };
    EXPECT_EQ(ErrorOfAdding(*store, read), Locked);
}

TEST_F(PostgresTransactionsTest, AnEditOfWhatSomebodyChangedSinceAQueryReadItIsRefused)
{
    const auto store = Opened();
    const auto read = [&](IRecordset& /*layers*/) {
        return ToInt32(store->OpenQuery("SELECT Code FROM Layers WHERE LayerID = 1")->Field("Code"));
    };
    EXPECT_EQ(ErrorOfAdding(*store, read), Locked);
}

TEST_F(PostgresTransactionsTest, AStatementThatMayComeOfWhatWasReadIsNotRepeated)
{
    const auto store = Opened();
    store->BeginTrans();
    Sought(*store, 2)->Edit(); // from here on one state is read and written
    EXPECT_EQ(CodeOf(*store, 1), 0);
    Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 1");
    const auto write = [&] { Execute(*store, "UPDATE Layers SET Code = 0 + 5 WHERE LayerID = 1"); };
    EXPECT_EQ(ErrorOf(write), Locked);
    store->Rollback();
    EXPECT_EQ(CodeOf(*store, 1), 7);
}

TEST_F(PostgresTransactionsTest, ACutTransactionIsLostUntilItIsRolledBack)
{
    const auto store = Opened();
    store->BeginTrans();
    SetCode(*store, 1, 5);
    m_proxy->CutNow();
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_EQ(ErrorOf([&] { SetCode(*store, 2, 5); }), Lost);
    EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), Lost);
    store->Rollback();
    EXPECT_EQ(CodeOf(*store, 1), 0);
    SetCode(*store, 1, 6);
    EXPECT_EQ(CodeOf(*store, 1), 6);
}

TEST_F(PostgresTransactionsTest, SentStatementsTakeOneRoundTripHoweverManyTheyAre)
{
    const auto store = Opened();
    m_proxy->ForgetRoundTrips();
    {
        Transaction transaction(*store);
        for (qint32 id = 10; id < 110; ++id)
            store->Send(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (?1)"), {id});
        transaction.Commit();
    }
    EXPECT_EQ(m_proxy->RoundTrips(), 1);
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers"), "102");
}

TEST_F(PostgresTransactionsTest, SentStatementsShowAtOnceAndGoWithTheirLevel)
{
    const auto store = Opened();
    {
        Transaction outer(*store);
        store->Send(QStringLiteral("UPDATE Layers SET Code = 1"));
        {
            Transaction inner(*store);
            store->Send(QStringLiteral("UPDATE Layers SET Code = 2"));
        }
        EXPECT_EQ(CodeOf(*store, 1), 1);
        {
            Transaction inner(*store);
            store->Send(QStringLiteral("UPDATE Layers SET Code = 3 WHERE LayerID = 1"));
            EXPECT_EQ(CodeOf(*store, 1), 3);
            store->Send(QStringLiteral("UPDATE Layers SET Code = 4 WHERE LayerID = 2"));
        }
        EXPECT_EQ(CodeOf(*store, 1), 1);
        {
            Transaction inner(*store);
            store->Send(QStringLiteral("UPDATE Layers SET Code = 5 WHERE LayerID = 2"));
            inner.Commit();
        }
        outer.Commit();
    }
    EXPECT_EQ(CodeOf(*store, 1), 1);
    EXPECT_EQ(CodeOf(*store, 2), 5);
}

TEST_F(PostgresTransactionsTest, ASentStatementThatIsRefusedLosesTheTransaction)
{
    const auto store = Opened();
    store->BeginTrans();
    store->Send(QStringLiteral("UPDATE Layers SET Code = 5"));
    store->Send(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (1)"));
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Failure);
    EXPECT_EQ(ErrorOf([&] { Execute(*store, "UPDATE Layers SET Code = 6"); }), Failure);
    EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), Failure);
    store->Rollback();
    EXPECT_EQ(CodeOf(*store, 1), 0);
}

TEST_F(PostgresTransactionsTest, ACommitWhoseSentStatementIsRefusedStoresNothing)
{
    const auto store = Opened();
    store->BeginTrans();
    store->Send(QStringLiteral("UPDATE Layers SET Code = 5"));
    store->Send(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (1)"));
    EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), Failure);
    store->Rollback();
    EXPECT_EQ(CodeOf(*store, 1), 0);
    SetCode(*store, 1, 6);
    EXPECT_EQ(CodeOf(*store, 1), 6);
}

TEST_F(PostgresTransactionsTest, SentStatementsAreRecorded)
{
    const auto store = Opened();
    Transaction transaction(*store);
    store->Send(QStringLiteral("UPDATE Layers SET Code = 5 WHERE LayerID = 1"));
    const auto recorder = store->RecordChanges();
    store->Send(QStringLiteral("UPDATE Layers SET Code = 6 WHERE LayerID = 2"));
    const Changeset changes = recorder->Changes();
    transaction.Commit();
    ASSERT_TRUE(store->Apply(changes.Inverted()).has_value());
    EXPECT_EQ(CodeOf(*store, 1), 5);
    EXPECT_EQ(CodeOf(*store, 2), 0);
}

TEST_F(PostgresTransactionsTest, ARefusedStatementDoesNotRepeatWhatWasSentBefore)
{
    const auto store = Opened();
    Transaction transaction(*store);
    store->Send(QStringLiteral("UPDATE Layers SET Code = Code + 1"));
    EXPECT_EQ(ErrorOf([&] { Execute(*store, "SELECT nonsense FROM Layers"); }), Failure);
    transaction.Commit();
    EXPECT_EQ(CodeOf(*store, 1), 1);
}

TEST_F(PostgresTransactionsTest, TablesThatWereRolledBackAreNotThere)
{
    const auto store = Opened();
    {
        Transaction transaction(*store);
        store->PrepareTable(
            {QStringLiteral("Notes"), {{QStringLiteral("ID"), StoreType::Whole}}, {QStringLiteral("ID")}});
        EXPECT_TRUE(store->HasTable(QStringLiteral("notes")));
    }
    EXPECT_FALSE(store->HasTable(QStringLiteral("Notes")));
}

TEST_F(PostgresTransactionsTest, UpdatesThatWereNotSentShowInAllCursors)
{
    const auto store = Opened();
    Transaction transaction(*store);
    const auto first = Sought(*store, 1);
    const auto second = Sought(*store, 1);
    first->Edit();
    first->SetField("Code", 5);
    first->SetField("Visible", false);
    first->Update();
    EXPECT_EQ(ToInt32(second->Field("Code")), 5);
    second->Edit();
    second->SetField("Code", ToInt32(second->Field("Code")) + 1);
    second->Update();
    EXPECT_EQ(CodeOf(*store, 1), 6);
    EXPECT_EQ(ToInt32(first->Field("Code")), 6);
    EXPECT_FALSE(ToBoolean(first->Field("Visible")));
    transaction.Commit();
    EXPECT_EQ(Owner().Text("SELECT Code FROM Layers WHERE LayerID = 1"), "6");
}

TEST_F(PostgresTransactionsTest, AnUpdateOfAnOuterLevelShowsAfterAnInnerOneWasUndone)
{
    const auto store = Opened();
    Transaction outer(*store);
    SetCode(*store, 1, 5);
    {
        Transaction inner(*store);
        SetCode(*store, 2, 6);
    }
    EXPECT_EQ(ToInt32(Sought(*store, 1)->Field("Code")), 5);
    EXPECT_EQ(ToInt32(Sought(*store, 2)->Field("Code")), 0);
    outer.Commit();
    EXPECT_EQ(CodeOf(*store, 1), 5);
    EXPECT_EQ(CodeOf(*store, 2), 0);
}

TEST_F(PostgresTransactionsTest, EachReadingOfARowThatWasDeletedIsReported)
{
    const auto store = Opened();
    const auto layers = Sought(*store, 1);
    Execute(*store, "DELETE FROM Layers WHERE LayerID = 1");
    for (int attempt = 0; attempt < 2; ++attempt)
        EXPECT_EQ(ErrorOf([&] { layers->Field("Code"); }), Failure);
}

TEST_F(PostgresTransactionsTest, AServerThatIsLostBeforeTheCommitStoresNothing)
{
    const auto store = Opened();
    const auto edit = [&] {
        Transaction transaction(*store);
        SetCode(*store, 1, 5);
        SetCode(*store, 2, 6);
        m_proxy->CutAt("COMMIT", CuttingProxy::Cut::BeforeIt);
        transaction.Commit();
    };
    EXPECT_EQ(ErrorOf(edit), Lost);
    EXPECT_EQ(Owner().Text("SELECT sum(Code) FROM Layers"), "0");
    m_proxy->Restore();
    SetCode(*store, 1, 5);
    EXPECT_EQ(CodeOf(*store, 1), 5);
}

TEST_F(PostgresTransactionsTest, BeginAfterACutThatWasTold)
{
    const auto store = Opened();
    m_proxy->CutNow();
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost);
    Transaction transaction(*store);
    SetCode(*store, 1, 5);
    transaction.Commit();
    EXPECT_EQ(CodeOf(*store, 1), 5);
}

} // namespace Orvane::Testing
