// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/geopackage/PackageCatalogue.h"
#include "mapkit/geopackage/PackageConnection.h"

#include <QString>

namespace Orvane {

/// A GeoPackage whose features are read past GDAL, which takes milliseconds for each layer of a file with
/// many layers. It gives what GDAL would give, or raises PackageDoubt: then GDAL must be asked.
///
///     Package package(path);
///     const PackageLayer roads = package.Layer("roads");
///     PackageStatement rows = package.Features(roads);
///     while (rows.Step())
///         Add(rows.Whole(0), rows.Bytes(1));
///
/// For the thread that made it. Use it below a ReadingBound, which ends what takes too long.
class Package
{
public:
    /// Opens the file, and reads what it says about its tables. Raises PackageDoubt for a file that another
    /// program may be writing to, too.
    explicit Package(const QString& path);

    /// The layer of that name, complete. Raises PackageDoubt as PackageCatalogue and KeyInPackage do.
    PackageLayer Layer(const QString& name) const;
    /// The ID and the geometry of each feature of the layer, in GDAL's order.
    PackageStatement Features(const PackageLayer& layer) const;

private:
    PackageConnection m_connection;
    PackageCatalogue m_catalogue;
};

} // namespace Orvane
