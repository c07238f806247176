// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QString>

#include <memory>
#include <vector>

class OGRCoordinateTransformation;
class OGRSpatialReference;

namespace Orvane {

/// Coordinate systems are texts that GDAL understands: "EPSG:32632", WKT or a PROJ string. Every coordinate
/// pair is (east, north), whatever the authority's axis order.

/// Length of the system's unit in metres; for degrees, along the equator. 1 if the text is not a system.
double MetresPerUnit(const QString& system);

/// The system for showing a map, from the system and extent (in its own units) of its first data. Projected
/// data keeps its system. Geographic data of the whole world is shown in an equal-area world projection, and
/// data of a part of the world in web Mercator, which keeps shapes.
QString SystemToShow(const QString& system, const Box& extent);

/// Where data lies.
struct PlacedExtent {
    QString system; ///< empty if it is not known
    Box extent; ///< in its system; empty if it is not known
};

/// The same for all data that a new map gets at once. The largest decides, whatever its place in the list;
/// data that only together go round the world are shown in the world projection. Empty if no system is known.
QString SystemToShow(const std::vector<PlacedExtent>& data);

/// The text for a system that a data source names; empty for none, and for a local one of unknown place.
QString SystemText(const OGRSpatialReference* system);

/// Gives a transformation back to GDAL, which keeps the last ones: making one takes as long as transforming
/// thousands of vertices.
struct TransformationKeeper {
    void operator()(OGRCoordinateTransformation* transformation) const;
};

/// A transformation of coordinates, or none. For one thread at a time.
using KeptTransformation = std::unique_ptr<OGRCoordinateTransformation, TransformationKeeper>;

/// Transforms coordinates from a source's system to the map's. nullptr if no transformation is needed,
/// because the systems are equal or one of them is unknown (nullptr or empty).
KeptTransformation TransformationTo(const QString& mapSystem, const OGRSpatialReference* source);

} // namespace Orvane
