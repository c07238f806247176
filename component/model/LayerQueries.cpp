// SPDX-License-Identifier: MIT
#include "component/model/LayerQueries.h"

#include <OrvaneShellLib/LayerValues.h>
#include <OrvaneShellLib/ValueConversions.h>

namespace Orvane {

namespace LayerQueries {

namespace {

QString TreeFilter(const std::optional<QString>& groupName)
{
    if (!groupName)
        return QStringLiteral(" AND LayerGroups.Pseudo = False");
    QString quoted = *groupName;
    quoted.replace(QLatin1Char('\''), QLatin1String("''"));
    return QStringLiteral(" AND LayerGroups.Name = '") + quoted + QLatin1Char('\'');
}

} // namespace

QString Tree(const std::optional<QString>& groupName)
{
    return QStringLiteral("SELECT Layers.*, LayerGroupMembers.GroupID, LayerGroupMembers.Ordering"
                          " FROM LayerGroupMembers, LayerGroups, Layers"
                          " WHERE LayerGroupMembers.LayerID=Layers.LayerID"
                          " AND   LayerGroupMembers.GroupID=LayerGroups.ID")
        + TreeFilter(groupName)
        + QStringLiteral(" ORDER BY LayerGroups.GroupOrdering, Ordering, Layers.LayerID ");
}

QString LayerList()
{
    return QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 ORDER BY Name");
}

QString OneLayer(qint32 layerID)
{
    return QStringLiteral("SELECT Layers.* FROM Layers WHERE Code > -2 AND LayerID = ")
        + QString::number(layerID);
}

QString MemberLayerIDs(qint32 groupID)
{
    return QStringLiteral("SELECT LayerID FROM LayerGroupMembers WHERE GroupID=") + QString::number(groupID);
}

QString MembershipsOfGroup(qint32 groupID)
{
    return QStringLiteral("SELECT * FROM LayerGroupMembers WHERE GroupID=") + QString::number(groupID)
        + QStringLiteral(" ORDER BY GroupID");
}

QString MembershipsOfLayer(qint32 layerID)
{
    return QStringLiteral("SELECT * FROM LayerGroupMembers WHERE LayerID=") + QString::number(layerID)
        + QStringLiteral(" ORDER BY GroupID");
}

QString GroupsOfLayer(qint32 layerID)
{
    return QStringLiteral("SELECT DISTINCT GroupID FROM LayerGroupMembers WHERE LayerID=")
        + QString::number(layerID);
}

} // namespace LayerQueries

qint16 QuickModeFromOverrideMode(const Value& overrideMode)
{
    const double mode = overrideMode.IsNull() ? 0 : ToDouble(overrideMode);
    if (mode == 1)
        return QuickMode::Backdrop;
    return mode == 2 ? QuickMode::Hidden : QuickMode::Normal;
}

std::optional<qint16> OverrideModeFromQuickMode(qint16 quickMode)
{
    switch (quickMode) {
    case QuickMode::Normal:
        return qint16(0);
    case QuickMode::Backdrop:
        return qint16(1);
    case QuickMode::Hidden:
        return qint16(2);
    default:
        return std::nullopt;
    }
}

QString CollectionKey(qint32 id)
{
    return QStringLiteral("IDequals_") + QString::number(id);
}

} // namespace Orvane
