// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"
#include "mapkit/document/SourcePaths.h"

#include <vector>

namespace Orvane {

class ILayerStore;

/// The table LayerSources of a map file: where each layer's features come from. A deleted layer takes its row
/// with it. Errors are those of the database.
class SourceTable
{
public:
    /// database: not owned; outlives this object. mapPath: absolute; empty for a map without a file.
    SourceTable(ILayerStore& database, const QString& mapPath) : m_database(database), m_paths(mapPath) { }

    /// Makes the table where it is missing, and brings an older one up to date.
    void Create();

    /// Every row by layer ID, with paths as they are found now. Reads older tables too; none at all counts
    /// as empty.
    std::vector<LayerSource> All() const;

    /// Gives the layer its source, in place of the one it has. path: absolute.
    void Set(const LayerSource& source);

private:
    ILayerStore& m_database;
    SourcePaths m_paths;
};

} // namespace Orvane
