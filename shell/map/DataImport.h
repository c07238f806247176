// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/CoordinateSystems.h"
#include "mapkit/data/DataSource.h"
#include "mapkit/data/SourceReader.h"
#include "mapkit/document/MapDocument.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <vector>

namespace Orvane {

class Progress;

/// Why a file has no layers, or one of its parts has none.
struct DataProblem {
    QString path; ///< as it was given
    QString text; ///< a sentence that names the file without its folder
};

/// What was found in files.
struct FoundData {
    struct Source {
        QString path;
        std::vector<SourceLayer> layers;
        std::shared_ptr<const ServerTables> server = {}; ///< for a path that is ServerTablePath
    };
    std::vector<Source> sources; ///< files with at least one layer
    std::vector<TableChoice> tables; ///< tables without geometry, with the columns that are guessed
    std::vector<DataProblem> problems; ///< at least one for each file without layers

    /// The sentences of the problems, as lines.
    QString ProblemText() const;
};

/// Examines files, and those in folders, without reading all their features; for any thread. Raises
/// Cancelled. Layers that would show nothing or what another one shows, as GPX files have them, are left out.
/// A layer of several kinds of geometry is found as several, one for each kind. A georeferenced raster is a
/// layer; a picture that does not say where it lies is a problem.
FoundData LookInto(const QStringList& paths, Progress& progress);

/// The same data with its tables as layers: the columns that the user chose meanwhile count. Tables without
/// columns are left out; a file of which nothing is left becomes a problem. For any thread. Raises Cancelled.
FoundData WithTablesAsLayers(FoundData data, Progress& progress);

/// How many layers were found in all files.
size_t LayerCount(const FoundData& data);

/// A new layer with the data of a source's layer, named after it and its kind of geometry if it has several.
/// The number selects its colours; points are drawn over lines, lines over areas, and all over
/// rasters.
NewLayer LayerFor(const QString& path, const SourceLayer& found, size_t number);

/// The coordinate system of a layer that was found: the chosen one, or what its source names. Empty for none.
const QString& SystemOf(const SourceLayer& layer);
/// Where all layers lie that were found.
std::vector<PlacedExtent> PlacesOf(const FoundData& data);

/// The coordinate system in which the map shows the data: its own, or for a map that has none, the one that
/// SystemToShow chooses for all of them. Empty if their systems are not known.
QString SystemFor(const MapDocument& document, const FoundData& data);

/// Reads the data of all layers that were found; for any thread. system: as SystemFor returns it. The
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
