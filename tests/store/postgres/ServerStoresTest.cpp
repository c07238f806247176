// SPDX-License-Identifier: MIT
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"
#include "store/postgres/RawLink.h"
#include "store/postgres/link/QuotedName.h"
#include "support/Errors.h"
#include "support/PrivateServer.h"

#include <OrvaneShellLib/ValueConversions.h>

#include <gtest/gtest.h>
#include <stdexcept>

namespace Orvane::Testing {
namespace {

/// Maps in the server of this program, opened by their places as maps in files are.
class ServerStoresTest : public testing::Test
{
protected:
    void SetUp() override
    {
        if (!PrivateServer::IsInstalled() && !PrivateServer::IsRequired())
            GTEST_SKIP() << "PostgreSQL's server is not installed.";
        m_place = SharedServer().Place(m_schema, QStringLiteral("orvane"));
    }
    void TearDown() override
    {
        if (!m_place.isEmpty())
            RawLink(SharedServer().Connection())
                .Run("DROP SCHEMA IF EXISTS " + QuotedName(m_schema) + " CASCADE");
    }

    static RawLink Owner() { return RawLink(SharedServer().Connection()); }

    const QString m_schema = QStringLiteral("Old town");
    QString m_place;
};

qint32 LayersIn(ILayerStore& store)
{
    return ToInt32(store.OpenRecordset(QStringLiteral("SELECT count(*) AS N FROM Layers"))->Field("N"));
}

void AddLayer(ILayerStore& store)
{
    store.Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (7, 'Roads')"));
}

TEST_F(ServerStoresTest, AMapThatWasCreatedCanBeOpened)
{
    AddLayer(*LayerStores::Create(m_place));
    const auto store = LayerStores::Open(m_place, OpenMode::ReadOnly);
    EXPECT_TRUE(store->IsReadOnly());
    EXPECT_EQ(LayersIn(*store), 1);
}

TEST_F(ServerStoresTest, AMapThatOneMayNotReadIsSaidToBeSo)
{
    LayerStores::Create(m_place);
    Owner().Run("CREATE ROLE stranger LOGIN");
    const QString error = DescriptionOf(
        [&] { LayerStores::Open(SharedServer().Place(m_schema, QStringLiteral("stranger"))); });
    Owner().Run("DROP ROLE stranger");
    EXPECT_TRUE(error.contains(QStringLiteral("may not read"))) << qPrintable(error);
}

TEST_F(ServerStoresTest, AMapIsMadeWithItsContent)
{
    LayerStores::Make(
        m_place, IfExists::Refuse, [](std::unique_ptr<ILayerStore> store) { AddLayer(*store); });
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 1);
}

TEST_F(ServerStoresTest, AMapThatCannotBeFilledIsNotThereAfterwards)
{
    const auto fill = [](std::unique_ptr<ILayerStore> store) {
        AddLayer(*store);
        throw std::runtime_error("full");
    };
    EXPECT_THROW(LayerStores::Make(m_place, IfExists::Refuse, fill), std::runtime_error);
    EXPECT_EQ(ErrorOf([this] { LayerStores::Open(m_place); }), int(ErrorNumber::DatabaseFailure));
    AddLayer(*LayerStores::Create(m_place));
}

TEST_F(ServerStoresTest, AMapThatIsThereStaysUnlessItMayBeReplaced)
{
    AddLayer(*LayerStores::Create(m_place));
    bool isFilled = false;
    const auto fill = [&](const std::unique_ptr<ILayerStore>&) { isFilled = true; };
    EXPECT_EQ(
        ErrorOf([&] { LayerStores::Make(m_place, IfExists::Refuse, fill); }),
        int(ErrorNumber::DatabaseFailure));
    EXPECT_FALSE(isFilled);
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 1);
    LayerStores::Make(m_place, IfExists::Replace, fill);
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 0);
}

TEST_F(ServerStoresTest, AMapStaysWhenTheOneThatReplacesItCannotBeFilled)
{
    AddLayer(*LayerStores::Create(m_place));
    const auto fail = [](const std::unique_ptr<ILayerStore>&) { throw std::runtime_error("full"); };
    EXPECT_THROW(LayerStores::Make(m_place, IfExists::Replace, fail), std::runtime_error);
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 1);
    EXPECT_EQ(
        Owner().Text("SELECT count(*) FROM pg_namespace WHERE starts_with(nspname, 'orvane.part')"), "0");
}

TEST_F(ServerStoresTest, AMapThatIsOpenIsNeitherReplacedNorRemoved)
{
    auto store = LayerStores::Create(m_place);
    AddLayer(*store);
    EXPECT_EQ(
        ErrorOf([&] { LayerStores::Make(m_place, IfExists::Replace); }), int(ErrorNumber::DatabaseLocked));
    LayerStores::Remove(m_place);
    EXPECT_EQ(LayersIn(*store), 1);
    store.reset();
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 1);
}

TEST_F(ServerStoresTest, AMapExistsOnceItIsMade)
{
    EXPECT_FALSE(LayerStores::Exists(m_place));
    LayerStores::Make(m_place, IfExists::Refuse);
    EXPECT_TRUE(LayerStores::Exists(m_place));
    EXPECT_EQ(
        ErrorOf([] { LayerStores::Exists(QStringLiteral("postgresql:///maps?host=/nowhere&schema=Town")); }),
        int(ErrorNumber::ConnectionLost));
}

TEST_F(ServerStoresTest, AMapThatIsClosedCanBeRemoved)
{
    LayerStores::Create(m_place).reset();
    LayerStores::Remove(m_place);
    EXPECT_EQ(ErrorOf([this] { LayerStores::Open(m_place); }), int(ErrorNumber::DatabaseFailure));
    LayerStores::Remove(m_place); // nothing is there
}

TEST_F(ServerStoresTest, AMapIsInUseWhileAnyoneHasItOpen)
{
    EXPECT_FALSE(LayerStores::IsInUse(m_place));
    const auto store = LayerStores::Create(m_place);
    EXPECT_TRUE(LayerStores::IsInUse(m_place));
    EXPECT_EQ(LayersIn(*LayerStores::Open(m_place)), 0) << "many may have it open";
}

} // namespace
} // namespace Orvane::Testing
