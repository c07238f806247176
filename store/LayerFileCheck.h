// SPDX-License-Identifier: MIT
#pragma once

#include "store/SqliteConnection.h"
#include "store/StoreOptions.h"

#include <QString>

namespace Orvane {

/// Looks at a file without changing a byte of it or beside it. Answers how to open it in that mode, or raises
/// when it cannot be opened as a layer database: NotALayerDatabase, DatabaseTooNew, DatabaseReadOnly, or
/// DatabaseFailure for a file that is missing or cannot be read.
SqliteConnection::Access CheckLayerFile(const QString& path, OpenMode mode, const StoreOptions& options);

} // namespace Orvane
