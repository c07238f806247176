// SPDX-License-Identifier: MIT
#include "store/ChangeRecorder.h"
#include "store/postgres/MapTest.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "support/CuttingProxy.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <QUrl>

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto Lost = int(ErrorNumber::ConnectionLost);

/// A map with one layer, whose network is cut while a transaction is committed.
class CommitCutTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("INSERT INTO Layers (LayerID, Name, Code) VALUES (1, 'Roads', 0)");
        m_proxy = std::make_unique<CuttingProxy>(SharedServer().Socket());
        m_store = PostgresLayerDatabase::Open(
            QStringLiteral("postgresql://orvane@/postgres?host=%1&schema=%2")
                .arg(m_proxy->Folder(), QString::fromUtf8(QUrl::toPercentEncoding(m_schema))));
    }
    void TearDown() override
    {
        m_store.reset();
        MapTest::TearDown();
    }

    static void SetCode(ILayerStore& store, qint32 layer, int code)
    {
        store.Execute(QStringLiteral("UPDATE Layers SET Code = ?1 WHERE LayerID = ?2"), {code, layer});
    }
    static qint32 CodeOf(ILayerStore& store, qint32 layer)
    {
        const auto rows
            = store.OpenQuery(QStringLiteral("SELECT Code FROM Layers WHERE LayerID = ?1"), {layer});
        return ToInt32(rows->Field("Code"));
    }

    int ErrorOfWork()
    {
        return ErrorOf([this] {
            m_store->BeginTrans();
            SetCode(*m_store, 1, 5);
            m_store->Execute(QStringLiteral("UPDATE Layers SET Priority = 5"));
            m_store->CommitTrans();
        });
    }
    std::string Stored() const { return Owner().Text("SELECT Code || ' ' || Priority FROM Layers"); }

    // Does the work, which is cut after that many bytes, and again if it failed. False if it took fewer.
    bool WasCut(qint64 bytes, CuttingProxy::Direction direction)
    {
        m_store->Execute(QStringLiteral("UPDATE Layers SET Code = 0, Priority = 0"));
        const int cuts = m_proxy->Cuts();
        m_proxy->CutAfter(bytes, direction);
        const int error = ErrorOfWork();
        m_proxy->Restore();
        EXPECT_EQ(Stored(), error == 0 ? "5 5" : "0 0") << bytes;
        if (error != 0) {
            EXPECT_EQ(error, Lost);
            m_store->Rollback();
            EXPECT_EQ(ErrorOfWork(), 0) << bytes;
            EXPECT_EQ(Stored(), "5 5") << bytes;
        }
        return m_proxy->Cuts() > cuts;
    }

    std::unique_ptr<CuttingProxy> m_proxy;
    std::unique_ptr<PostgresLayerDatabase> m_store;
};

} // namespace

TEST_F(CommitCutTest, ACommitThatArrivedBeforeACutIsStored)
{
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::AfterIt);
    Transaction transaction(*m_store);
    SetCode(*m_store, 1, 5);
    transaction.Commit();
    EXPECT_EQ(m_proxy->Cuts(), 1);
    EXPECT_EQ(CodeOf(*m_store, 1), 5);
    SetCode(*m_store, 1, 6);
    EXPECT_EQ(CodeOf(*m_store, 1), 6);
}

TEST_F(CommitCutTest, ACommitThatDidNotArriveBeforeACutCanBeTriedAgain)
{
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::BeforeIt);
    m_store->BeginTrans();
    SetCode(*m_store, 1, 5);
    EXPECT_EQ(ErrorOf([this] { m_store->CommitTrans(); }), Lost);
    m_store->Rollback();
    EXPECT_EQ(CodeOf(*m_store, 1), 0);
    Transaction transaction(*m_store);
    SetCode(*m_store, 1, 5);
    transaction.Commit();
    EXPECT_EQ(CodeOf(*m_store, 1), 5);
}

TEST_F(CommitCutTest, AfterACutNothingIsStoredBeforeTheRollback)
{
    m_store->BeginTrans();
    SetCode(*m_store, 1, 5);
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::BeforeIt);
    m_store->Send(QStringLiteral("UPDATE Layers SET Priority = 5"));
    EXPECT_EQ(ErrorOf([this] { m_store->CommitTrans(); }), Lost);
    EXPECT_EQ(ErrorOf([this] { SetCode(*m_store, 1, 6); }), Failure);
    EXPECT_EQ(ErrorOf([this] { m_store->CommitTrans(); }), Failure);
    m_store->Rollback();
    EXPECT_EQ(Owner().Text("SELECT Code || ' ' || Priority FROM Layers"), "0 0");
}

TEST_F(CommitCutTest, ACommitThatNobodyKnowsOfIsToldAsLost)
{
    m_store->BeginTrans();
    SetCode(*m_store, 1, 5);
    m_proxy->Refuse();
    EXPECT_EQ(ErrorOf([this] { m_store->CommitTrans(); }), Lost);
    m_proxy->Restore();
    m_store->Rollback();
    int error = Lost;
    while (error == Lost)
        error = ErrorOf([this] { CodeOf(*m_store, 1); });
    EXPECT_EQ(error, 0);
}

TEST_F(CommitCutTest, WhatWasStoredDuringACutIsNotRecorded)
{
    const auto recorder = m_store->RecordChanges();
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::AfterIt);
    {
        Transaction transaction(*m_store);
        SetCode(*m_store, 1, 5);
        transaction.Commit();
    }
    EXPECT_EQ(ErrorOf([&] { recorder->Changes(); }), Failure) << "it cannot be undone";
    const auto next = m_store->RecordChanges();
    SetCode(*m_store, 1, 6);
    EXPECT_EQ(m_store->Apply(next->Changes().Inverted()).has_value(), true);
    EXPECT_EQ(CodeOf(*m_store, 1), 5);
}

TEST_F(CommitCutTest, WhatIsTriedAgainAfterACutIsRecorded)
{
    const auto recorder = m_store->RecordChanges();
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::BeforeIt);
    EXPECT_EQ(ErrorOfWork(), Lost);
    m_store->Rollback();
    EXPECT_EQ(ErrorOfWork(), 0);
    EXPECT_EQ(Stored(), "5 5");
    EXPECT_TRUE(m_store->Apply(recorder->Changes().Inverted()).has_value());
    EXPECT_EQ(Stored(), "0 0");
}

TEST_F(CommitCutTest, ASingleChangeThatIsTriedAgainAfterACutIsRecorded)
{
    const auto recorder = m_store->RecordChanges();
    m_proxy->CutAt("UPDATE", CuttingProxy::Cut::BeforeIt);
    EXPECT_EQ(ErrorOf([this] { SetCode(*m_store, 1, 5); }), Lost);
    SetCode(*m_store, 1, 5);
    EXPECT_TRUE(m_store->Apply(recorder->Changes().Inverted()).has_value());
    EXPECT_EQ(CodeOf(*m_store, 1), 0);
}

TEST_F(CommitCutTest, ASingleChangeThatWasStoredDuringACutIsNotRecorded)
{
    const auto recorder = m_store->RecordChanges();
    m_proxy->CutAt("UPDATE", CuttingProxy::Cut::AfterIt);
    EXPECT_EQ(ErrorOf([this] { SetCode(*m_store, 1, 5); }), Lost);
    EXPECT_EQ(CodeOf(*m_store, 1), 5);
    EXPECT_EQ(ErrorOf([&] { recorder->Changes(); }), Failure);
}

TEST_F(CommitCutTest, SentStatementsOfACommitThatArrivedAreStoredOnce)
{
    m_proxy->CutAt("COMMIT", CuttingProxy::Cut::AfterIt);
    Transaction transaction(*m_store);
    m_store->Send(QStringLiteral("UPDATE Layers SET Code = Code + 1"));
    transaction.Commit();
    EXPECT_EQ(CodeOf(*m_store, 1), 1);
}

// Wherever the network breaks, all of a transaction is stored or nothing, the program knows which, and trying
// again stores it.
TEST_F(CommitCutTest, WhereverACutFallsAllIsStoredOrNothing)
{
    for (const auto direction : {CuttingProxy::Direction::ToServer, CuttingProxy::Direction::ToClient}) {
        qint64 bytes = 1;
        while (WasCut(bytes, direction))
            bytes += 13;
        EXPECT_GT(bytes, 100) << "the work was cut";
    }
}

} // namespace Orvane::Testing
