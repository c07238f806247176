// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane::Benchmarks {

/// Generated maps and their data, in a folder that is removed when the program ends. Each is made at its
/// first use; the same numbers give the same data.
namespace MapData {

/// The coordinate system of all data and maps: metres.
inline const QString System = QStringLiteral("EPSG:25832");
/// Areas in each layer of File.
inline constexpr int AreasOfLayer = 50;

/// A GeoPackage with that many layers "layer 0", "layer 1" and so on, of areas with nine corners.
QString File(int layerCount, int areasOfLayer = AreasOfLayer);
/// Writes the data of File as a new file at that path.
void WriteFile(const QString& path, int layerCount, int areasOfLayer = AreasOfLayer);
/// A map with that many layers, each of which shows a layer of its own of one GeoPackage.
QString Map(int layerCount);
/// A map with that many layers that are all hidden; many of them show the same data.
QString HiddenMap(int layerCount);
/// The data of that map.
QString FileOfHidden(int layerCount);
/// Another path in the folder.
QString PathOf(const QString& name);

/// The name of a layer in File.
QString LayerName(int number);

} // namespace MapData

} // namespace Orvane::Benchmarks
