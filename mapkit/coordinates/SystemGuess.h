// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QString>

namespace Orvane {

/// The system that is assumed for longitudes and latitudes of which nothing more is known: WGS 84.
inline constexpr auto AssumedDegrees = "EPSG:4326";

/// A map that data is added to.
struct MapPlace {
    QString system; ///< as in CoordinateSystems.h; empty for none
    Box data; ///< of what it shows already, in its system; empty if there is nothing, or it is not known
};

/// The system that data which names none most likely has, from its extent: degrees if it fits them, else the
/// map's system if it fits that. Empty if it fits neither, or is empty.
///
/// Longitudes fit degrees from -180 to 180; across the date line they may go on, as 170 to 190.
/// Coordinates that fit degrees are nevertheless those of a map in a projection if its own data have
/// coordinates as small, at the same place. An extent fits the map's system if it is in the area where that
/// is used. A system for the whole world has no such area: the extent must then meet the map's data, and
/// these be of one region only.
QString GuessSystem(const Box& extent, const MapPlace& map);

} // namespace Orvane
