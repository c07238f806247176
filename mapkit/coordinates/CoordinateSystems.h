// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QString>

#include <memory>

class OGRCoordinateTransformation;
class OGRSpatialReference;

namespace Orvane {

/// Coordinate systems are texts that GDAL understands: "EPSG:32632", or WKT. Every coordinate pair is
/// (east, north), whatever the authority's axis order.

/// Length of the system's unit in metres; of a degree, along the equator. 1 where the text is no system.
double MetresPerUnit(const QString& system);

/// The system to show a map in whose first data has this system and extent (in its own units): projected data
/// as it is, geographic data of the whole world in an equal-area world projection, and of a part of it in web
/// Mercator, which keeps shapes.
QString SystemToShow(const QString& system, const Box& extent);

/// The text for a system that a data source names; empty for none.
QString SystemText(const OGRSpatialReference* system);

/// Turns coordinates of a source's system into a map's; nullptr when there is nothing to turn, because the
/// systems agree or one of them is unknown.
std::unique_ptr<OGRCoordinateTransformation>
TransformationTo(const QString& mapSystem, const OGRSpatialReference* source);

} // namespace Orvane
