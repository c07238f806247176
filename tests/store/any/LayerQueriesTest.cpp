// SPDX-License-Identifier: MIT
#include "store/any/AnyStoreTest.h"

#include <gmock/gmock.h>

namespace Orvane::Testing {

namespace {

using testing::ElementsAre;
using testing::UnorderedElementsAre;

const auto TreeHead = QStringLiteral("SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
                                     " FROM LayerGroupMembers, LayerGroups, Layers"
                                     " WHERE LayerGroupMembers.LayerID=Layers.LayerID"
                                     " AND   LayerGroupMembers.GroupID=LayerGroups.ID");
const auto TreeTail = QStringLiteral(" ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID ");
const auto LayerList = QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");

QString WholeTree()
{
    return TreeHead + QStringLiteral(" AND LayerGroups.Pseudo = False") + TreeTail;
}

QString TreeOfGroup(const QString& name)
{
    return TreeHead + QStringLiteral(" AND LayerGroups.Name = '") + name + QStringLiteral("'") + TreeTail;
}

using GroupAndLayer = std::pair<qint32, qint32>;

/// The component's queries to a layer database, in their exact wording.
class LayerQueries : public AnyStoreTest
{
protected:
    std::vector<GroupAndLayer> Tree(const QString& sql) const
    {
        std::vector<GroupAndLayer> entries;
        for (auto rows = m_database->OpenRecordset(sql); !rows->AtEOF(); rows->MoveNext())
            entries.emplace_back(ToInt32(rows->Field("GroupID")), ToInt32(rows->Field("LayerID")));
        return entries;
    }

    std::vector<qint32> Numbers(const QString& sql, const char* column) const
    {
        return Column(*m_database, sql, column);
    }

    void HideLayer(qint32 id, qint32 code) const
    {
        m_database->Execute(QStringLiteral("UPDATE Layers SET Code = ?1 WHERE LayerID = ?2"), {code, id});
    }

    const std::unique_ptr<ILayerStore> m_database = NamelessStore();
};

class LayerQueriesOnGroups : public LayerQueries
{
protected:
    LayerQueriesOnGroups()
    {
        for (const qint32 id : {1, 2, 3, 4, 5})
            AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
        AddGroup(*m_database, 10, QStringLiteral("Water"), 2);
        AddGroup(*m_database, 20, QStringLiteral("Roads"), 1);
        AddGroup(*m_database, 30, QStringLiteral("Drafts"), 0);
        m_database->Execute(QStringLiteral("UPDATE LayerGroups SET Pseudo = TRUE WHERE ID = 30"));
        AddMember(*m_database, 10, 3, 2);
        AddMember(*m_database, 10, 2, 1);
        AddMember(*m_database, 10, 1, 2);
        AddMember(*m_database, 20, 4, 1);
        AddMember(*m_database, 20, 1, 0);
        AddMember(*m_database, 30, 5, 0);
    }
};

} // namespace

TEST_F(LayerQueriesOnGroups, TheTreeComesByGroupThenOrderingThenLayer)
{
    const std::vector<GroupAndLayer> expected = {{20, 1}, {20, 4}, {10, 2}, {10, 1}, {10, 3}};
    EXPECT_EQ(Tree(WholeTree()), expected);
}

TEST_F(LayerQueriesOnGroups, TheTreeCarriesTheLayersColumnsAndTheMembership)
{
    const auto rows = m_database->OpenRecordset(WholeTree());
    EXPECT_EQ(ToText(rows->Field("Name")), QStringLiteral("Layer 1"));
    EXPECT_EQ(ToInt32(rows->Field("OverrideMode")), 0);
    EXPECT_EQ(ToInt32(rows->Field("Ordering")), 0);
}

TEST_F(LayerQueriesOnGroups, TheWholeTreeLeavesPseudoGroupsOut)
{
    for (const auto& [group, layer] : Tree(WholeTree())) {
        EXPECT_NE(group, 30);
        EXPECT_NE(layer, 5);
    }
}

TEST_F(LayerQueriesOnGroups, ANamedPseudoGroupIsShown)
{
    const std::vector<GroupAndLayer> expected = {{30, 5}};
    EXPECT_EQ(Tree(TreeOfGroup(QStringLiteral("Drafts"))), expected);
}

TEST_F(LayerQueriesOnGroups, ANamedGroupComesAlone)
{
    const std::vector<GroupAndLayer> expected = {{20, 1}, {20, 4}};
    EXPECT_EQ(Tree(TreeOfGroup(QStringLiteral("Roads"))), expected);
}

TEST_F(LayerQueriesOnGroups, AGroupNameThatNobodyHasGivesNoRows)
{
    EXPECT_TRUE(Tree(TreeOfGroup(QStringLiteral("Nobody"))).empty());
}

TEST_F(LayerQueriesOnGroups, AGroupWithoutANameIsFoundByTheEmptyName)
{
    AddGroup(*m_database, 40, QString(), 4);
    AddMember(*m_database, 40, 2, 0);
    const std::vector<GroupAndLayer> expected = {{40, 2}};
    EXPECT_EQ(Tree(TreeOfGroup(QString())), expected);
}

TEST_F(LayerQueriesOnGroups, ADoubledQuoteInAGroupNameIsOneQuote)
{
    AddGroup(*m_database, 40, QStringLiteral("King's \"Road\" \U0001F6E3"), 4);
    AddMember(*m_database, 40, 2, 0);
    const std::vector<GroupAndLayer> expected = {{40, 2}};
    EXPECT_EQ(Tree(TreeOfGroup(QStringLiteral("King''s \"Road\" \U0001F6E3"))), expected);
}

TEST_F(LayerQueriesOnGroups, AQuoteThatIsNotDoubledIsAClearError)
{
    EXPECT_EQ(
        ErrorOf([&] { Tree(TreeOfGroup(QStringLiteral("King's Road"))); }),
        int(ErrorNumber::DatabaseFailure));
}

TEST_F(LayerQueriesOnGroups, ALayerInTwoGroupsComesOnceUnderEach)
{
    int rowsOfLayer1 = 0;
    for (const auto& entry : Tree(WholeTree()))
        rowsOfLayer1 += entry.second == 1;
    EXPECT_EQ(rowsOfLayer1, 2);
}

TEST_F(LayerQueriesOnGroups, MembershipsAreFoundByGroupAndByLayer)
{
    EXPECT_THAT(
        Numbers(QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=10"), "LayerID"),
        UnorderedElementsAre(1, 2, 3));
    EXPECT_THAT(
        Numbers(
            QStringLiteral("SELECT * FROM LayerGroupMembers WHERE GroupID=20 ORDER BY GroupID"), "LayerID"),
        UnorderedElementsAre(1, 4));
    EXPECT_THAT(
        Numbers(
            QStringLiteral("SELECT * FROM LayerGroupMembers WHERE LayerID=1 ORDER BY GroupID"), "GroupID"),
        ElementsAre(10, 20));
    EXPECT_THAT(
        Numbers(QStringLiteral("SELECT DISTINCT GroupID FROM LayerGroupMembers WHERE LayerID=1"), "GroupID"),
        UnorderedElementsAre(10, 20));
}

TEST_F(LayerQueriesOnGroups, AGroupWithoutMembersHasNone)
{
    AddGroup(*m_database, 40, QStringLiteral("Empty"), 4);
    EXPECT_TRUE(
        Numbers(QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=40"), "LayerID").empty());
}

TEST_F(LayerQueriesOnGroups, AGroupThatIsNotThereHasNoMatch)
{
    const auto groups = m_database->OpenRecordset(QStringLiteral("LayerGroups"));
    groups->Index("IDIDX");
    groups->Seek("=", 99);
    EXPECT_TRUE(groups->NoMatch());
}

TEST_F(LayerQueries, TheFlatListComesByNameAsPeopleSort)
{
    AddLayer(*m_database, 1, QStringLiteral("roads"));
    AddLayer(*m_database, 2, QStringLiteral("Zoning"));
    AddLayer(*m_database, 3, QStringLiteral("Rivers"));
    AddLayer(*m_database, 4, QStringLiteral("airports"));
    EXPECT_EQ(Numbers(LayerList, "LayerID"), (std::vector<qint32>{4, 3, 1, 2}));
}

TEST_F(LayerQueries, AHiddenLayerIsInNeitherListNorSingleRow)
{
    for (const qint32 id : {1, 2, 3, 4})
        AddLayer(*m_database, id, QStringLiteral("Layer %1").arg(id));
    HideLayer(2, -2);
    HideLayer(3, -3);
    HideLayer(4, -1);
    EXPECT_EQ(Numbers(LayerList, "LayerID"), (std::vector<qint32>{1, 4}));
    const auto one = QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = ");
    EXPECT_TRUE(Numbers(one + QStringLiteral("2"), "LayerID").empty());
    EXPECT_TRUE(Numbers(one + QStringLiteral("3"), "LayerID").empty());
    EXPECT_EQ(Numbers(one + QStringLiteral("4"), "LayerID"), (std::vector<qint32>{4}));
}

} // namespace Orvane::Testing
