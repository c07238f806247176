// SPDX-License-Identifier: MIT
#include "store/sqlite/StoreTest.h"

namespace Orvane::Testing {

namespace {

/// The component's queries to a layer database file.
class QueriesOfFiles : public StoreTest
{
};

} // namespace

TEST_F(QueriesOfFiles, TheTreeIsReadGroupByGroupAndNotSortedWhole)
{
    const auto database = SqliteLayerDatabase::CreateInMemory();
    const auto plan = database->OpenQuery(QStringLiteral(
        "EXPLAIN QUERY PLAN SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
        " FROM LayerGroupMembers, LayerGroups, Layers"
        " WHERE LayerGroupMembers.LayerID=Layers.LayerID"
        " AND   LayerGroupMembers.GroupID=LayerGroups.ID AND LayerGroups.Pseudo = False"
        " ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID "));
    EXPECT_EQ(ToText(plan->Field("detail")), QStringLiteral("SCAN LayerGroups USING INDEX GroupOrderingIDX"));
}

TEST_F(QueriesOfFiles, AMembershipOutlivesItsGroupOnlyWhereNobodyKeepsWatch)
{
    const QString path = MadeFile();
    RawDatabase raw(path);
    raw.Run("PRAGMA foreign_keys = OFF; INSERT INTO LayerGroupMembers VALUES (99, 1, 0)");
    const auto database = SqliteLayerDatabase::Open(path);
    EXPECT_EQ(
        Column(
            *database, QStringLiteral("SELECT DISTINCT GroupID FROM LayerGroupMembers WHERE LayerID=1"),
            "GroupID"),
        (std::vector<qint32>{99}));
    EXPECT_EQ(ErrorOf([&] { AddMember(*database, 98, 1, 0); }), int(ErrorNumber::DatabaseFailure));
}

} // namespace Orvane::Testing
