// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/StoreTable.h"
#include "store/any/RecordedRows.h"
#include "store/postgres/ProxiedMapTest.h"
#include "store/postgres/Traps.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Cancellation.h>
#include <OrvaneShellLib/Transaction.h>

#include <chrono>
#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

const auto Locked = int(ErrorNumber::DatabaseLocked);

StoreTable NotesOfOthers()
{
    return {QStringLiteral("Notes"), {{QStringLiteral("ID"), StoreType::Whole}}, {QStringLiteral("ID")}};
}

/// A map of others, who may be hostile, over a network that may fail.
class PostgresFailuresTest : public ProxiedMapTest
{
protected:
    void TearDown() override
    {
        if (m_hasEditor)
            Owner().Run("DROP OWNED BY vera; DROP ROLE vera");
        ProxiedMapTest::TearDown();
    }

    // The role "vera", who may change all rows.
    void MakeEditor()
    {
        m_hasEditor = true;
        const QByteArray schema = QuotedName(m_schema);
        Owner().Run("CREATE ROLE vera LOGIN; GRANT USAGE ON SCHEMA " + schema + " TO vera");
        Owner().Run("GRANT SELECT, INSERT, UPDATE, DELETE ON ALL TABLES IN SCHEMA " + schema + " TO vera");
    }
    // Until something else happens than that the server is away.
    int ErrorOnceBack(ILayerStore& store)
    {
        int error = Lost;
        while (error == Lost)
            error = ErrorOf([&] { CodeOf(store, 1); });
        return error;
    }

private:
    bool m_hasEditor = false;
};

} // namespace

TEST_F(PostgresFailuresTest, OpeningAMapRunsNothingThatSomebodyPutIntoIt)
{
    MakeEditor();
    Traps traps(Owner());
    traps.Lay(m_schema);
    EXPECT_EQ(ErrorOf([&] { PostgresLayerDatabase::Open(Place("vera")); }), NotAMap);
    EXPECT_THAT(traps.Marks(), IsEmpty());
}

TEST_F(PostgresFailuresTest, AMapThatIsNotSoundAnyMoreIsNotUsedAfterReconnecting)
{
    const auto store = Opened();
    Owner().Run("CREATE VIEW sly AS SELECT * FROM Layers");
    m_proxy->CutNow();
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost);
    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), NotAMap);
    Owner().Run("DROP VIEW sly");
    int error = NotAMap;
    while (error == NotAMap)
        error = ErrorOf([&] { SetCode(*store, 1, 5); });
    EXPECT_EQ(error, 0);
    EXPECT_EQ(Owner().Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
}

TEST_F(PostgresFailuresTest, AServerThatIsAwayIsNotAskedAtEachCall)
{
    StoreOptions options;
    options.connectTimeout = 2100ms; // longer than the time between two attempts
    const auto store = PostgresLayerDatabase::Open(Place(), OpenMode::ReadWrite, options);
    m_proxy->CutNow();
    m_proxy->Silence();
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost);
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost) << "this one asked";
    const qint64 sent = m_proxy->Bytes(CuttingProxy::Direction::ToServer);
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost);
    EXPECT_EQ(m_proxy->Bytes(CuttingProxy::Direction::ToServer), sent);
    m_proxy->Restore();
    EXPECT_EQ(ErrorOnceBack(*store), 0);
}

TEST_F(PostgresFailuresTest, ATransactionBeginsAfterAnyNumberOfDifferentStatements)
{
    const auto store = Opened();
    for (int number = 0; number < 300; ++number) {
        Execute(*store, QByteArray("SELECT " + QByteArray::number(number) + " FROM Layers").constData());
        if (number % 100 == 50) {
            Transaction transaction(*store);
            SetCode(*store, 1, number);
            transaction.Commit();
        }
    }
    EXPECT_EQ(CodeOf(*store, 1), 250);
}

TEST_F(PostgresFailuresTest, ARoleThatMayNotRecordStillChangesTheMap)
{
    MakeEditor();
    Owner().Run("REVOKE TEMP ON DATABASE postgres FROM PUBLIC");
    {
        const auto store = PostgresLayerDatabase::Open(Place("vera"));
        const auto recorder = store->RecordChanges();
        EXPECT_EQ(ErrorOf([&] { SetCode(*store, 1, 5); }), 0);
        EXPECT_EQ(
            ErrorOf([&] {
                Transaction transaction(*store);
                SetCode(*store, 2, 6);
                transaction.Commit();
            }),
            0);
        EXPECT_EQ(ErrorOf([&] { recorder->Changes(); }), int(ErrorNumber::DatabaseFailure));
    }
    Owner().Run("GRANT TEMP ON DATABASE postgres TO PUBLIC");
    EXPECT_EQ(Owner().Text("SELECT string_agg(Code::text, ' ' ORDER BY LayerID) FROM Layers"), "5 6");
}

TEST_F(PostgresFailuresTest, WhatFailsAfterACommitIsNoFailedCommit)
{
    const auto store = Opened();
    const auto recorder = store->RecordChanges();
    store->BeginTrans();
    SetCode(*store, 1, 5);
    Execute(*store, "ALTER TABLE Layers ADD COLUMN Later integer");
    m_proxy->CutAt("orvane_names", CuttingProxy::Cut::BeforeIt); // asks what the changed rows are like
    EXPECT_EQ(ErrorOf([&] { store->CommitTrans(); }), 0);
    EXPECT_EQ(m_proxy->Cuts(), 1);
    EXPECT_EQ(Owner().Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
    EXPECT_EQ(ErrorOf([&] { recorder->Changes(); }), int(ErrorNumber::DatabaseFailure));
    EXPECT_EQ(ErrorOnceBack(*store), 0);
}

TEST_F(PostgresFailuresTest, ARecorderThatBeganInALevelThatIsRolledBackHasTheRest)
{
    const auto store = Opened();
    std::unique_ptr<ChangeRecorder> recorder;
    Transaction outer(*store);
    SetCode(*store, 1, 5);
    {
        Transaction inner(*store);
        SetCode(*store, 1, 6);
        SetCode(*store, 1, 7);
        recorder = store->RecordChanges();
        SetCode(*store, 1, 8);
    }
    SetCode(*store, 2, 9);
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 2"));
    outer.Commit();
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 2"));
}

TEST_F(PostgresFailuresTest, AStatementThatIsFasterThanItsCancelIsNotStored)
{
    const auto store = Opened();
    for (int attempt = 0; attempt < 20; ++attempt) {
        store->SetWatcher([looks = 1](double) mutable { return looks-- > 0; });
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "UPDATE Layers SET Code = 5"); }), int(UserCancelled));
        store->SetWatcher({});
        EXPECT_EQ(CodeOf(*store, 1), 0);
    }
}

TEST_F(PostgresFailuresTest, AStatementInATransactionThatIsFasterThanItsCancelEndsTheWork)
{
    const auto store = Opened();
    for (int attempt = 0; attempt < 20; ++attempt) {
        EXPECT_EQ(
            ErrorOf([&] {
                Transaction transaction(*store);
                Execute(*store, "UPDATE Layers SET Code = 5 WHERE LayerID = 1");
                store->SetWatcher([looks = 1](double) mutable { return looks-- > 0; });
                Execute(*store, "UPDATE Layers SET Code = 5 WHERE LayerID = 2");
                transaction.Commit();
            }),
            int(UserCancelled));
        store->SetWatcher({});
        EXPECT_EQ(CodeOf(*store, 1), 0);
    }
}

TEST_F(PostgresFailuresTest, AStatementThatNobodyCancelsIsStoredUnderAWatcher)
{
    const auto store = Opened();
    const auto recorder = store->RecordChanges();
    store->SetWatcher([](double) { return true; });
    Execute(*store, "UPDATE Layers SET Code = 5 WHERE LayerID = 2");
    store->SetWatcher({});
    EXPECT_EQ(Owner().Text("SELECT Code FROM Layers WHERE LayerID = 2"), "5");
    EXPECT_THAT(RowsOf(recorder->Changes()), ElementsAre("Layers updated 2"));
}

// As an administrator does who changes a table, and does not finish.
TEST_F(PostgresFailuresTest, ATableThatSomebodyKeepsForHimselfIsNotWaitedForLong)
{
    StoreOptions options;
    options.busyTimeout = 100ms;
    const auto store = PostgresLayerDatabase::Open(Place(), OpenMode::ReadWrite, options);
    const auto other = Other();
    other->Run("BEGIN; LOCK TABLE Layers IN ACCESS EXCLUSIVE MODE");
    EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Locked);
    EXPECT_EQ(ErrorOf([&] { SetCode(*store, 1, 5); }), Locked);
    EXPECT_EQ(
        ErrorOf([&] {
            Transaction transaction(*store);
            store->Send(QStringLiteral("UPDATE Layers SET Code = 5"));
            transaction.Commit();
        }),
        Locked);
    other->Run("ROLLBACK");
    SetCode(*store, 1, 5);
    EXPECT_EQ(Owner().Text("SELECT Code FROM Layers WHERE LayerID = 1"), "5");
}

TEST_F(PostgresFailuresTest, AMapThatSomebodyKeepsForHimselfIsNotOpened)
{
    const auto other = Other();
    other->Run("BEGIN; LOCK TABLE orvane_map IN ACCESS EXCLUSIVE MODE");
    EXPECT_EQ(ErrorOf([&] { Opened(); }), Locked);
    other->Run("ROLLBACK");
    EXPECT_EQ(ErrorOf([&] { Opened(); }), 0);
}

TEST_F(PostgresFailuresTest, TablesThatAnotherProgramMakesAreFound)
{
    const auto store = Opened();
    const auto other = Opened();
    EXPECT_FALSE(store->HasTable(QStringLiteral("Notes")));
    other->PrepareTable(NotesOfOthers());
    EXPECT_TRUE(store->HasTable(QStringLiteral("Notes")));
    StoreTable wider = NotesOfOthers();
    wider.columns.push_back({QStringLiteral("Text"), StoreType::Text});
    EXPECT_FALSE(store->HasColumn(QStringLiteral("Notes"), QStringLiteral("Text")));
    other->PrepareTable(wider);
    EXPECT_TRUE(store->HasColumn(QStringLiteral("Notes"), QStringLiteral("Text")));
}

TEST_F(PostgresFailuresTest, ATableThatAnotherProgramMakesMeanwhileIsPrepared)
{
    const auto store = Opened();
    const auto other = Opened();
    EXPECT_FALSE(store->HasTable(QStringLiteral("Notes")));
    {
        Transaction transaction(*store);
        EXPECT_EQ(CodeOf(*store, 1), 0) << "from now on new tables are not seen";
        other->PrepareTable(NotesOfOthers());
        EXPECT_EQ(ErrorOf([&] { store->PrepareTable(NotesOfOthers()); }), 0);
        Execute(*store, "INSERT INTO Notes (ID) VALUES (7)");
        transaction.Commit();
    }
    EXPECT_EQ(Owner().Text("SELECT ID FROM Notes"), "7");
}

} // namespace Orvane::Testing
