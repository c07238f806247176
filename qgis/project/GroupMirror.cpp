// SPDX-License-Identifier: MIT
#include "qgis/project/GroupMirror.h"

#include <QSet>
#include <qgslayertree.h>
#include <qgsproject.h>

#include <algorithm>

namespace Orvane {

namespace {

const QString GroupIDKey = QStringLiteral("orvane/id"); // goes along when QGIS copies a node to move it
const QString Between = QStringLiteral(" / ");

qint32 KeptGroupID(const QgsLayerTreeGroup& group)
{
    return group.customProperty(GroupIDKey).toInt();
}

// The groups below a node, each before those inside it.
void CollectGroups(QgsLayerTreeGroup& parent, std::vector<QgsLayerTreeGroup*>& found)
{
    for (QgsLayerTreeNode* node : parent.children()) {
        if (!QgsLayerTree::isGroup(node))
            continue;
        found.push_back(QgsLayerTree::toGroup(node));
        CollectGroups(*QgsLayerTree::toGroup(node), found);
    }
}

std::vector<QgsLayerTreeGroup*> GroupsOf(const QgsProject& project)
{
    std::vector<QgsLayerTreeGroup*> groups;
    CollectGroups(*project.layerTreeRoot(), groups);
    return groups;
}

// The names of the groups around a group, each followed by the separator.
QString NamesAround(QgsLayerTreeGroup& group)
{
    QString names;
    QgsLayerTreeNode* node = group.parent();
    for (; node && node->parent(); node = node->parent())
        names.prepend(node->name() + Between);
    return names;
}

// A copied group has the ID of its original.
void GiveEachAnID(const std::vector<QgsLayerTreeGroup*>& groups)
{
    qint32 highest = 0;
    for (const QgsLayerTreeGroup* group : groups)
        highest = std::max(highest, KeptGroupID(*group));
    QSet<qint32> taken;
    for (QgsLayerTreeGroup* group : groups) {
        const qint32 kept = KeptGroupID(*group);
        const qint32 id = kept <= 0 || taken.contains(kept) ? ++highest : kept;
        if (id != kept)
            group->setCustomProperty(GroupIDKey, id);
        taken.insert(id);
    }
}

std::vector<qint32> LayersBelow(const QgsLayerTreeGroup& group, const QHash<QString, qint32>& layerIDs)
{
    std::vector<qint32> below;
    QSet<qint32> taken; // a layer may have several nodes
    const QStringList found = group.findLayerIds();
    below.reserve(size_t(found.size()));
    for (const QString& id : found) {
        const qint32 layerID = layerIDs.value(id);
        if (layerID == 0 || taken.contains(layerID))
            continue;
        taken.insert(layerID);
        below.push_back(layerID);
    }
    return below;
}

} // namespace

std::vector<ListedGroup> GroupMirror::Read(const QHash<QString, qint32>& layerIDs)
{
    const std::vector<QgsLayerTreeGroup*> groups = GroupsOf(m_project);
    GiveEachAnID(groups);
    std::vector<ListedGroup> listed;
    listed.reserve(groups.size());
    for (QgsLayerTreeGroup* group : groups) {
        ListedGroup one;
        one.id = KeptGroupID(*group);
        one.name = NamesAround(*group) + group->name();
        one.layers = LayersBelow(*group, layerIDs);
        one.expanded = group->isExpanded();
        listed.push_back(one);
    }
    return listed;
}

void GroupMirror::Rename(qint32 groupID, const QString& name)
{
    QgsLayerTreeGroup* group = Find(groupID);
    if (!group)
        return;
    const QString around = NamesAround(*group);
    group->setName(name.startsWith(around) ? name.mid(around.size()) : name);
}

QgsLayerTreeGroup* GroupMirror::Find(qint32 groupID) const
{
    const std::vector<QgsLayerTreeGroup*> groups = GroupsOf(m_project);
    const auto found = std::find_if(groups.begin(), groups.end(), [groupID](const QgsLayerTreeGroup* group) {
        return KeptGroupID(*group) == groupID;
    });
    return found == groups.end() ? nullptr : *found;
}

} // namespace Orvane
