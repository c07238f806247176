// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QString>

namespace Orvane {

/// The extent on a map of a box in another system, such as the area of a raster. Systems are texts as in
/// CoordinateSystems.h.
///
/// The inside of the box counts too: a pole may lie in it, and where it passes the edge of the map it reaches
/// both edges. A Mercator map ends at the latitudes of MapEdges; a map around a pole ends as far beyond the
/// equator as its area of use begins before it, because the other pole may be infinitely far away.
///
/// Empty if a system is not known, or the box has no area on the map.
Box BoxOnMap(const Box& box, const QString& system, const QString& mapSystem);

} // namespace Orvane
