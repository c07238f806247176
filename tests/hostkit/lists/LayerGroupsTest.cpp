// SPDX-License-Identifier: MIT
#include "hostkit/lists/LayerGroups.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LayerGroupsTest : public HostKitTest
{
protected:
    LayerGroupsTest() { AddLayers(4); }

    std::vector<qint32> LayersOf(qint32 groupID) { return LayerGroups::Layers(Database(), groupID); }
    std::vector<qint32> Order() { return LayerGroups::Order(Database()); }
    qint32 Create(const char* name, const std::vector<qint32>& layerIDs = {})
    {
        return LayerGroups::Create(Database(), QString::fromLatin1(name), layerIDs);
    }
};

TEST_F(LayerGroupsTest, ANewGroupIsTheLastAndHasItsLayersInTheirOrder)
{
    EXPECT_EQ(Create("Ways", {3, 1}), 1);
    EXPECT_EQ(Create("Water", {2}), 2);
    EXPECT_THAT(Order(), ElementsAre(1, 2));
    EXPECT_THAT(LayersOf(1), ElementsAre(3, 1));
    EXPECT_EQ(Rows(QStringLiteral("SELECT ID FROM LayerGroups WHERE Name = 'Ways' AND Pseudo = FALSE")), 1);
}

TEST_F(LayerGroupsTest, AGroupIsRenamed)
{
    LayerGroups::Rename(Database(), Create("Ways"), QStringLiteral("Roads"));
    EXPECT_EQ(Rows(QStringLiteral("SELECT ID FROM LayerGroups WHERE Name = 'Roads'")), 1);
}

TEST_F(LayerGroupsTest, ADeletedGroupLeavesItsLayers)
{
    LayerGroups::Delete(Database(), Create("Ways", {1, 2}));
    EXPECT_THAT(Order(), IsEmpty());
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerGroupMembers")), 0);
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 4);
}

TEST_F(LayerGroupsTest, AddedLayersFollowThoseThatAreThere)
{
    const qint32 group = Create("Ways", {4, 2});
    LayerGroups::AddLayers(Database(), group, {3, 4, 1});
    EXPECT_THAT(LayersOf(group), ElementsAre(4, 2, 3, 1));
}

TEST_F(LayerGroupsTest, RemovedLayersLeaveTheOthersInOrder)
{
    const qint32 group = Create("Ways", {4, 2, 3});
    LayerGroups::RemoveLayers(Database(), group, {2, 99});
    EXPECT_THAT(LayersOf(group), ElementsAre(4, 3));
}

TEST_F(LayerGroupsTest, AGroupGetsExactlyTheLayersThatAreSet)
{
    const qint32 group = Create("Ways", {4, 2, 3});
    const qint32 other = Create("Water", {2});
    LayerGroups::SetLayers(Database(), group, {3, 1});
    EXPECT_THAT(LayersOf(group), ElementsAre(3, 1));
    EXPECT_THAT(LayersOf(other), ElementsAre(2));
}

TEST_F(LayerGroupsTest, NamedGroupsComeFirstAndTheOthersKeepTheirOrder)
{
    Create("A");
    Create("B");
    Create("C");
    LayerGroups::SetOrder(Database(), {3});
    EXPECT_THAT(Order(), ElementsAre(3, 1, 2));
    Create("D");
    EXPECT_THAT(Order(), ElementsAre(3, 1, 2, 4));
}

TEST_F(LayerGroupsTest, AGroupThatThereIsNotIsNamed)
{
    for (const auto& act : std::vector<std::function<void()>>{
             [this] { LayerGroups::Rename(Database(), 77, QStringLiteral("x")); },
             [this] { LayerGroups::Delete(Database(), 77); },
             [this] { LayerGroups::AddLayers(Database(), 77, {1}); },
             [this] { LayerGroups::RemoveLayers(Database(), 77, {1}); },
             [this] { LayerGroups::SetLayers(Database(), 77, {1}); },
             [this] { LayerGroups::Layers(Database(), 77); },
             [this] { LayerGroups::SetOrder(Database(), {77}); }}) {
        EXPECT_EQ(ErrorOf(act), int(HostError::UnknownGroup));
        EXPECT_TRUE(DescriptionOf(act).contains(QStringLiteral("77")));
    }
}

TEST_F(LayerGroupsTest, ALayerThatThereIsNotIsNamedAndNothingIsStored)
{
    EXPECT_EQ(ErrorOf([this] { Create("Ways", {1, 99}); }), int(HostError::UnknownLayer));
    EXPECT_TRUE(DescriptionOf([this] { Create("Ways", {1, 99}); }).contains(QStringLiteral("99")));
    EXPECT_THAT(Order(), IsEmpty());
    const qint32 group = Create("Ways", {1});
    EXPECT_EQ(
        ErrorOf([&] {
            LayerGroups::AddLayers(Database(), group, {2, 99});
        }),
        int(HostError::UnknownLayer));
    EXPECT_THAT(LayersOf(group), ElementsAre(1));
}

TEST_F(LayerGroupsTest, AnIDThatOccursTwiceIsRefused)
{
    EXPECT_EQ(ErrorOf([this] { Create("Ways", {1, 1}); }), int(HostError::ListInvalid));
    Create("Ways");
    EXPECT_EQ(ErrorOf([this] { LayerGroups::SetOrder(Database(), {1, 1}); }), int(HostError::ListInvalid));
}

TEST_F(LayerGroupsTest, AGroupOfAnOlderMapWithoutAnOrderingIsPutInOrder)
{
    Database().Execute(
        QStringLiteral("INSERT INTO LayerGroups (ID, GroupOrdering) VALUES (1, NULL), (2, NULL)"));
    LayerGroups::SetOrder(Database(), {2, 1});
    EXPECT_THAT(Order(), ElementsAre(2, 1));
}

} // namespace
} // namespace Orvane::Testing
