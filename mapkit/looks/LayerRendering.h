// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/looks/Classification.h"

#include <QString>

namespace Orvane {

/// What a layer's renderer style works with. An empty attribute stands for the one that fits best.
struct LayerRendering {
    QString labelAttribute; ///< written beside the features
    QString classAttribute; ///< sorts the features into classes
    ClassDivision division = ClassDivision::Quantiles;
    int classCount = 5; ///< Classification::MinCount to MaxCount

    bool operator==(const LayerRendering&) const = default;
};

} // namespace Orvane
