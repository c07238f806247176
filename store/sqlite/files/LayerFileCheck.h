// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreOptions.h"
#include "store/sqlite/engine/SqliteConnection.h"

#include <QString>

namespace Orvane {

/// Examines a file without changing it or any file next to it. Returns how to open it in that mode, or raises
/// if it cannot be opened as a layer database: NotALayerDatabase, DatabaseTooNew, DatabaseReadOnly, or
/// DatabaseFailure for a file that is missing, cannot be read or takes too long to check.
SqliteConnection::Access CheckLayerFile(const QString& path, OpenMode mode, const StoreOptions& options);

} // namespace Orvane
