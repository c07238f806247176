// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// Finds files that hold map data by their names. Other files may hold map data too, if the user chooses one.
namespace DataFiles {

/// "*.gpkg *.shp ...": the usual file name extensions, for file dialogs.
QString Patterns();

/// The data files directly in that folder, with their paths, ordered by name. Files that only accompany
/// others, such as the .dbf of a .shp, are left out.
QStringList In(const QString& folder);

} // namespace DataFiles

} // namespace Orvane
