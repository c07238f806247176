// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "mapkit/document/SourcePaths.h"

#include <OrvaneShellLib/Value.h>

#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace Orvane {

class ILayerStore;
class ServerTables;

/// The table LayerSources of a map file: where each layer's data come from. When a layer is deleted, its
/// row is removed too. Errors are those of the database.
class SourceTable
{
public:
    /// database: not owned; outlives this object. mapPath: absolute; empty for a map without a file.
    SourceTable(ILayerStore& database, const QString& mapPath) : m_database(database), m_paths(mapPath) { }
    /// The same for a map whose data are found by these paths, and on that server; nullptr for none.
    SourceTable(
        ILayerStore& database, const SourcePaths& paths, std::shared_ptr<const ServerTables> server = nullptr)
        : m_database(database), m_paths(paths), m_server(std::move(server))
    {
    }

    /// Creates the table if it is missing, and brings an older one up to date.
    void Create();

    /// Every row by layer ID, with paths as they are found now. Can also read older tables; a missing table
    /// counts as empty.
    std::vector<LayerSource> All() const;

    /// The same for these layers, by one query for many; those without a row are missing.
    std::vector<LayerSource> Of(const std::vector<qint32>& layerIDs) const;
    /// The same for one layer; nothing if it has no row.
    std::optional<LayerSource> Of(qint32 layerID) const;

    /// Sets the layer's source, replacing its former one. path: absolute.
    void Set(const LayerSource& source);

    /// Sets only the place of the layer's data, as it is stored.
    void SetPlace(qint32 layerID, const SourcePaths::Place& place);

    /// Stores where all data are, as it is stored at this map's place. former: of the place that the rows
    /// were copied from.
    void Relocate(const SourcePaths& former);

    /// How layers are read that are not read plainly, by layer ID: a text that tells different systems, kinds
    /// of geometry and columns apart. Needs the table as Create leaves it.
    std::map<qint32, QString> ChosenReadings() const;

private:
    // By path and relative path, as they are stored.
    using LayersOfPlaces = std::map<std::pair<QString, QString>, std::vector<qint32>>;

    LayersOfPlaces LayersByPlace() const;
    std::vector<LayerSource> Where(const QString& condition, const std::vector<Value>& values) const;

    ILayerStore& m_database;
    SourcePaths m_paths;
    std::shared_ptr<const ServerTables> m_server;
};

} // namespace Orvane
