// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

struct SqliteSession;
struct StoreTable;

/// Implements ILayerStore's members for tables of the host in SQLite. All raise database errors.

/// As ILayerStore::PrepareTable.
void PrepareTable(SqliteSession& session, const StoreTable& table);
/// As ILayerStore::HasTable.
bool HasTable(SqliteSession& session, const QString& table);
/// As ILayerStore::HasColumn.
bool HasColumn(SqliteSession& session, const QString& table, const QString& column);

} // namespace Orvane
