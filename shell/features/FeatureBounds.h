// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/drawing/MapLayer.h"
#include "shell/features/FeatureKey.h"

#include <span>

namespace Orvane {

/// The bounds of these features in these layers; empty if there are none of them.
Box BoundsOf(std::span<const MapLayer> layers, const FeatureKeys& keys);

} // namespace Orvane
