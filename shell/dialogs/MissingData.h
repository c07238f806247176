// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class MapDocument;
class Progress;

/// The sources whose file is not at its path.
std::vector<LayerSource> MissingSources(const MapDocument& document);

/// Looks for the files of these sources, by name, in the folder and its subfolders; for any thread. Returns
/// the sources that were found, with their new path; if files have the same name, the least deep one. Raises
/// Cancelled.
std::vector<LayerSource>
LookForData(const std::vector<LayerSource>& missing, const QString& folder, Progress& progress);

/// Gives the map's layers the sources that were found, in one transaction. Raises errors of the database.
void TakeFoundData(MapDocument& document, const std::vector<LayerSource>& found);

} // namespace Orvane
