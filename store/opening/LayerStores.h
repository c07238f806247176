// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/store/StoreOptions.h>

#include <QString>

#include <chrono>
#include <memory>

namespace Orvane {

class ILayerStore;

/// Opens layer stores by their place: the path of a file, or a map on a server, as StorePlace tells them
/// apart. In a program that was built without PostgreSQL, Create, Make and Open raise DatabaseFailure for a
/// place on a server.
///
///     const auto map = LayerStores::Open(place);
namespace LayerStores {

/// StoreOptions::answerTimeout for work on a whole map, such as copying it: a server is silent while it
/// checks all references. That a network is dead is noticed sooner.
inline constexpr std::chrono::minutes WholeMapTimeout{5};

/// Creates a store with empty tables. Raises DatabaseFailure if the store already exists or cannot be
/// created; no incomplete store remains then.
std::unique_ptr<ILayerStore> Create(const QString& place, const StoreOptions& options = {});

/// Makes a store with empty tables, which fill may change, and puts it at that place when it is complete. A
/// store that is replaced stays as it was if anything fails, on a full disk too. Raises DatabaseFailure if
/// the store exists and is to stay, or cannot be written, DatabaseLocked if the store to be replaced is open
/// anywhere, and what fill raises.
void Make(
    const QString& place, IfExists ifExists, const StoreFiller& fill = {}, const StoreOptions& options = {});

/// Removes a store that is not open. Does nothing if it is missing, or if the user may not; raises nothing.
void Remove(const QString& place);

/// Opens a store. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for a store of a
/// newer version, DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if it
/// is missing; nothing is changed then. A store of an older version is migrated, except in ReadOnly mode.
std::unique_ptr<ILayerStore>
Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

/// True when there is a file, or on a server a schema, at that place, whatever it holds. Raises database
/// errors if the server cannot be asked.
bool Exists(const QString& place, const StoreOptions& options = {});

/// Creates empty tables in memory, which exist as long as the object.
std::unique_ptr<ILayerStore> CreateInMemory(const StoreOptions& options = {});

/// True while the store is open anywhere, including in this program. If it is missing or is not a layer
/// store, it is not in use; nor is a map on a server that cannot be asked. Many may have a map on a server
/// open: it can only not be replaced or removed meanwhile. Raises only for lack of memory.
bool IsInUse(const QString& place);

} // namespace LayerStores

} // namespace Orvane
