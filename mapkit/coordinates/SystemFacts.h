// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"

#include <QString>

namespace Orvane {

/// What is known about a coordinate system, for showing it to the user.
struct SystemFacts {
    bool isKnown = false; ///< false if the text is not a system that positions on the earth can be given in
    bool isGeographic = false; ///< its coordinates are longitude and latitude
    QString name; ///< "WGS 84 / UTM zone 32N"
    QString code; ///< "EPSG:32632"; empty if it has none
    QString unit; ///< as the system names it, "metre"
    QString areaName; ///< where it is meant to be used; empty if it does not say so
    Box area; ///< the same in degrees of longitude and latitude; minX above maxX across the date line
};

/// The facts about a system as in CoordinateSystems.h.
SystemFacts FactsOf(const QString& system);

/// "WGS 84 / UTM zone 32N (EPSG:32632)"; the name alone if there is no code; the text itself if it is not a
/// system.
QString SystemTitle(const QString& system);

/// The extent in degrees of longitude and latitude (WGS 84) of a box in that system; across 180 degrees
/// the longitudes go on, as 170 to 190. Empty if it cannot be transformed, or the system is not known.
Box InDegrees(const Box& box, const QString& system);

/// The same box in another system; empty if it cannot be transformed or a system is not known, and for
/// degrees across 180.
Box Transformed(const Box& box, const QString& from, const QString& to);

} // namespace Orvane
