// SPDX-License-Identifier: MIT
#include "qgis/layers/LayerScales.h"

#include "hostkit/common/StoredScale.h"

#include <qgsmaplayer.h>

namespace Orvane {

namespace {

double LimitOf(double stored)
{
    return stored > 0 && stored < StoredScale::BeyondAllScales ? stored : StoredScale::NoLimit;
}

} // namespace

LayerScales ReadScales(const QgsMapLayer& layer)
{
    if (!layer.hasScaleBasedVisibility())
        return {};
    return {layer.maximumScale(), layer.minimumScale()};
}

void WriteScales(QgsMapLayer& layer, const LayerScales& scales)
{
    const LayerScales limits{LimitOf(scales.minimum), LimitOf(scales.maximum)};
    if (limits.minimum != 0 || limits.maximum != 0) { // otherwise QGIS keeps its numbers for later
        layer.setMaximumScale(limits.minimum);
        layer.setMinimumScale(limits.maximum);
    }
    layer.setScaleBasedVisibility(limits.minimum != 0 || limits.maximum != 0);
}

} // namespace Orvane
