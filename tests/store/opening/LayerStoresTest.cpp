// SPDX-License-Identifier: MIT
#include "store/opening/LayerStores.h"

#include "store/ILayerStore.h"
#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

class LayerStoresTest : public StoreTest
{
protected:
    const QString m_place = PathOf(QStringLiteral("map.ovl"));
};

} // namespace

TEST_F(LayerStoresTest, AStoreThatWasCreatedCanBeOpened)
{
    LayerStores::Create(m_place)->Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (7)"));
    const auto store = LayerStores::Open(m_place, OpenMode::ReadOnly);
    EXPECT_EQ(store->Path(), m_place);
    EXPECT_TRUE(store->IsReadOnly());
    EXPECT_EQ(
        ToInt32(store->OpenRecordset(QStringLiteral("SELECT LayerID FROM Layers"))->Field("LayerID")), 7);
}

TEST_F(LayerStoresTest, AStoreIsInUseWhileItIsOpen)
{
    EXPECT_FALSE(LayerStores::IsInUse(m_place));
    auto store = LayerStores::Create(m_place);
    EXPECT_TRUE(LayerStores::IsInUse(m_place));
    store.reset();
    EXPECT_FALSE(LayerStores::IsInUse(m_place));
}

TEST_F(LayerStoresTest, APlaceOnAServerIsNotTakenForAFile)
{
    const QString place = QStringLiteral("postgresql:///maps?host=/nowhere&schema=Town");
    for (const auto& act : std::vector<std::function<void()>>{
             [&] { LayerStores::Open(place); }, [&] { LayerStores::Create(place); },
             [&] { LayerStores::Make(place, IfExists::Replace); }}) {
        const QString told = DescriptionOf(act);
        EXPECT_TRUE(told.contains(QStringLiteral("server"))) << qPrintable(told);
        EXPECT_TRUE(told.contains(QStringLiteral("Town"))) << qPrintable(told);
    }
    EXPECT_FALSE(LayerStores::IsInUse(place));
    EXPECT_NO_THROW(LayerStores::Remove(place));
}

TEST_F(LayerStoresTest, AFileExistsOnceItIsMade)
{
    EXPECT_FALSE(LayerStores::Exists(m_place));
    LayerStores::Make(m_place, IfExists::Refuse);
    EXPECT_TRUE(LayerStores::Exists(m_place));
}

TEST_F(LayerStoresTest, OneInMemoryHasNoPlace)
{
    EXPECT_TRUE(LayerStores::CreateInMemory()->Path().isEmpty());
}

TEST_F(LayerStoresTest, ChangesOfOthersAreCounted)
{
    const auto store = LayerStores::Create(m_place);
    const qint64 before = store->ForeignChanges();
    store->Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (7)"));
    EXPECT_EQ(store->ForeignChanges(), before);
    LayerStores::Open(m_place)->Execute(QStringLiteral("UPDATE Layers SET Code = 5"));
    EXPECT_NE(store->ForeignChanges(), before);
}

TEST_F(LayerStoresTest, ACopyHoldsEverything)
{
    const auto store = LayerStores::CreateInMemory();
    store->Execute(QStringLiteral("INSERT INTO Layers (LayerID, Name) VALUES (7, 'Roads')"));
    store->CopyToFile(m_place);
    EXPECT_EQ(ErrorOf([&] { store->CopyToFile(m_place); }), int(ErrorNumber::DatabaseFailure)) << "is there";
    const auto copy = LayerStores::Open(m_place);
    EXPECT_EQ(
        ToText(copy->OpenQuery(QStringLiteral("SELECT Name FROM Layers"))->Field("Name")),
        QStringLiteral("Roads"));
}

TEST_F(LayerStoresTest, AStoreThatIsOnlyReadIsCopiedAndStaysReadOnly)
{
    LayerStores::Create(m_place)->Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (7)"));
    const auto store = LayerStores::Open(m_place, OpenMode::ReadOnly);
    const QString place = PathOf(QStringLiteral("copy.ovl"));
    store->CopyToFile(place);
    EXPECT_FALSE(LayerStores::Open(place)->OpenQuery(QStringLiteral("SELECT LayerID FROM Layers"))->AtEOF());
    EXPECT_EQ(
        ErrorOf([&] { store->Execute(QStringLiteral("DELETE FROM Layers")); }),
        int(ErrorNumber::DatabaseReadOnly));
}

TEST_F(LayerStoresTest, AStoreIsMadeWithItsFirstContentAndRemoved)
{
    const auto fill = [](std::unique_ptr<ILayerStore> store) {
        store->Execute(QStringLiteral("INSERT INTO Layers (LayerID) VALUES (7)"));
    };
    LayerStores::Make(m_place, IfExists::Refuse, fill);
    EXPECT_EQ(
        ErrorOf([&] { LayerStores::Make(m_place, IfExists::Refuse, fill); }),
        int(ErrorNumber::DatabaseFailure));
    LayerStores::Make(m_place, IfExists::Replace, fill);
    EXPECT_FALSE(
        LayerStores::Open(m_place)->OpenQuery(QStringLiteral("SELECT LayerID FROM Layers"))->AtEOF());
    LayerStores::Remove(m_place);
    EXPECT_EQ(FilesThere(), QStringList());
    LayerStores::Remove(m_place); // nothing is there
}

TEST_F(LayerStoresTest, ErrorsNameThePathThatIsToBeShown)
{
    StoreOptions options;
    options.shownPath = QStringLiteral("/maps/town.ovl");
    FileWith("a shopping list", QStringLiteral("map.ovl"));
    const QString text = DescriptionOf([&] { LayerStores::Open(m_place, OpenMode::ReadWrite, options); });
    EXPECT_TRUE(text.contains(options.shownPath)) << qPrintable(text);
    EXPECT_FALSE(text.contains(m_place)) << qPrintable(text);
}

} // namespace Orvane::Testing
