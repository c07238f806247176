// SPDX-License-Identifier: MIT
#include "store/postgres/RoundTrips.h"

#include "store/ChangeRecorder.h"
#include "store/postgres/MapTest.h"
#include "store/postgres/PostgresLayerDatabase.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/Transaction.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <functional>
#include <numeric>
#include <vector>

namespace Orvane::Testing {

namespace {

constexpr qint32 Group = 1;

/// How often a map of 5,000 layers and 1,500 groups is waited for. Group 1 has every fifth layer.
class RoundTripsTest : public MapTest
{
protected:
    void SetUp() override
    {
        MapTest::SetUp();
        if (IsSkipped())
            return;
        Owner().Run("INSERT INTO Layers (LayerID, Name) SELECT n, 'Layer ' || n FROM generate_series(1, "
                    "5000) AS n");
        Owner().Run("INSERT INTO LayerGroups (ID, Name, GroupOrdering)"
                    " SELECT n, 'Group ' || n, n FROM generate_series(1, 1500) AS n");
        Owner().Run("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
                    " SELECT 1, 5 * n, n FROM generate_series(1, 1000) AS n");
        Owner().Run("INSERT INTO LayerGroupMembers (GroupID, LayerID, Ordering)"
                    " SELECT n, n, 1 FROM generate_series(2, 1500) AS n");
        Owner().Run("ANALYZE");
        m_store = PostgresLayerDatabase::Open(SharedServer().Place(m_schema));
    }
    void TearDown() override
    {
        m_store.reset();
        MapTest::TearDown();
    }

    int RoundTripsOf(const std::function<void()>& act) const { return Testing::RoundTripsOf(*m_store, act); }

    std::unique_ptr<IRecordset> Table(const char* name, const char* index) const
    {
        auto table = m_store->OpenRecordset(QLatin1String(name));
        table->Index(index);
        return table;
    }
    std::unique_ptr<IRecordset> Layers() const { return Table("Layers", "LayerIDIDX"); }
    std::vector<qint32> Members() const
    {
        std::vector<qint32> layerIDs;
        const auto rows = m_store->OpenRecordset(LayerQueries::MemberLayerIDs(Group));
        for (; !rows->AtEOF(); rows->MoveNext())
            layerIDs.push_back(ToInt32(rows->Field("LayerID")));
        return layerIDs;
    }
    void ReadMembers() const
    {
        const Transaction transaction(*m_store);
        const std::vector<qint32> layerIDs = Members();
        const auto layers = Layers();
        for (const qint32 layerID : layerIDs) {
            layers->Seek("=", layerID);
            EXPECT_EQ(ToText(layers->Field("Name")), QStringLiteral("Layer %1").arg(layerID));
        }
    }
    void SetCodes(qint32 code) const
    {
        Transaction transaction(*m_store);
        const std::vector<qint32> layerIDs = Members();
        const auto layers = Layers();
        for (const qint32 layerID : layerIDs) {
            layers->Seek("=", layerID);
            ToInt32(layers->Field("Code"));
            layers->Edit();
            layers->SetField("Code", code + layerID % 2);
            layers->SetField("Visible", layerID % 10 != 0);
            if (layerID % 3 == 0) // other columns than in the other rows
                layers->SetField("MinVisScale", 500.5);
            layers->Update();
        }
        transaction.Commit();
    }

    std::unique_ptr<PostgresLayerDatabase> m_store;
};

} // namespace

TEST_F(RoundTripsTest, AGroupOfAThousandLayersIsReadInTwo)
{
    EXPECT_LE(RoundTripsOf([&] { ReadMembers(); }), 2);
}

TEST_F(RoundTripsTest, AGroupOfAThousandLayersIsStoredInFour)
{
    EXPECT_LE(RoundTripsOf([&] { SetCodes(7); }), 4);
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE Code = 7 + LayerID % 2"), "1000");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE NOT Visible"), "500");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE MinVisScale = 500.5"), "333");
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE Code <> 0 AND LayerID % 5 <> 0"), "0");
}

TEST_F(RoundTripsTest, StoringIsTheSameWhileItIsRecorded)
{
    const auto recorder = m_store->RecordChanges();
    EXPECT_LE(RoundTripsOf([&] { SetCodes(7); }), 4);
    ASSERT_TRUE(m_store->Apply(recorder->Changes().Inverted()));
    EXPECT_EQ(
        Owner().Text("SELECT count(*) FROM Layers WHERE Code = 0 AND Visible AND MinVisScale = 0"), "5000");
}

TEST_F(RoundTripsTest, RecordingBeginsWithoutOneWhereNothingIsWritten)
{
    Transaction transaction(*m_store);
    Members();
    EXPECT_EQ(RoundTripsOf([&] { m_store->RecordChanges(); }), 0);
    const auto recorder = m_store->RecordChanges();
    SetCodes(7);
    transaction.Commit();
    ASSERT_TRUE(m_store->Apply(recorder->Changes().Inverted()));
    EXPECT_EQ(Owner().Text("SELECT count(*) FROM Layers WHERE Code = 0"), "5000");
}

TEST_F(RoundTripsTest, ChosenLayersAreReadAtOnceTheSecondTime)
{
    std::vector<qint32> chosen(1000);
    std::iota(chosen.begin(), chosen.end(), 3000);
    const auto read = [&] {
        const Transaction transaction(*m_store);
        const auto layers = Layers();
        for (const qint32 layerID : chosen)
            layers->Seek("=", layerID);
    };
    EXPECT_LE(RoundTripsOf(read), 7);
    EXPECT_EQ(RoundTripsOf(read), 1);
}

TEST_F(RoundTripsTest, ATransactionThatOnlyReadsEndsWithoutOne)
{
    m_store->BeginTrans();
    Members();
    EXPECT_EQ(RoundTripsOf([&] { m_store->CommitTrans(); }), 0);
    m_store->BeginTrans();
    Members();
    EXPECT_EQ(RoundTripsOf([&] { m_store->Rollback(); }), 0);
    EXPECT_EQ(RoundTripsOf([&] { Members(); }), 1);
}

TEST_F(RoundTripsTest, AnInnerTransactionCostsNone)
{
    Transaction outer(*m_store);
    Members();
    const auto act = [&] {
        Transaction inner(*m_store);
        m_store->Send(QStringLiteral("UPDATE Layers SET Code = 3 WHERE LayerID = 1"));
        inner.Commit();
    };
    EXPECT_EQ(RoundTripsOf(act), 0);
    const auto undo = [&] {
        const Transaction inner(*m_store);
        m_store->Send(QStringLiteral("UPDATE Layers SET Code = 3 WHERE LayerID = 2"));
    };
    EXPECT_EQ(RoundTripsOf(undo), 0);
    outer.Commit();
    EXPECT_EQ(
        Owner().Text("SELECT string_agg(Code::text, ' ' ORDER BY LayerID) FROM Layers WHERE LayerID < 3"),
        "3 0");
}

TEST_F(RoundTripsTest, TheGroupsOfATreeAreReadWithinTheActionThatReadTheTree)
{
    InEventLoop([&] {
        const auto readTree = [&] {
            const auto rows = m_store->OpenRecordset(LayerQueries::Tree({}));
            const auto groups = Table("LayerGroups", "IDIDX");
            for (; !rows->AtEOF(); rows->MoveNext()) {
                const qint32 groupID = ToInt32(rows->Field("GroupID"));
                groups->Seek("=", groupID);
                ASSERT_FALSE(groups->NoMatch());
                EXPECT_EQ(ToText(groups->Field("Name")), QStringLiteral("Group %1").arg(groupID));
            }
        };
        EXPECT_LE(RoundTripsOf(readTree), 3);
    });
}

TEST_F(RoundTripsTest, LayersThatAreReadAgainOneByOneTakeAHandful)
{
    InEventLoop([&] {
        m_store->OpenRecordset(LayerQueries::LayerList());
        const auto readAgain = [&] {
            for (qint32 layerID = 2000; layerID < 3000; ++layerID) {
                const auto row = m_store->OpenRecordset(LayerQueries::OneLayer(layerID));
                ASSERT_FALSE(row->AtEOF());
                EXPECT_EQ(ToInt32(row->Field("LayerID")), layerID);
                row->MoveNext();
                EXPECT_TRUE(row->AtEOF());
            }
        };
        EXPECT_LE(RoundTripsOf(readAgain), 7);
    });
}

TEST_F(RoundTripsTest, TheNextActionReadsAgain)
{
    const auto name = [&] {
        const auto layers = Layers();
        layers->Seek("=", 5);
        return ToText(layers->Field("Name"));
    };
    InEventLoop([&] { EXPECT_EQ(name(), QStringLiteral("Layer 5")); });
    Owner().Run("UPDATE Layers SET Name = 'Roads' WHERE LayerID = 5");
    InEventLoop([&] {
        EXPECT_EQ(name(), QStringLiteral("Roads"));
        EXPECT_EQ(RoundTripsOf([&] { name(); }), 0);
    });
}

TEST_F(RoundTripsTest, AHiddenLayerHasNoRowInTheQueryForIt)
{
    Owner().Run("UPDATE Layers SET Code = -2 WHERE LayerID = 5");
    Owner().Run("UPDATE Layers SET Code = NULL WHERE LayerID = 6");
    Owner().Run("UPDATE Layers SET Code = -1 WHERE LayerID = 7");
    const auto isListed
        = [&](qint32 layerID) { return !m_store->OpenRecordset(LayerQueries::OneLayer(layerID))->AtEOF(); };
    EXPECT_FALSE(isListed(5));
    EXPECT_FALSE(isListed(6));
    EXPECT_TRUE(isListed(7));
    EXPECT_FALSE(isListed(-1));
}

} // namespace Orvane::Testing
