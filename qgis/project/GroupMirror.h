// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/lists/ListedLayer.h"

#include <QHash>
#include <QString>

#include <vector>

class QgsLayerTreeGroup;
class QgsProject;

namespace Orvane {

/// The groups of a project's layer tree as flat groups of a layer store. A group that is nested in another is
/// named after both, "Town / Buildings", and every group has all layers below it.
class GroupMirror
{
public:
    /// project: not owned; outlives this object.
    explicit GroupMirror(QgsProject& project) : m_project(project) { }

    /// All groups in the order of the tree. A group keeps its ID while it is moved, renamed, saved and
    /// opened. layerIDs: from QGIS's layer IDs to those of the store; other layers are left out.
    std::vector<ListedGroup> Read(const QHash<QString, qint32>& layerIDs);

    /// Gives the node of the group this name, without those of the groups around it if it begins with them.
    /// Does nothing for a group that the last Read did not find.
    void Rename(qint32 groupID, const QString& name);

private:
    QgsLayerTreeGroup* Find(qint32 groupID) const;

    QgsProject& m_project;
};

} // namespace Orvane
