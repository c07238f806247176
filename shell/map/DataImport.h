// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/document/MapDocument.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace Orvane {

class Progress;

/// What was found in files.
struct FoundData {
    struct Source {
        QString path;
        std::vector<SourceLayer> layers;
    };
    std::vector<Source> sources; ///< files with at least one layer
    QStringList problems; ///< one sentence for each file without layers
};

/// Examines files without reading their features; for any thread. Raises Cancelled.
FoundData LookInto(const QStringList& paths, Progress& progress);

/// How many layers were found in all files.
size_t LayerCount(const FoundData& data);

/// A new layer with the data of a source's layer. The number selects its colours; points are drawn over
/// lines, and lines over areas.
NewLayer LayerFor(const QString& path, const SourceLayer& found, size_t number);

/// The coordinate system of a layer that was found: the chosen one, or what its source names. Empty for none.
const QString& SystemOf(const SourceLayer& layer);
/// Where all layers lie that were found.
std::vector<PlacedExtent> PlacesOf(const FoundData& data);

/// The coordinate system in which the map shows the data: its own, or for a map that has none, the one that
/// SystemToShow chooses for all of them. Empty if their systems are not known.
QString SystemFor(const MapDocument& document, const FoundData& data);

/// Reads the features of all layers that were found; for any thread. system: as SystemFor returns it. The
/// layers have the numbers from 0 on in place of IDs, in the order in which AddToMap returns them. Raises
/// Cancelled.
SourceContents ReadFound(const FoundData& data, const QString& system, Progress& progress);

/// Adds what was found to the map, a group for each file and a layer for each of its layers, each in a
/// different colour, in one transaction. Returns the IDs of the layers. Sets the map's coordinate system to
/// that of SystemFor. Errors are those of the database, UserCancelled too; the map is then as before.
std::vector<qint32> AddToMap(MapDocument& document, const FoundData& data);

/// What ReadFound returned, with the IDs that AddToMap returned.
SourceContents WithIDs(const SourceContents& contents, const std::vector<qint32>& layerIDs);

} // namespace Orvane
