// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/looks/LayerRendering.h"

#include <QtGlobal>

#include <map>

namespace Orvane {

class ILayerStore;

/// The table LayerRendering of a map file: what each layer's renderer style works with. A layer without a row
/// has the values that a new LayerRendering has; a deleted layer takes its row with it. Errors are those of
/// the database.
class RenderingTable
{
public:
    /// database: not owned; outlives this object.
    explicit RenderingTable(ILayerStore& database) : m_database(database) { }

    /// Makes the table where it is missing.
    void Create();

    /// Every row by layer ID. What a column cannot hold counts as its default.
    std::map<qint32, LayerRendering> All() const;
    LayerRendering Of(qint32 layerID) const;
    /// Gives an existing layer its row, in place of the one it has.
    void Set(qint32 layerID, const LayerRendering& rendering);

private:
    ILayerStore& m_database;
};

} // namespace Orvane
