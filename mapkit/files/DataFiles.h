// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>

namespace Orvane {

/// Finds files that hold map data by their names. Other files may hold map data too, if the user chooses one.
namespace DataFiles {

/// "*.gpkg *.shp ...": the usual file name extensions, for file dialogs.
QString Patterns();

/// The same for rasters.
QString RasterPatterns();

/// Whether a file has the name of a raster.
bool IsNamedAsRaster(const QString& path);

/// Whether a file is most likely a raster of a map, by its name; an ordinary picture, such as a .png, only if
/// a file beside it says where it lies.
bool IsRaster(const QString& path);

/// Whether a file may hold features and rasters, by its name: a GeoPackage.
bool MayHoldBoth(const QString& path);

/// The data source to which a path belongs, by its name alone: the path itself for a data file; for a path
/// within a folder that is one source, such as "town.gdb/a.gdbtable", the folder. Empty for files that only
/// accompany others, such as the .dbf of a .shp, and for all else.
QString SourceOf(const QString& path);

/// What is meant by files and folders that the user chose together: the data in a folder (the folder itself
/// if no file in it is known by its name), and one source for all its files. Each once. atEach: as below.
QStringList Meant(const QStringList& chosen, const std::function<void()>& atEach = {});

/// The data files in that folder and its subfolders, with their paths, ordered by name; a folder that is one
/// source counts as one file. Hidden folders are left out. atEach: called for each entry; may raise.
QStringList In(const QString& folder, const std::function<void()>& atEach = {});

} // namespace DataFiles

} // namespace Orvane
