// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerNodes.h"

#include <qgslayertree.h>
#include <qgsmaplayer.h>
#include <qgsproject.h>

namespace Orvane {

LayerNodes LayerNodes::Indexed(const QgsProject& project)
{
    LayerNodes nodes(project);
    nodes.m_isIndexed = true;
    for (QgsLayerTreeLayer* node : project.layerTreeRoot()->findLayers()) {
        if (!nodes.m_nodes.contains(node->layerId()))
            nodes.m_nodes.insert(node->layerId(), node);
    }
    return nodes;
}

QgsLayerTreeLayer* LayerNodes::Of(const QgsMapLayer& layer) const
{
    return m_isIndexed ? m_nodes.value(layer.id()) : m_project.layerTreeRoot()->findLayer(layer.id());
}

} // namespace Orvane
