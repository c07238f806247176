// SPDX-License-Identifier: MIT
#include "hostkit/LayerFactory.h"
#include "hostkit/common/LayerNames.h"
#include "hostkit/common/LayerRow.h"
#include "hostkit/lists/LayerGroups.h"
#include "hostkit/lists/StoredList.h"
#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/schemes/SchemeTransfer.h"
#include "hosts/AnswerCount.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/Transaction.h>

#include <gmock/gmock.h>
#include <numeric>

namespace Orvane::Testing {
namespace {

using LayerIDs = std::vector<qint32>;

/// Operations that wait for the store no more often for many layers, groups or schemes than for a few.
class ManyLayers : public testing::Test
{
protected:
    static LayerIDs Fill(ILayerStore& store, int count)
    {
        LayerIDs layerIDs(static_cast<size_t>(count));
        std::iota(layerIDs.begin(), layerIDs.end(), 1);
        Transaction transaction(store);
        for (const qint32 layerID : layerIDs) {
            LayerRow row;
            row.Set("Name", QStringLiteral("Layer %1").arg(layerID));
            row.Set("Code", layerID);
            row.StoreAs(layerID, store);
        }
        transaction.Commit();
        return layerIDs;
    }

    /// answersOf: does the operation in a store with these layers, and returns for how many answers it waits.
    static void
    ExpectTheSameForMany(const std::function<int(AnswerCount& store, const LayerIDs& layerIDs)>& answersOf)
    {
        std::vector<int> answers;
        for (const int count : {3, 400}) {
            const auto database = LayerStores::CreateInMemory();
            AnswerCount store(*database);
            const LayerIDs layerIDs = Fill(store, count);
            answers.push_back(answersOf(store, layerIDs));
        }
        EXPECT_EQ(answers.front(), answers.back());
        EXPECT_LT(answers.back(), 30);
    }
};

TEST_F(ManyLayers, AreStoredWithFreeIDsAndCodes)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        return store.Of([&] {
            const auto count = qsizetype(layerIDs.size());
            const LayerIDs newIDs = LayerRow::FreeIDs(store, count);
            EXPECT_EQ(newIDs.front(), layerIDs.back() + 1);
            EXPECT_EQ(newIDs.back(), qint32(2 * count));
            EXPECT_EQ(LayerRow::FreeCodes(store, count).back(), qint16(2 * count - 1));
            for (const qint32 layerID : newIDs)
                LayerRow().StoreAs(layerID, store);
        });
    });
}

TEST_F(ManyLayers, HaveTheirNamesReadAgain)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerNames names(store);
        names.Name(1);
        return store.Of([&] {
            names.ReadAgain({layerIDs.begin(), layerIDs.end()});
            EXPECT_EQ(names.All().size(), qsizetype(layerIDs.size()));
        });
    });
}

TEST_F(ManyLayers, AreDeleted)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerNames names(store);
        LayerFactory factory(store, names);
        return store.Of([&] {
            EXPECT_EQ(factory.Deletable(layerIDs), layerIDs);
            factory.Delete(layerIDs);
            EXPECT_TRUE(StoredList::Layers(store).empty());
        });
    });
}

TEST_F(ManyLayers, AreComparedWithTheCurrentScheme)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerSchemes schemes(store);
        schemes.Names();
        store.Execute(QStringLiteral("UPDATE Layers SET Priority = 77 WHERE LayerID > 1"));
        return store.Of([&] {
            const QSet<qint32> all(layerIDs.begin(), layerIDs.end());
            EXPECT_EQ(schemes.LayersThatDiffer(all).size(), all.size() - 1);
        });
    });
}

TEST_F(ManyLayers, AreGroupedAndTheirGroupIsChanged)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        const LayerIDs backwards(layerIDs.rbegin(), layerIDs.rend());
        return store.Of([&] {
            const qint32 group = LayerGroups::Create(store, QStringLiteral("Ways"), layerIDs);
            LayerGroups::SetLayers(store, group, backwards);
            EXPECT_EQ(LayerGroups::Layers(store, group), backwards);
            LayerGroups::RemoveLayers(store, group, layerIDs);
            EXPECT_TRUE(LayerGroups::Layers(store, group).empty());
            LayerGroups::AddLayers(store, group, layerIDs);
            EXPECT_EQ(LayerGroups::Layers(store, group), layerIDs);
        });
    });
}

TEST_F(ManyLayers, AreReplacedByAListOfAHost)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        std::vector<ListedLayer> layers;
        std::vector<ListedGroup> groups;
        for (const qint32 layerID : layerIDs) {
            layers.emplace_back();
            layers.back().id = layerID + 1000;
            groups.push_back({layerID, QStringLiteral("Group %1").arg(layerID), {layerID + 1000}});
        }
        return store.Of([&] {
            EXPECT_TRUE(StoredList::Update(store, layers, groups));
            EXPECT_EQ(StoredList::Groups(store), groups);
            EXPECT_TRUE(StoredList::Update(store, layers, {}));
            EXPECT_TRUE(StoredList::Groups(store).empty());
        });
    });
}

TEST_F(ManyLayers, GetTheValuesOfAnImportedSchemeThatLacksSome)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerSchemes(store).Names();
        SchemeDocument document = SchemeExchange::Export(store, QStringLiteral("Standard"));
        document.name = QStringLiteral("Night");
        for (SchemeDocument::Layer& layer : document.layers)
            layer.values.front() = Value();
        return store.Of(
            [&] { EXPECT_EQ(SchemeExchange::Import(store, document).matched, qsizetype(layerIDs.size())); });
    });
}

TEST_F(ManyLayers, AreCopiedIntoAnotherMapWithTheirSchemes)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerSchemes schemes(store);
        for (size_t number = 0; number < layerIDs.size() && number < 30; ++number)
            schemes.Add(QStringLiteral("Scheme %1").arg(number), SchemePart::Flags);
        const auto other = LayerStores::CreateInMemory();
        AnswerCount target(*other);
        return target.Of([&] {
            Transaction transaction(target);
            SchemeTransfer transfer(store, target);
            transfer.AddMissingLayers();
            transfer.CopySchemes();
            transaction.Commit();
            EXPECT_EQ(StoredList::Layers(target), StoredList::Layers(store));
        });
    });
}

TEST_F(ManyLayers, HaveManySchemesThatArePutInOrder)
{
    ExpectTheSameForMany([](AnswerCount& store, const LayerIDs& layerIDs) {
        LayerSchemes schemes(store);
        QStringList names;
        for (size_t number = 0; number < layerIDs.size() && number < 30; ++number) {
            names.prepend(QStringLiteral("Scheme %1").arg(number));
            schemes.Add(names.first(), SchemePart::Flags);
        }
        return store.Of([&] {
            schemes.SetOrder(names);
            EXPECT_EQ(schemes.Names().mid(0, names.size()), names);
        });
    });
}

} // namespace
} // namespace Orvane::Testing
