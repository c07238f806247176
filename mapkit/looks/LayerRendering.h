// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/looks/Classification.h"

#include <QString>

namespace Orvane {

/// The settings for a layer's renderer style. An empty attribute stands for the most suitable one.
struct LayerRendering {
    QString labelAttribute; ///< shown next to the features
    QString classAttribute; ///< sorts the features into classes
    ClassDivision division = ClassDivision::Quantiles;
    int classCount = 5; ///< Classification::MinCount to MaxCount
    QString ramp = {}; ///< the key of a ramp in ColourRamps; empty: the colours of the layer's fill
    bool isRampReversed = false; ///< the ramp, or the colours of the fill, the other way round

    bool operator==(const LayerRendering&) const = default;
};

} // namespace Orvane
