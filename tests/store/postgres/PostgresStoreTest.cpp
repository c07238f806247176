// SPDX-License-Identifier: MIT
#include "store/postgres/ProxiedMapTest.h"
#include "support/Errors.h"

namespace Orvane::Testing {

namespace {

const auto Failure = int(ErrorNumber::DatabaseFailure);
const auto ReadOnly = int(ErrorNumber::DatabaseReadOnly);

class PostgresStoreTest : public ProxiedMapTest
{
};

} // namespace

TEST_F(PostgresStoreTest, KnowsItsPlaceAndOpensItAgain)
{
    EXPECT_EQ(Opened()->Path(), Place());
    EXPECT_EQ(CodeOf(*PostgresLayerDatabase::Open(Opened()->Path()), 1), 0);
}

TEST_F(PostgresStoreTest, CreatesAMapOnceAndLeavesNothingBehindWhenItCannot)
{
    EXPECT_EQ(ErrorOf([&] { PostgresLayerDatabase::Create(Place()); }), Failure);
    EXPECT_EQ(CodeOf(*Opened(), 1), 0) << "the map is as it was";
}

TEST_F(PostgresStoreTest, AMissingMapAndASchemaThatIsNoneAreTwoErrors)
{
    Owner().Run("CREATE SCHEMA nomap");
    const auto open = [](QString place, const char* schema) {
        place.truncate(place.indexOf(QLatin1String("schema=")));
        return ErrorOf(
            [&] { PostgresLayerDatabase::Open(place + QLatin1String("schema=") + QLatin1String(schema)); });
    };
    EXPECT_EQ(open(Place(), "missing"), Failure);
    EXPECT_EQ(open(Place(), "nomap"), NotAMap);
    EXPECT_EQ(open(Place(), "pg_catalog"), NotAMap);
    Owner().Run("DROP SCHEMA nomap");
}

TEST_F(PostgresStoreTest, AMapOfANewerVersionIsLeftAlone)
{
    Owner().Run("UPDATE orvane_map SET version = 99");
    EXPECT_EQ(ErrorOf([&] { Opened(); }), int(ErrorNumber::DatabaseTooNew));
}

TEST_F(PostgresStoreTest, AMapThatIsNotSoundIsNotOpened)
{
    Owner().Run("CREATE VIEW Sly AS SELECT * FROM Layers");
    EXPECT_EQ(ErrorOf([&] { Opened(); }), NotAMap);
}

TEST_F(PostgresStoreTest, ARoleThatMayOnlyReadGetsAReadOnlyMap)
{
    Owner().Run("CREATE ROLE reader LOGIN");
    Owner().Run("GRANT USAGE ON SCHEMA " + QuotedName(m_schema) + " TO reader");
    Owner().Run("GRANT SELECT ON ALL TABLES IN SCHEMA " + QuotedName(m_schema) + " TO reader");
    {
        const auto store = PostgresLayerDatabase::Open(Place("reader"));
        EXPECT_TRUE(store->IsReadOnly());
        EXPECT_EQ(CodeOf(*store, 1), 0);
        EXPECT_EQ(ErrorOf([&] { Execute(*store, "UPDATE Layers SET Code = 1"); }), ReadOnly);
        EXPECT_EQ(ErrorOf([&] { SetCode(*store, 1, 5); }), ReadOnly);
    }
    Owner().Run("DROP OWNED BY reader");
    Owner().Run("DROP ROLE reader");
}

TEST_F(PostgresStoreTest, ARoleThatMayNotReadTheMapIsToldSo)
{
    Owner().Run("CREATE ROLE stranger LOGIN");
    EXPECT_EQ(ErrorOf([&] { PostgresLayerDatabase::Open(Place("stranger")); }), Failure);
    Owner().Run("DROP ROLE stranger");
}

TEST_F(PostgresStoreTest, AColourMayBeWrittenAsAnUnsignedNumber)
{
    const auto store = Opened();
    const auto layers = Sought(*store, 1);
    layers->Edit();
    layers->SetField("Color", 4294967295.0);
    layers->Update();
    EXPECT_TRUE(layers->Field("Color").IsIdenticalTo(-1));
}

TEST_F(PostgresStoreTest, ACutOutsideATransactionIsToldOnceAndMendedByTheNextCall)
{
    const auto store = Opened();
    const auto layers = Sought(*store, 1);
    m_proxy->CutNow();
    EXPECT_EQ(ErrorOf([&] { SetCode(*store, 1, 5); }), Lost);
    SetCode(*store, 1, 6);
    EXPECT_EQ(ToInt32(layers->Field("Code")), 6) << "cursors stay usable";
}

TEST_F(PostgresStoreTest, WhileTheServerIsAwayEachCallSaysSoAndTheNextOneAfterItIsBackWorks)
{
    const auto store = Opened();
    m_proxy->Refuse();
    for (int attempt = 0; attempt < 3; ++attempt)
        EXPECT_EQ(ErrorOf([&] { CodeOf(*store, 1); }), Lost);
    m_proxy->Restore();
    int error = Lost;
    while (error == Lost)
        error = ErrorOf([&] { CodeOf(*store, 1); });
    EXPECT_EQ(error, 0);
}

TEST_F(PostgresStoreTest, ReopeningTakesFewRoundTrips)
{
    m_proxy->ForgetRoundTrips();
    const auto store = Opened();
    EXPECT_LE(m_proxy->RoundTrips(), 4);
}

TEST_F(PostgresStoreTest, OwnChangesAreNotForeign)
{
    const auto store = Opened();
    const qint64 before = store->ForeignChanges();
    SetCode(*store, 1, 5);
    EXPECT_EQ(store->ForeignChanges(), before);
    Owner().Run("UPDATE Layers SET Code = 7 WHERE LayerID = 1");
    EXPECT_NE(store->ForeignChanges(), before);
}

} // namespace Orvane::Testing
