// SPDX-License-Identifier: MIT
#pragma once

#include "store/OpenRows.h"
#include "store/SqliteConnection.h"
#include "store/StatementPool.h"
#include "store/TableAccess.h"
#include "store/TransactionStack.h"

namespace Orvane {

/// Everything that makes up one open layer database; used by cursors.
struct SqliteSession {
    SqliteSession(const QString& path, SqliteConnection::Access access, const StoreOptions& options)
        : connection(path, access, options)
    {
    }

    SqliteConnection connection;
    OpenRows openRows;
    TransactionStack transactions{connection, openRows};
    StatementCache statements{connection};
    TableAccess layers{connection, "Layers", "LayerIDIDX", "LayerID"};
    TableAccess groups{connection, "LayerGroups", "IDIDX", "ID"};
};

} // namespace Orvane
