// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace Orvane {

/// Files by their names: which of them hold map data. Others may too; a person who names one is believed.
namespace DataFiles {

/// "*.gpkg *.shp ...": the usual endings, for file dialogs.
QString Patterns();

/// The data files directly in that folder, with their paths, ordered by name. Files that only accompany
/// others, as the .dbf of a .shp, are left out.
QStringList In(const QString& folder);

} // namespace DataFiles

} // namespace Orvane
