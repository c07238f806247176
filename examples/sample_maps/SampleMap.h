// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Makes the sample map, replacing a file of that name, with generated data in a GeoPackage next to it. If
/// the data folder holds world_map.gpkg, it is a map of the world, else of a town. Raises RunTimeError.
void MakeSampleMap(const QString& mapPath, const QString& dataFolder);

/// A map of the world. dataFolder: holds world_map.gpkg, and may hold the shapefiles naturalearth_cities and
/// naturalearth_lowres, whose layers are left out otherwise.
void MakeWorldMap(const QString& mapPath, const QString& dataFolder);

/// A map of a made-up town, the same each time.
void MakeTownMap(const QString& mapPath);

/// The file with the generated data of a sample map: "world.gpkg" for "world.orvane".
QString GeneratedDataPath(const QString& mapPath);

} // namespace Orvane
