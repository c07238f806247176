// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerTick.h"

#include "qgis/layers/OverrideMode.h"

#include <qgslayertreelayer.h>

namespace Orvane {

Value ReadVisible(const QgsMapLayer& layer, const LayerNodes& nodes)
{
    if (const std::optional<bool> before = TickBeforeHiding(layer, nodes))
        return *before;
    const QgsLayerTreeLayer* node = nodes.Of(layer);
    return node ? Value(node->itemVisibilityChecked()) : Value::Null();
}

void WriteVisible(QgsMapLayer& layer, const LayerNodes& nodes, bool visible)
{
    if (TickBeforeHiding(layer, nodes))
        return SetTickBeforeHiding(layer, visible);
    if (QgsLayerTreeLayer* node = nodes.Of(layer))
        node->setItemVisibilityChecked(visible);
}

} // namespace Orvane
