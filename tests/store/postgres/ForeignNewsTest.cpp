// SPDX-License-Identifier: MIT
#include "store/IChangeNews.h"
#include "store/postgres/MapTest.h"
#include "store/postgres/PostgresLayerDatabase.h"
#include "store/postgres/maps/MapPresence.h"
#include "support/CuttingProxy.h"
#include "support/Errors.h"

#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QUrl>

#include <functional>
#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const auto Lost = int(ErrorNumber::ConnectionLost);

// Lets the event loop run until something is so; false if it does not become so.
bool Becomes(const std::function<bool()>& isSo)
{
    const QDeadlineTimer end(20000);
    while (!isSo() && !end.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    return isSo();
}

/// A map that two programs have open. The network of one of them can be cut.
class ForeignNewsTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("INSERT INTO Layers (LayerID, Name) VALUES (1, 'Roads'), (2, 'Rivers')");
        m_proxy = std::make_unique<CuttingProxy>(SharedServer().Socket());
        m_store = PostgresLayerDatabase::Open(Place(m_proxy->Folder()));
        m_other = PostgresLayerDatabase::Open(Place(SharedServer().Folder()));
        m_store->News()->SetListener(
            {[this](const ForeignChange& change) {
                 ++m_changes;
                 m_change.layerIDs += change.layerIDs;
                 m_change.all |= change.all;
             },
             [this] { ++m_states; }});
    }
    void TearDown() override
    {
        m_store.reset();
        m_other.reset();
        MapTest::TearDown();
    }

    QString Place(const QString& folder, const QString& role = QStringLiteral("orvane")) const
    {
        return QStringLiteral("postgresql://%1@/postgres?host=%2&schema=%3")
            .arg(role, folder, QString::fromUtf8(QUrl::toPercentEncoding(m_schema)));
    }
    static void SetCode(ILayerStore& store, qint32 layer, int code)
    {
        store.Execute(QStringLiteral("UPDATE Layers SET Code = ?1 WHERE LayerID = ?2"), {code, layer});
    }
    IChangeNews& News() { return *m_store->News(); }
    bool IsReached() { return News().State() == IChangeNews::Link::Present; }
    // Whatever happened before it is known then.
    void HearLast()
    {
        SetCode(*m_other, 2, ++m_code);
        EXPECT_TRUE(Becomes([this] { return m_change.layerIDs.contains(2) || m_change.all; }));
    }

    std::unique_ptr<CuttingProxy> m_proxy;
    std::unique_ptr<PostgresLayerDatabase> m_store;
    std::unique_ptr<PostgresLayerDatabase> m_other;
    ForeignChange m_change; // all that were told
    int m_changes = 0;
    int m_states = 0;
    int m_code = 100;
};

} // namespace

TEST_F(ForeignNewsTest, TellsWhichLayersSomebodyElseChanges)
{
    SetCode(*m_other, 1, 5);
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(1));
    EXPECT_FALSE(m_change.all);
}

TEST_F(ForeignNewsTest, TellsWhatOtherProgramsChange)
{
    Owner().Run("UPDATE Layers SET Code = 3");
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(1, 2));
}

TEST_F(ForeignNewsTest, TellsATransactionOnceAndOnlyWhenItIsStored)
{
    {
        Transaction undone(*m_other);
        SetCode(*m_other, 1, 4);
    }
    {
        Transaction transaction(*m_other);
        SetCode(*m_other, 2, 5);
        SetCode(*m_other, 2, 6);
        transaction.Commit();
    }
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
    EXPECT_EQ(m_changes, 1);
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(2));
}

TEST_F(ForeignNewsTest, OnesOwnChangesAreNoNews)
{
    SetCode(*m_store, 1, 5);
    HearLast();
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(2));
}

TEST_F(ForeignNewsTest, HearsWhatCameWithTheAnswerToAnotherQuestion)
{
    SetCode(*m_other, 1, 5);
    m_store->OpenRecordset(QStringLiteral("SELECT * FROM Layers"));
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(1));
}

TEST_F(ForeignNewsTest, ChangesOfGroupsStandForEverything)
{
    m_other->Execute(QStringLiteral("INSERT INTO LayerGroups (ID, Name) VALUES (1, 'Water')"));
    EXPECT_TRUE(Becomes([this] { return m_change.all; }));
}

TEST_F(ForeignNewsTest, TellsNothingWithinATransaction)
{
    {
        Transaction transaction(*m_store);
        m_store->OpenRecordset(QStringLiteral("SELECT * FROM Layers"));
        SetCode(*m_other, 1, 5);
        for (int turn = 0; turn < 20; ++turn)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        EXPECT_EQ(m_changes, 0);
    }
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
}

TEST_F(ForeignNewsTest, NamesTheOthersWhoHaveTheMapOpen)
{
    EXPECT_THAT(News().Users(), ElementsAre(QStringLiteral("orvane")));
    Owner().Run(
        "CREATE ROLE \"Ida\" LOGIN; GRANT USAGE ON SCHEMA " + QuotedName(m_schema)
        + " TO \"Ida\"; GRANT SELECT ON ALL TABLES IN SCHEMA " + QuotedName(m_schema) + " TO \"Ida\"");
    {
        const auto ida = PostgresLayerDatabase::Open(Place(SharedServer().Folder(), QStringLiteral("Ida")));
        ida->News()->SetListener({});
        EXPECT_TRUE(Becomes([this] { return News().Users().size() == 2; }));
        EXPECT_THAT(ida->News()->Users(), ElementsAre(QStringLiteral("orvane")));
    }
    EXPECT_TRUE(Becomes([this] { return News().Users().size() == 1; }));
    EXPECT_EQ(m_states, 2);
    Owner().Run("DROP OWNED BY \"Ida\"; DROP ROLE \"Ida\"");
}

TEST_F(ForeignNewsTest, AfterACutTellsWhatWasMissed)
{
    m_proxy->Refuse();
    EXPECT_TRUE(Becomes([this] { return !IsReached(); }));
    SetCode(*m_other, 1, 5);
    m_proxy->Restore();
    EXPECT_TRUE(Becomes([this] { return m_changes > 0; }));
    EXPECT_TRUE(IsReached());
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(1));
    EXPECT_GE(m_states, 2);
    HearLast();
}

TEST_F(ForeignNewsTest, AfterACutWithoutNewsTellsNone)
{
    m_proxy->CutNow();
    EXPECT_TRUE(Becomes([this] { return m_states >= 2 && IsReached(); }));
    HearLast();
    EXPECT_THAT(m_change.layerIDs, UnorderedElementsAre(2));
    EXPECT_FALSE(m_change.all);
}

TEST_F(ForeignNewsTest, ACutThatACallMeetsFirstIsMendedToo)
{
    m_proxy->CutNow();
    EXPECT_EQ(ErrorOf([this] { SetCode(*m_store, 1, 5); }), Lost);
    SetCode(*m_store, 1, 6); // connects again by itself
    HearLast();
    EXPECT_TRUE(IsReached());
}

TEST_F(ForeignNewsTest, IsTriedAgainWhenTheUserWantsIt)
{
    m_proxy->Refuse();
    EXPECT_TRUE(Becomes([this] { return m_states >= 3; })) << "lost, trying, lost";
    m_proxy->Restore();
    News().TryAgain();
    EXPECT_TRUE(Becomes([this] { return IsReached(); }));
    HearLast();
}

TEST_F(ForeignNewsTest, AMapThatBecameTooNewIsNotUsedAnyMore)
{
    Owner().Run("UPDATE orvane_map SET version = 99");
    Owner().Run("SELECT pg_notify('orvane_' || oid, 'schema') FROM pg_namespace"
                " WHERE nspname = current_schema()");
    EXPECT_TRUE(Becomes([this] { return !IsReached(); }));
    EXPECT_EQ(ErrorOf([this] { SetCode(*m_store, 1, 5); }), int(ErrorNumber::DatabaseTooNew));
    Owner().Run("UPDATE orvane_map SET version = 1");
}

TEST_F(ForeignNewsTest, NonsenseFromStrangersStandsForEverything)
{
    Owner().Run("SELECT pg_notify('orvane_' || oid, 'x y; z') FROM pg_namespace"
                " WHERE nspname = current_schema()");
    EXPECT_TRUE(Becomes([this] { return m_change.all; }));
}

TEST_F(ForeignNewsTest, AStoreThatIsClosedTellsNothing)
{
    SetCode(*m_other, 1, 5);
    m_store.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(m_changes, 0);
}

} // namespace Orvane::Testing
