// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class PackageConnection;
struct PackageLayer;

/// Whether values of that type are points, lines, polygons or collections of them: not for curves and
/// surfaces, nor for types that are not of the standard.
bool IsPlainGeometryType(const QString& type);

/// The column with the IDs of features: the only column of the table's key, whose values SQLite uses as the
/// numbers of its rows. Raises PackageDoubt if the table has no such key, a column that is computed, other
/// geometry columns than the layer's, or an index over that one.
/// hasIndex: whether there are indexes to look at.
QString KeyInPackage(const PackageConnection& connection, const PackageLayer& layer, bool hasIndex);

} // namespace Orvane
