// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <ogr_spatialref.h>

namespace Orvane {

/// GDAL's object for a coordinate system as in CoordinateSystems.h, with east before north. Empty if the text
/// is not a system. A text that names a file or an address on the network is none: nothing is opened.
OGRSpatialReference ReferenceOf(const QString& system);

/// The system of data: the chosen one, or what the source names if none is chosen or the chosen one is not a
/// system. named: nullptr for none. Empty if there is neither.
OGRSpatialReference ReferenceOf(const QString& chosen, const OGRSpatialReference* named);

} // namespace Orvane
