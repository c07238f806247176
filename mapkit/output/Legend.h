// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"

#include <OrvaneShellLib/MonochromeBitmap.h>

#include <QString>

#include <vector>

namespace Orvane {

class ILayerDatabase;
class IShellServices;

/// One row of a legend.
struct LegendRow {
    QString text;
    bool heading = false; ///< the name of a group
    bool sample = true; ///< false: text only
    int indent = 0; ///< its level: the number of rows above it that it belongs to
    bool backdrop = false; ///< drawn pale
    FeatureKind kind = FeatureKind::Area; ///< the kind of the layer's first feature
    DrawingValues values;
    LayerLook look; ///< derived from the values
    MonochromeBitmap fillPattern; ///< for a fill style with a pattern
    std::shared_ptr<const MapRaster> raster; ///< for a raster, whose sample shows the middle of it

    static LegendRow Heading(const QString& text)
    {
        LegendRow row;
        row.text = text;
        row.heading = true;
        row.sample = false;
        return row;
    }
};

/// The legend of these layers: groups in the order of the layer control with their layers below them, each
/// layer once, layers without a group at the end. A graduated layer is followed by the name of its attribute,
/// its classes, and "No data" if features are in none. A group has
/// no heading if only one of its layers is listed. Errors of the database and the services are passed on.
std::vector<LegendRow>
LegendOf(ILayerDatabase& database, const IShellServices& services, const std::vector<MapLayer>& layers);

} // namespace Orvane
