// SPDX-License-Identifier: MIT
#include "component/model/LayerQueries.h"

#include "hosts/ValueMatchers.h"

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

TEST(QuickMode, ComesFromTheThreeOverrideModes)
{
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(0)), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(1)), 2);
    EXPECT_EQ(QuickModeFromOverrideMode(qint32(2)), 4);
}

TEST(QuickMode, IsNormalForAnyOtherOverrideMode)
{
    for (const qint32 mode : {-1, 3, 4, 255, 2147483647})
        EXPECT_EQ(QuickModeFromOverrideMode(mode), 1) << mode;
    EXPECT_EQ(QuickModeFromOverrideMode(0.5), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(1e300), 1);
    EXPECT_EQ(QuickModeFromOverrideMode(Value::Null()), 1);
}

TEST(QuickMode, IsRefusedFromAText)
{
    EXPECT_THROW(QuickModeFromOverrideMode(QStringLiteral("hidden")), RunTimeError);
}

TEST(QuickMode, GoesBackToTheThreeOverrideModes)
{
    EXPECT_EQ(OverrideModeFromQuickMode(1), qint16(0));
    EXPECT_EQ(OverrideModeFromQuickMode(2), qint16(1));
    EXPECT_EQ(OverrideModeFromQuickMode(4), qint16(2));
}

TEST(QuickMode, WritesNothingForVariousOrSeveralBits)
{
    for (const qint16 mode : {0, 3, 5, 6, 7, 8, -1})
        EXPECT_EQ(OverrideModeFromQuickMode(mode), std::nullopt) << mode;
}

TEST(CollectionKey, NamesTheIDInDecimal)
{
    EXPECT_EQ(CollectionKey(17), "IDequals_17");
    EXPECT_EQ(CollectionKey(-5), "IDequals_-5");
}
