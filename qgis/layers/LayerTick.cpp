// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerTick.h"

#include "qgis/layers/LayerNode.h"
#include "qgis/layers/OverrideMode.h"

namespace Orvane {

Value ReadVisible(const QgsMapLayer& layer, const QgsProject& project)
{
    if (const std::optional<bool> before = TickBeforeHiding(layer, project))
        return *before;
    const QgsLayerTreeLayer* node = NodeOf(layer, project);
    return node ? Value(node->itemVisibilityChecked()) : Value::Null();
}

void WriteVisible(QgsMapLayer& layer, const QgsProject& project, bool visible)
{
    if (TickBeforeHiding(layer, project))
        return SetTickBeforeHiding(layer, visible);
    if (QgsLayerTreeLayer* node = NodeOf(layer, project))
        node->setItemVisibilityChecked(visible);
}

} // namespace Orvane
