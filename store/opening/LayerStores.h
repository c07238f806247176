// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"

#include <QString>

#include <memory>

namespace Orvane {

class ILayerStore;

/// Opens layer stores by their place, whatever kind of store it names: today the path of a file.
///
///     const auto map = LayerStores::Open(place);
namespace LayerStores {

/// Creates a store with empty tables. Raises DatabaseFailure if there is one already or it cannot be created;
/// nothing is left behind then.
std::unique_ptr<ILayerStore> Create(const QString& place, const StoreOptions& options = {});

/// Opens a store. Raises NotALayerDatabase for a foreign or damaged file, DatabaseTooNew for one of a newer
/// version, DatabaseReadOnly if it is opened for writing and cannot be written, DatabaseFailure if it is
/// missing; nothing is touched then. A store of an older version is migrated, except in ReadOnly mode.
std::unique_ptr<ILayerStore>
Open(const QString& place, OpenMode mode = OpenMode::ReadWrite, const StoreOptions& options = {});

/// Creates empty tables in memory that exist as long as the object.
std::unique_ptr<ILayerStore> CreateInMemory(const StoreOptions& options = {});

/// True while the store is open anywhere, including in this program. One that is missing or is no layer store
/// is not in use. Raises nothing.
bool IsInUse(const QString& place);

} // namespace LayerStores

} // namespace Orvane
