// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QString>

class QgsLayerTreeLayer;
class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// The places of layers in a project's tree, which owns them. A project alone will do for one layer: the tree
/// is then searched; for many, Indexed searches it once.
class LayerNodes
{
public:
    /// project: not owned; outlives this object.
    LayerNodes(const QgsProject& project) : m_project(project) { } // implicit, see above

    /// Knows the nodes as they are now; not to be used after one was added or removed.
    static LayerNodes Indexed(const QgsProject& project);

    /// The layer's first place; nullptr if it has none.
    QgsLayerTreeLayer* Of(const QgsMapLayer& layer) const;

    /// The project that this object was made for.
    const QgsProject& Project() const { return m_project; }

private:
    const QgsProject& m_project;
    QHash<QString, QgsLayerTreeLayer*> m_nodes; // by QGIS's layer IDs
    bool m_isIndexed = false;
};

} // namespace Orvane
