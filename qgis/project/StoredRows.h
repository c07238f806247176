// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

#include <QHash>
#include <QtGlobal>

#include <optional>

namespace Orvane {

class ILayerStore;

/// The rows of the table Layers as values. All functions raise errors of the store.
namespace StoredRows {

/// One row; nothing if there is no such layer.
std::optional<LayerValues> Read(ILayerStore& store, qint32 layerID);

/// Adds a row with all these values, its LayerID too.
void Insert(ILayerStore& store, const LayerValues& row);

/// Stores the columns that differ. Returns true if there was one.
bool Update(ILayerStore& store, const LayerValues& before, const LayerValues& after);

/// True if a column differs, apart from the LayerID.
bool AreDifferent(const LayerValues& one, const LayerValues& other);

/// Removes the row with its places in groups and its values in schemes.
void Delete(ILayerStore& store, qint32 layerID);

} // namespace StoredRows

} // namespace Orvane
