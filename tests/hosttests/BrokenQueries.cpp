// SPDX-License-Identifier: MIT
#include "hosttests/FaultyDatabase.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QRegularExpression>

#include <stdexcept>

namespace Orvane::Testing {

namespace {

HostTests::MakeHost Replacing(const char* pattern, const char* replacement)
{
    return With({.query = [=](QString query) {
        return query.replace(
            QRegularExpression(QString::fromLatin1(pattern)), QString::fromLatin1(replacement));
    }});
}

QString RowsTwice(const QString& query)
{
    return query.contains(QLatin1String("DISTINCT")) ? query + QStringLiteral(" UNION ALL ") + query : query;
}

std::unique_ptr<IRecordset> RaiseAtEnd(std::unique_ptr<IRecordset> cursor)
{
    if (cursor->AtEOF())
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("no rows"));
    return cursor;
}

QString RaiseForUnknown(const QString& source)
{
    if (source == QLatin1String("NoSuchTable"))
        throw std::runtime_error("no such table");
    return source;
}

QString RaiseForLayers(const QString& source)
{
    if (source == QLatin1String("Layers"))
        throw RunTimeError(ErrorNumber::DatabaseFailure, QStringLiteral("use LayersTable"));
    return source;
}

} // namespace

std::vector<BrokenHost> HostsWithBrokenQueries()
{
    constexpr const char* treeOrder = "ORDER BY LayerGroups.*";
    return {
        {"ItsTreeGoesByLayer",
         Replacing(treeOrder, "ORDER BY Layers.LayerID"),
         {"TheTreeGoesByGroupThenOrderingThenLayer", "ItListsAndShowsAllGroups"}},
        {"ItsGroupsStayTogether",
         Replacing(treeOrder, "ORDER BY GroupOrdering, GroupID, Ordering"),
         {"GroupsWithTheSameOrderingTakeTurns"}},
        {"ItShowsPseudoGroups",
         Replacing(" AND LayerGroups.Pseudo = False", ""),
         {"TheTreeLeavesPseudoGroupsOut"}},
        {"ItIgnoresTheNameOfAGroup", Replacing("LayerGroups.Name = '.*'", "1"), {"ANamedGroupComesAlone"}},
        {"ItHidesNamedPseudoGroups",
         Replacing("LayerGroups.Name", "NOT LayerGroups.Pseudo AND LayerGroups.Name"),
         {"ANamedPseudoGroupIsShown"}},
        {"ItKeepsQuotesDoubled", Replacing("''", "''''"), {"ADoubledQuoteInANameIsOneQuote"}},
        {"ItHidesGroupsWithoutNames",
         Replacing(" ORDER BY LayerGroups", " AND LayerGroups.Name IS NOT NULL ORDER BY LayerGroups"),
         {"AGroupWithoutANameIsListed"}},
        {"ItSortsByCase",
         Replacing("ORDER BY Name", "ORDER BY Name COLLATE BINARY"),
         {"TheListGoesByNameWithoutCase", "ItListsAndShowsAllLayers", "ErrorsOfTheHostArriveUnchanged"}},
        {"ItShowsHiddenLayers",
         Replacing("Code > -2", "Code > -3"),
         {"TheListLeavesHiddenLayersOut", "OneLayerIsItsRowOrNothing",
          "ARollbackIsSeenByQueriesAndByTheClient"}},
        {"ItShowsLayersWithoutACode",
         Replacing("Code > -2", "COALESCE(Code, 0) > -2"),
         {"ALayerWithoutACodeIsHidden"}},
        {"ItListsMembersOfLaterGroups",
         Replacing("GroupID=(\\d+)", "GroupID>=\\1"),
         {"TheMembersOfAGroupAreFound", "TheMembershipsOfAGroupHaveAllColumns",
          "AGroupWithVariousValuesIsApplied"}},
        {"ItSortsMembershipsBackwards",
         Replacing("ORDER BY GroupID", "ORDER BY GroupID DESC"),
         {"TheMembershipsOfALayerGoByGroup"}},
        {"ItListsGroupsTwice", With({.query = RowsTwice}), {"EachGroupOfALayerComesOnce"}},
        {"ItRaisesWhereThereAreNoRows",
         With({.query = [](QString query) { return query; }, .cursor = RaiseAtEnd}),
         {"AnEmptyDatabaseHasNoRows"}},
        {"ItRaisesErrorsOfItsOwnType", With({.query = RaiseForUnknown}), {"OnlyRunTimeErrorsAreRaised"}},
        {"ItHasLayersOnlyInTheClient", With({.query = RaiseForLayers}), {"LayersIsATableOfTheDatabaseToo"}},
    };
}

} // namespace Orvane::Testing
