// SPDX-License-Identifier: MIT
#pragma once

#include <qgslayertree.h>
#include <qgslayertreelayer.h>
#include <qgsmaplayer.h>
#include <qgsproject.h>

namespace Orvane {

/// The layer's place in the project's tree, which owns it; nullptr if it has none.
inline QgsLayerTreeLayer* NodeOf(const QgsMapLayer& layer, const QgsProject& project)
{
    return project.layerTreeRoot()->findLayer(layer.id());
}

} // namespace Orvane
