// SPDX-License-Identifier: MIT
#pragma once

#include "shell/data/FeatureSet.h"
#include "shell/drawing/LayerLook.h"

#include <limits>
#include <memory>

namespace Orvane {

/// How a layer takes part in the map, as Layers.OverrideMode stores it.
enum class DrawMode {
    Normal = 0,
    Backdrop = 1, ///< pale, and below every normal layer
    Hidden = 2, ///< not at all
};

/// One layer as the map draws it.
struct MapLayer {
    qint32 layerID = 0;
    bool visible = true;
    DrawMode mode = DrawMode::Normal;
    int priority = 0; ///< 1 is drawn on top, 255 at the bottom
    double minDenominator = 0; ///< shown at scales from 1 : this ...
    double maxDenominator = std::numeric_limits<double>::infinity(); ///< ... to 1 : this
    DrawingValues values;
    LayerLook look; ///< follows from the values
    std::shared_ptr<const FeatureSet> features; ///< nullptr while they cannot be read

    /// True when both would be drawn into the same pixels.
    bool LooksLike(const MapLayer& other) const
    {
        return values == other.values && features == other.features;
    }
};

} // namespace Orvane
