// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Where maps in a coordinate system end. What lies on both sides of an edge is far apart on the map.
struct MapEdges {
    double middle = 0; ///< longitude of the middle, in degrees; the edges are 180 degrees west and east of it
    double mostLatitude = 90; ///< degrees; on a Mercator map the poles are infinitely far away
};

/// The edges of a system as in CoordinateSystems.h: those of the whole earth around Greenwich for a system
/// without edges of its own, such as one around a pole, and for a text that is not a system.
MapEdges EdgesOf(const QString& system);

} // namespace Orvane
