// SPDX-License-Identifier: MIT
#include "hosttests/CheckLists.h"
#include "hosttests/CheckRun.h"
#include "hosttests/ComponentCalls.h"
#include "hosttests/SampleContents.h"

#include <OrvaneShellLib/LayerQueries.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <algorithm>

namespace Orvane::HostTests {

namespace {

using ComponentCalls::IDsIn;

struct TreeRow {
    qint32 groupID;
    qint32 layerID;
};

std::vector<qint32> TreeColumn(const std::vector<TreeRow>& rows, qint32 TreeRow::*column)
{
    std::vector<qint32> ids;
    ids.reserve(rows.size());
    for (const TreeRow& row : rows)
        ids.push_back(row.*column);
    return ids;
}

void ExpectTree(CheckRun& run, const std::optional<QString>& groupName, const std::vector<TreeRow>& expected)
{
    std::vector<TreeRow> found;
    ComponentCalls::ForEachRow(run.Database(), LayerQueries::Tree(groupName), [&](const IRecordset& row) {
        found.push_back({ToInt32(row.Field("GroupID")), ToInt32(row.Field("LayerID"))});
    });
    const QString query = groupName ? QStringLiteral("Tree(\"%1\"), ").arg(*groupName)
                                    : QStringLiteral("Tree without a name, ");
    for (const auto& [name, column] :
         {std::pair("GroupID", &TreeRow::groupID), std::pair("LayerID", &TreeRow::layerID)}) {
        run.ExpectIDs(
            query + QString::fromLatin1(name), TreeColumn(found, column), TreeColumn(expected, column));
    }
}

void ExpectSorted(CheckRun& run, const QString& what, std::vector<qint32> found, std::vector<qint32> expected)
{
    std::sort(found.begin(), found.end());
    std::sort(expected.begin(), expected.end());
    run.ExpectIDs(what, found, expected);
}

void CheckTreeOrder(CheckRun& run)
{
    ExpectTree(
        run, std::nullopt,
        {{TownGroup::Traffic, TownLayer::Airports},
         {TownGroup::Traffic, TownLayer::Roads},
         {TownGroup::Traffic, TownLayer::Hidden},
         {TownGroup::Water, TownLayer::Roads},
         {TownGroup::Water, TownLayer::Zoning},
         {TownGroup::Water, TownLayer::Rivers},
         {TownGroup::Quoted, TownLayer::Quoted}});
}

void CheckGroupsTakingTurns(CheckRun& run)
{
    ExpectTree(run, std::nullopt, {{1, 1}, {2, 2}, {1, 3}});
}

void CheckPseudoGroup(CheckRun& run)
{
    const auto groups = IDsIn(run.Database(), LayerQueries::Tree(std::nullopt), "GroupID");
    run.Expect(
        std::find(groups.begin(), groups.end(), TownGroup::Pseudo) == groups.end(),
        QStringLiteral("Tree without a name lists a pseudo group"));
}

void CheckNamedGroups(CheckRun& run)
{
    ExpectTree(
        run, QStringLiteral("Traffic"),
        {{TownGroup::Traffic, TownLayer::Airports},
         {TownGroup::Traffic, TownLayer::Roads},
         {TownGroup::Traffic, TownLayer::Hidden}});
    ExpectTree(run, QStringLiteral("Empty"), {});
    ExpectTree(run, QStringLiteral("Nobody"), {});
}

void CheckNamedPseudoGroup(CheckRun& run)
{
    ExpectTree(run, QStringLiteral("Drafts"), {{TownGroup::Pseudo, TownLayer::Drafts}});
}

void CheckQuotedGroup(CheckRun& run)
{
    ExpectTree(run, QStringLiteral(u"King's 'Cross' \u9053"), {{TownGroup::Quoted, TownLayer::Quoted}});
}

void CheckGroupWithoutName(CheckRun& run)
{
    ExpectTree(run, std::nullopt, {{1, 1}, {1, 2}});
}

void CheckListOrder(CheckRun& run)
{
    run.ExpectIDs(
        QStringLiteral("LayerList, LayerID"), IDsIn(run.Database(), LayerQueries::LayerList(), "LayerID"),
        {TownLayer::Airports, TownLayer::Drafts, TownLayer::Quoted, TownLayer::Rivers, TownLayer::Roads,
         TownLayer::Zoning});
}

void CheckListHides(CheckRun& run)
{
    ExpectSorted(
        run, QStringLiteral("LayerList, LayerID"),
        IDsIn(run.Database(), LayerQueries::LayerList(), "LayerID"),
        {TownLayer::Airports, TownLayer::Drafts, TownLayer::Quoted, TownLayer::Rivers, TownLayer::Roads,
         TownLayer::Zoning});
}

void CheckNullCode(CheckRun& run)
{
    run.ExpectIDs(
        QStringLiteral("LayerList, LayerID"), IDsIn(run.Database(), LayerQueries::LayerList(), "LayerID"),
        {1});
    run.ExpectIDs(
        QStringLiteral("OneLayer of a layer without a code"),
        IDsIn(run.Database(), LayerQueries::OneLayer(2), "LayerID"), {});
}

void CheckOneLayerQuery(CheckRun& run)
{
    for (const qint32 id : {TownLayer::Roads, TownLayer::Drafts, TownLayer::Quoted}) {
        run.ExpectIDs(
            QStringLiteral("OneLayer(%1)").arg(id),
            IDsIn(run.Database(), LayerQueries::OneLayer(id), "LayerID"), {id});
    }
    for (const qint32 id : {TownLayer::Hidden, TownLayer::DeeplyHidden, TownLayer::None, -1, 0}) {
        run.ExpectIDs(
            QStringLiteral("OneLayer(%1)").arg(id),
            IDsIn(run.Database(), LayerQueries::OneLayer(id), "LayerID"), {});
    }
}

void CheckMembers(CheckRun& run)
{
    ILayerDatabase& database = run.Database();
    ExpectSorted(
        run, QStringLiteral("MemberLayerIDs"),
        IDsIn(database, LayerQueries::MemberLayerIDs(TownGroup::Water), "LayerID"),
        {TownLayer::Roads, TownLayer::Zoning, TownLayer::Rivers});
    for (const qint32 id : {TownGroup::Empty, TownGroup::None}) {
        run.ExpectIDs(
            QStringLiteral("MemberLayerIDs(%1)").arg(id),
            IDsIn(database, LayerQueries::MemberLayerIDs(id), "LayerID"), {});
    }
}

void CheckMembershipsOfGroup(CheckRun& run)
{
    std::vector<qint32> places;
    ComponentCalls::ForEachRow(
        run.Database(), LayerQueries::MembershipsOfGroup(TownGroup::Traffic), [&](const IRecordset& row) {
            run.ExpectValue(QStringLiteral("GroupID"), row.Field("GroupID"), TownGroup::Traffic);
            places.push_back(10 * ToInt32(row.Field("LayerID")) + ToInt32(row.Field("Ordering")));
        });
    ExpectSorted(
        run, QStringLiteral("MembershipsOfGroup, 10 times LayerID plus Ordering"), places,
        {10 * TownLayer::Airports, 10 * TownLayer::Roads + 1, 10 * TownLayer::Hidden + 2});
}

void CheckMembershipsOfLayer(CheckRun& run)
{
    const QString query = LayerQueries::MembershipsOfLayer(TownLayer::Roads);
    ILayerDatabase& database = run.Database();
    run.ExpectIDs(
        QStringLiteral("MembershipsOfLayer, GroupID"), IDsIn(database, query, "GroupID"),
        {TownGroup::Water, TownGroup::Traffic});
    run.ExpectIDs(
        QStringLiteral("MembershipsOfLayer, LayerID"), IDsIn(database, query, "LayerID"),
        {TownLayer::Roads, TownLayer::Roads});
    run.ExpectIDs(QStringLiteral("MembershipsOfLayer, Ordering"), IDsIn(database, query, "Ordering"), {1, 1});
    run.ExpectIDs(
        QStringLiteral("MembershipsOfLayer of a layer in no group"),
        IDsIn(database, LayerQueries::MembershipsOfLayer(TownLayer::DeeplyHidden), "GroupID"), {});
}

void CheckGroupsOfLayer(CheckRun& run)
{
    ILayerDatabase& database = run.Database();
    ExpectSorted(
        run, QStringLiteral("GroupsOfLayer"),
        IDsIn(database, LayerQueries::GroupsOfLayer(TownLayer::Roads), "GroupID"),
        {TownGroup::Water, TownGroup::Traffic});
    run.ExpectIDs(
        QStringLiteral("GroupsOfLayer of a layer in no group"),
        IDsIn(database, LayerQueries::GroupsOfLayer(TownLayer::DeeplyHidden), "GroupID"), {});
}

void CheckNothing(CheckRun& run)
{
    const std::vector<std::pair<QString, const char*>> queries{
        {LayerQueries::Tree(std::nullopt), "LayerID"},
        {LayerQueries::Tree(QStringLiteral("Water")), "LayerID"},
        {LayerQueries::LayerList(), "LayerID"},
        {LayerQueries::OneLayer(1), "LayerID"},
        {LayerQueries::MemberLayerIDs(1), "LayerID"},
        {LayerQueries::MembershipsOfGroup(1), "LayerID"},
        {LayerQueries::MembershipsOfLayer(1), "GroupID"},
        {LayerQueries::GroupsOfLayer(1), "GroupID"}};
    for (const auto& [query, column] : queries)
        run.ExpectIDs(query, IDsIn(run.Database(), query, column), {});
}

} // namespace

std::vector<HostCheck> TreeChecks()
{
    return {
        {"Queries",
         "TheTreeGoesByGroupThenOrderingThenLayer",
         "LayerQueries::Tree: one row for each layer of each group that is not pseudo, hidden layers too, "
         "ordered by LayerGroups.GroupOrdering, then Ordering, then LayerID.",
         {},
         Town,
         CheckTreeOrder},
        {"Queries",
         "GroupsWithTheSameOrderingTakeTurns",
         "LayerQueries::Tree: rows of groups with the same GroupOrdering are sorted by Ordering, not by "
         "group.",
         {},
         TakingTurns,
         CheckGroupsTakingTurns},
        {"Queries",
         "TheTreeLeavesPseudoGroupsOut",
         "LayerQueries::Tree without a name: no rows of groups whose Pseudo is true.",
         {},
         Town,
         CheckPseudoGroup},
        {"Queries",
         "ANamedGroupComesAlone",
         "LayerQueries::Tree with a name: only the rows of that group; none for an empty or a missing group.",
         {},
         Town,
         CheckNamedGroups},
        {"Queries",
         "ANamedPseudoGroupIsShown",
         "LayerQueries::Tree with a name: the group with that name, pseudo or not.",
         {},
         Town,
         CheckNamedPseudoGroup},
        {"Queries",
         "ADoubledQuoteInANameIsOneQuote",
         "LayerQueries::Tree with a name: '' inside the quoted name stands for one quote.",
         {},
         Town,
         CheckQuotedGroup},
        {"Queries",
         "AGroupWithoutANameIsListed",
         "LayerQueries::Tree: a group whose Name is NULL has rows like any other.",
         {Ability::NullValues},
         WithNulls,
         CheckGroupWithoutName},
    };
}

std::vector<HostCheck> ListChecks()
{
    return {
        {"Queries",
         "TheListGoesByNameWithoutCase",
         "LayerQueries::LayerList: rows come by Name, without regard to upper and lower case.",
         {},
         Town,
         CheckListOrder},
        {"Queries",
         "TheListLeavesHiddenLayersOut",
         "LayerQueries::LayerList: only layers whose Code is greater than -2, each once.",
         {},
         Town,
         CheckListHides},
        {"Queries",
         "ALayerWithoutACodeIsHidden",
         "LayerQueries::LayerList and OneLayer: a Code that is NULL is not greater than -2.",
         {Ability::NullValues},
         WithNulls,
         CheckNullCode},
        {"Queries",
         "OneLayerIsItsRowOrNothing",
         "LayerQueries::OneLayer: the row of that layer; none if it is missing or its Code is -2 or less.",
         {},
         Town,
         CheckOneLayerQuery},
    };
}

std::vector<HostCheck> MembershipChecks()
{
    return {
        {"Queries",
         "TheMembersOfAGroupAreFound",
         "LayerQueries::MemberLayerIDs: the LayerID of each member, in any order; none for an empty group.",
         {},
         Town,
         CheckMembers},
        {"Queries",
         "TheMembershipsOfAGroupHaveAllColumns",
         "LayerQueries::MembershipsOfGroup: the rows of the group, with GroupID, LayerID and Ordering.",
         {},
         Town,
         CheckMembershipsOfGroup},
        {"Queries",
         "TheMembershipsOfALayerGoByGroup",
         "LayerQueries::MembershipsOfLayer: the rows of the layer, with GroupID, LayerID and Ordering, "
         "ordered "
         "by GroupID.",
         {},
         Town,
         CheckMembershipsOfLayer},
        {"Queries",
         "EachGroupOfALayerComesOnce",
         "LayerQueries::GroupsOfLayer: the GroupID of each group of the layer, once, in any order.",
         {},
         Town,
         CheckGroupsOfLayer},
        {"Queries",
         "AnEmptyDatabaseHasNoRows",
         "All queries: a cursor that is at its end, not an error, when there are no layers and no groups.",
         {},
         NoContents,
         CheckNothing},
    };
}

} // namespace Orvane::HostTests
