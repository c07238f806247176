// SPDX-License-Identifier: MIT
#include "hosts/ValueMatchers.h"

#include <OrvaneShellLib/LayerQueries.h>

#include <gtest/gtest.h>

using namespace Orvane;
using namespace Orvane::Testing;

TEST(LayerQueries, TheTreeLeavesPseudoGroupsOut)
{
    EXPECT_EQ(
        LayerQueries::Tree(std::nullopt),
        "SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering "
        "FROM LayerGroupMembers, LayerGroups, Layers "
        "WHERE LayerGroupMembers.LayerID=Layers.LayerID "
        "AND   LayerGroupMembers.GroupID=LayerGroups.ID "
        "AND LayerGroups.Pseudo = False "
        "ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID ");
}

TEST(LayerQueries, TheTreeOfANamedGroupAsksForTheNameOnly)
{
    EXPECT_EQ(
        LayerQueries::Tree(QStringLiteral("Street furniture")),
        "SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering "
        "FROM LayerGroupMembers, LayerGroups, Layers "
        "WHERE LayerGroupMembers.LayerID=Layers.LayerID "
        "AND   LayerGroupMembers.GroupID=LayerGroups.ID "
        "AND LayerGroups.Name = 'Street furniture' "
        "ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID ");
}

TEST(LayerQueries, AQuoteInAGroupNameIsDoubled)
{
    const QString text = LayerQueries::Tree(QStringLiteral("Farmer's 'own'"));
    EXPECT_TRUE(text.contains(QStringLiteral(" AND LayerGroups.Name = 'Farmer''s ''own''' ORDER BY")));
}

TEST(LayerQueries, AnEmptyGroupNameIsANameToo)
{
    EXPECT_TRUE(LayerQueries::Tree(QString()).contains(QStringLiteral(" AND LayerGroups.Name = '' ORDER")));
}

TEST(LayerQueries, NothingElseInAGroupNameIsTouched)
{
    const QString text = LayerQueries::Tree(QStringLiteral("50% \"a\" %1 \\ ;--"));
    EXPECT_TRUE(text.contains(QStringLiteral("LayerGroups.Name = '50% \"a\" %1 \\ ;--' ORDER")));
}

TEST(LayerQueries, TheFlatListHidesNegativeCodesAndGoesByName)
{
    EXPECT_EQ(LayerQueries::LayerList(), "SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
}

TEST(LayerQueries, OneLayerHasTheSameFilter)
{
    EXPECT_EQ(LayerQueries::OneLayer(17), "SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = 17");
}

TEST(LayerQueries, MembershipsAreAskedForInFourWays)
{
    EXPECT_EQ(LayerQueries::MemberLayerIDs(12), "SELECT LayerID FROM LayerGroupMembers WHERE GroupID=12");
    EXPECT_EQ(
        LayerQueries::MembershipsOfGroup(12),
        "SELECT * FROM LayerGroupMembers WHERE GroupID=12 ORDER BY GroupID");
    EXPECT_EQ(
        LayerQueries::MembershipsOfLayer(17),
        "SELECT * FROM LayerGroupMembers WHERE LayerID=17 ORDER BY GroupID");
    EXPECT_EQ(
        LayerQueries::GroupsOfLayer(17), "SELECT DISTINCT GroupID FROM LayerGroupMembers WHERE LayerID=17");
}

TEST(LayerQueries, NumbersAreWrittenInPlainDecimal)
{
    EXPECT_TRUE(LayerQueries::OneLayer(-1234567).endsWith(QStringLiteral(" = -1234567")));
    EXPECT_TRUE(LayerQueries::MemberLayerIDs(2147483647).endsWith(QStringLiteral("=2147483647")));
    EXPECT_TRUE(LayerQueries::GroupsOfLayer(-2147483647 - 1).endsWith(QStringLiteral("=-2147483648")));
}
