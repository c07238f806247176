// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/StoreOptions.h>

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

/// Makes a store with empty tables, which fill may change, and puts it at that place when it is complete. A
/// store that is replaced stays as it was if anything fails, on a full disk too. Raises DatabaseFailure if
/// the store exists and is to stay, or cannot be written, DatabaseLocked if the store to be replaced is open
/// anywhere, and what fill raises.
void Make(
    const QString& place, IfExists ifExists, const StoreFiller& fill = {}, const StoreOptions& options = {});

/// Removes a store that is not open. Does nothing if it is missing; raises nothing.
void Remove(const QString& place);

/// Opens a store. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for a store of a
/// newer version, DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if it
/// is missing; nothing is changed then. A store of an older version is migrated, except in ReadOnly mode.
std::unique_ptr<ILayerStore>
Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

/// Creates empty tables in memory, which exist as long as the object.
std::unique_ptr<ILayerStore> CreateInMemory(const StoreOptions& options = {});

/// True while the store is open anywhere, including in this program. If it is missing or is not a layer
/// store, it is not in use. Raises only for lack of memory.
bool IsInUse(const QString& place);

} // namespace LayerStores

} // namespace Orvane
