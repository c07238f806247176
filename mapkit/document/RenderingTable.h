// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/looks/LayerRendering.h"

#include <QtGlobal>

#include <map>
#include <vector>

namespace Orvane {

class ILayerStore;

/// The table LayerRendering of a map file: the settings for each layer's renderer style. A layer without a
/// row has the default values of LayerRendering. When a layer is deleted, its row is removed too. Errors are
/// those of the database.
class RenderingTable
{
public:
    /// database: not owned; outlives this object.
    explicit RenderingTable(ILayerStore& database) : m_database(database) { }

    /// Creates the table if it is missing.
    void Create();

    /// Every row by layer ID. Values that are not valid for a column are replaced by its default.
    std::map<qint32, LayerRendering> All() const;
    /// Those of these layers, by one query for many; a layer without a row is missing.
    std::map<qint32, LayerRendering> Of(const std::vector<qint32>& layerIDs) const;
    LayerRendering Of(qint32 layerID) const;
    /// Stores the row of an existing layer, replacing its former row.
    void Set(qint32 layerID, const LayerRendering& rendering);

private:
    ILayerStore& m_database;
};

} // namespace Orvane
