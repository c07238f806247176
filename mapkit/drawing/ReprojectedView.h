// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapView.h"

#include <QString>

#include <optional>

namespace Orvane {

/// The view in another coordinate system around the same place on the ground, where a pixel covers the same
/// length there. Systems as in CoordinateSystems.h. Nothing if the place has no position in the other system,
/// or one of them is not known.
std::optional<MapView> ReprojectedView(const MapView& view, const QString& from, const QString& to);

} // namespace Orvane
