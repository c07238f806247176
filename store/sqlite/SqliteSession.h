// SPDX-License-Identifier: MIT
#pragma once

#include "store/sqlite/ChangeWatch.h"
#include "store/sqlite/OpenRows.h"
#include "store/sqlite/TableAccess.h"
#include "store/sqlite/TransactionStack.h"
#include "store/sqlite/engine/SqliteConnection.h"
#include "store/sqlite/engine/StatementPool.h"

namespace Orvane {

/// Everything that makes up one open layer database; used by cursors.
struct SqliteSession {
    SqliteSession(const QString& path, SqliteConnection::Access access, const StoreOptions& options)
        : connection(path, access, options)
    {
    }

    SqliteConnection connection;
    OpenRows openRows;
    ChangeWatch changes{connection};
    TransactionStack transactions{connection, openRows, changes};
    StatementCache statements{connection};
    TableAccess layers{connection, "Layers", "LayerIDIDX", "LayerID"};
    TableAccess groups{connection, "LayerGroups", "IDIDX", "ID"};
};

} // namespace Orvane
