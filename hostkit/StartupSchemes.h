// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class SqliteLayerDatabase;

/// The startup database: a second layer database file, from which new maps take their schemes. Layers are
/// matched by code and name, as LayerMatch.h says.
namespace StartupSchemes {

/// Writes all schemes of the map to the startup file, in one transaction. The file and its folder are
/// made when they are missing; layers that it does not know are added; its schemes of other names stay.
void Save(SqliteLayerDatabase& map, const QString& startupFile);

/// Gives the map the schemes of the startup file, in one transaction; those of the same name are replaced.
/// The layers stay as they are. Without that file nothing happens.
void Load(SqliteLayerDatabase& map, const QString& startupFile);

} // namespace StartupSchemes

} // namespace Orvane
