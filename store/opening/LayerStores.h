// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <QString>

#include <memory>

namespace Orvane {

class ILayerStore;

/// Opens layer stores by their location. At present a location is the path of a file.
///
///     const auto map = LayerStores::Open(place);
namespace LayerStores {

/// Creates a store with empty tables. Raises DatabaseFailure if the store already exists or cannot be
/// created; no incomplete file remains then.
std::unique_ptr<ILayerStore> Create(const QString& place, const StoreOptions& options = {});

/// Opens a store. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for a store of a
/// newer version, DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if it
/// is missing; nothing is changed then. A store of an older version is migrated, except in ReadOnly mode.
std::unique_ptr<ILayerStore>
Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

/// Creates empty tables in memory, which exist as long as the object.
std::unique_ptr<ILayerStore> CreateInMemory(const StoreOptions& options = {});

/// True while the store is open anywhere, including in this program. If it is missing or is not a layer
/// store, it is not in use. Raises nothing.
bool IsInUse(const QString& place);

} // namespace LayerStores

} // namespace Orvane
