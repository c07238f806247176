// SPDX-License-Identifier: MIT
#include "hostkit/lists/StoredList.h"

#include "hostkit/HostKitTest.h"
#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/LayerSchemes.h"

namespace Orvane::Testing {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StoredListTest : public HostKitTest
{
protected:
    StoredListTest()
        : layers{{.id = 5, .name = QStringLiteral("Roads"), .lineColour = 0x0000FF}, {.id = 2, .name = QStringLiteral("Rivers"), .visible = false, .minVisScale = 50000}},
          groups{
              {.id = 8, .name = QStringLiteral("Water"), .layers = {2}},
              {.id = 3, .name = QStringLiteral("All"), .layers = {5, 2}, .expanded = true}}
    {
    }

    bool Update() { return StoredList::Update(Database(), layers, groups); }

    std::vector<ListedLayer> layers;
    std::vector<ListedGroup> groups;
};

TEST_F(StoredListTest, AnEmptyStoreGetsLayersAndGroupsInOneCall)
{
    EXPECT_TRUE(Update());
    EXPECT_THAT(StoredList::Layers(Database()), ElementsAre(layers[1], layers[0])); // by ID
    EXPECT_EQ(StoredList::Groups(Database()), groups);
}

TEST_F(StoredListTest, TheSameListAgainWritesNothing)
{
    Update();
    EXPECT_FALSE(Update());
    const QStringList statements = StatementsOf([this] { Update(); });
    for (const QString& statement : statements)
        EXPECT_FALSE(statement.startsWith(QStringLiteral("UPDATE"))) << qPrintable(statement);
}

TEST_F(StoredListTest, OnlyTheColumnsThatDifferAreWritten)
{
    Update();
    layers[0].name = QStringLiteral("Streets");
    layers[0].locked = true;
    const QStringList statements = StatementsOf([this] { EXPECT_TRUE(Update()); });
    EXPECT_THAT(
        statements,
        testing::Contains(QStringLiteral("UPDATE Layers SET Name = ?2, locked = ?3 WHERE LayerID = ?1")));
    EXPECT_EQ(StoredList::Layer(Database(), 5), layers[0]);
}

TEST_F(StoredListTest, AColumnThatTheListDoesNotChangeKeepsEvenAnUnreadableValue)
{
    Update();
    Set(5, "LineThickness", QStringLiteral("thick"));
    layers[0].code = 12;
    EXPECT_TRUE(Update());
    EXPECT_THAT(Get(5, "LineThickness"), IsValue(QStringLiteral("thick")));
    EXPECT_THAT(Get(5, "Code"), IsNumber(12));
}

TEST_F(StoredListTest, ALayerThatIsNoLongerListedGoesWithItsPlacesAndSavedValues)
{
    Update();
    LayerSchemes schemes(Database());
    schemes.Names(); // makes the first one, with all layers
    layers.pop_back();
    EXPECT_TRUE(StoredList::Update(Database(), layers));
    EXPECT_THAT(StoredList::Layers(Database()), ElementsAre(layers[0]));
    EXPECT_THAT(StoredList::Groups(Database())[0].layers, IsEmpty());
    EXPECT_THAT(StoredList::Groups(Database())[1].layers, ElementsAre(5));
    EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM LayerSchemeValues WHERE LayerID = 2")), 0);
}

TEST_F(StoredListTest, GroupsAreAddedRemovedAndReordered)
{
    Update();
    groups
        = {{.id = 3, .name = QStringLiteral("Everything"), .layers = {2, 5}, .expanded = true},
           {.id = 9, .name = QStringLiteral("Hidden"), .pseudo = true}};
    EXPECT_TRUE(Update());
    EXPECT_EQ(StoredList::Groups(Database()), groups);
}

TEST_F(StoredListTest, AnExpandedGroupStaysAsTheUserLeftIt)
{
    Update();
    Database().Execute(QStringLiteral("UPDATE LayerGroups SET Expanded = FALSE"));
    groups[1].name = QStringLiteral("Everything");
    EXPECT_TRUE(Update());
    EXPECT_FALSE(StoredList::Groups(Database())[1].expanded);
}

TEST_F(StoredListTest, AnInvalidListChangesNothing)
{
    Update();
    const auto refused = [this](HostError number) {
        EXPECT_EQ(ErrorOf([this] { Update(); }), int(number));
        EXPECT_EQ(Rows(QStringLiteral("SELECT LayerID FROM Layers")), 2);
        EXPECT_EQ(Rows(QStringLiteral("SELECT ID FROM LayerGroups")), 2);
    };
    layers.push_back({.id = 6});
    layers.push_back({.id = 6});
    refused(HostError::ListInvalid);
    layers.pop_back();
    layers.push_back({});
    refused(HostError::ListInvalid);
    layers.pop_back();
    groups.push_back({.id = 4, .layers = {77}});
    refused(HostError::UnknownLayer);
    groups.back() = {.id = 4, .layers = {5, 5}};
    refused(HostError::ListInvalid);
    groups.back() = {.id = 3};
    refused(HostError::ListInvalid);
}

TEST_F(StoredListTest, ALayerThatThereIsNotIsNothing)
{
    EXPECT_EQ(StoredList::Layer(Database(), 5), std::nullopt);
}

} // namespace
} // namespace Orvane::Testing
