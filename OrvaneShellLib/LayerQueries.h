// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

/// The texts of all queries that the component issues. A host without SQL may compare them character by
/// character, so they never change, not even by a blank. IDs are written in decimal, without grouping.
///
/// Each query is opened with ILayerDatabase::OpenRecordset. The columns of the tables are listed in
/// LayerColumns.h; LayerGroupMembers has GroupID, LayerID and Ordering. Names sort without case.
namespace Orvane::LayerQueries {

namespace Detail {

inline QString TreeFilter(const std::optional<QString>& groupName)
{
    if (!groupName)
        return QStringLiteral(" AND LayerGroups.Pseudo = False");
    QString quoted = *groupName;
    quoted.replace(QLatin1Char('\''), QLatin1String("''"));
    return QStringLiteral(" AND LayerGroups.Name = '") + quoted + QLatin1Char('\'');
}

} // namespace Detail

/// All rows of the groups tree: one row for each layer of each group, with the Layers columns and the
/// membership's GroupID and Ordering. groupName: only the group with that name, pseudo or not; without a
/// name, all groups that are not pseudo. A quote in the name is doubled. Rows with a Code of -2 or less are
/// included.
inline QString Tree(const std::optional<QString>& groupName)
{
    return QStringLiteral("SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
                          " FROM LayerGroupMembers, LayerGroups, Layers"
                          " WHERE LayerGroupMembers.LayerID=Layers.LayerID"
                          " AND   LayerGroupMembers.GroupID=LayerGroups.ID")
        + Detail::TreeFilter(groupName)
        + QStringLiteral(" ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID ");
}

/// The rows of the flat list, by name.
inline QString LayerList()
{
    return QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
}

/// The row of one layer; none if its Code hides it.
inline QString OneLayer(qint32 layerID)
{
    return QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = ")
        + QString::number(layerID);
}

/// The IDs of a group's layers.
inline QString MemberLayerIDs(qint32 groupID)
{
    return QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=") + QString::number(groupID);
}

/// The membership rows of a group.
inline QString MembershipsOfGroup(qint32 groupID)
{
    return QStringLiteral("SELECT * FROM LayerGroupMembers WHERE GroupID=") + QString::number(groupID)
        + QStringLiteral(" ORDER BY GroupID");
}

/// The membership rows of a layer.
inline QString MembershipsOfLayer(qint32 layerID)
{
    return QStringLiteral("SELECT * FROM LayerGroupMembers WHERE LayerID=") + QString::number(layerID)
        + QStringLiteral(" ORDER BY GroupID");
}

/// The IDs of the groups that a layer is in, each once.
inline QString GroupsOfLayer(qint32 layerID)
{
    return QStringLiteral("SELECT DISTINCT GroupID FROM LayerGroupMembers WHERE LayerID=")
        + QString::number(layerID);
}

} // namespace Orvane::LayerQueries
