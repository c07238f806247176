// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class MapDocument;
class Progress;

/// The sources whose file is not where it should be.
std::vector<LayerSource> MissingSources(const MapDocument& document);

/// Looks for these sources' files, by name, in the folder and everything below it; for any thread. Returns
/// those that were found, with their new path: of files of one name the one least deep. Raises Cancelled.
std::vector<LayerSource>
LookForData(const std::vector<LayerSource>& missing, const QString& folder, Progress& progress);

/// Gives the map's layers the sources that were found, in one transaction. Raises errors of the database.
void TakeFoundData(MapDocument& document, const std::vector<LayerSource>& found);

} // namespace Orvane
