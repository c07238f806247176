// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

class ILayerStore;

/// The startup database: a second layer database file, from which new maps take their schemes. Layers are
/// matched by code and name, as described in LayerMatch.h.
namespace StartupSchemes {

/// Writes all schemes of the map to the startup file, in one transaction. The file and its folder are created
/// if they are missing, the file with all its content or not at all; layers that the file does not have are
/// added; its schemes with other names stay.
void Save(ILayerStore& map, const QString& startupFile);

/// Copies the schemes of the startup file into the map, in one transaction; schemes of the same name are
/// replaced. The layers stay as they are. Does nothing if the file does not exist.
void Load(ILayerStore& map, const QString& startupFile);

} // namespace StartupSchemes

} // namespace Orvane
