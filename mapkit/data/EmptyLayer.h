// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/FeatureSet.h"

#include <QString>

namespace Orvane {

/// The number of the RunTimeError for a data file that cannot be written.
inline constexpr int LayerUncreatable = 10104;

/// Adds a layer without features to a GeoPackage, which is made when it is missing: one field "name", and
/// geometries of that kind in that coordinate system (as in CoordinateSystems.h). Returns the layer's name in
/// the file: the name given or, where the file has such a layer, one with a number behind it.
///
/// Raises a RunTimeError that names the file; a new file is then removed, and one that was there stays as it
/// was.
QString CreateEmptyLayer(const QString& path, const QString& name, FeatureKind kind, const QString& system);

} // namespace Orvane
