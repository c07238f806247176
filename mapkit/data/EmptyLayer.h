// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>

namespace Orvane {

/// The number of the RunTimeError for a data file that cannot be written.
inline constexpr int LayerUncreatable = 10104;

/// Adds a layer without features to a GeoPackage, which is created if it is missing. The layer has one field
/// "name", and geometries of that kind in that coordinate system (as in CoordinateSystems.h). Returns the
/// layer's name in the file: the given name or, if the file already has a layer of that name, the name
/// followed by a number.
///
/// Raises a RunTimeError that names the file; a new file is then removed, and an existing file stays as it
/// was.
QString CreateEmptyLayer(const QString& path, const QString& name, FeatureKind kind, const QString& system);

} // namespace Orvane
