// SPDX-License-Identifier: MIT
#pragma once

#include "store/shared/ITableTransfer.h"

namespace Orvane {

struct SqliteSession;

/// Implements ITableTransfer in SQLite, where names may be any text. All raise database errors.

/// As ITableTransfer::CountRows.
std::vector<qint64> CountRows(SqliteSession& session, const std::vector<StoreTable>& tables);
/// As ITableTransfer::CountDangling.
qint64 CountDangling(SqliteSession& session, const StoreTable& table, const StoreColumn& column);
/// As ITableTransfer::ReadRows.
void ReadRows(SqliteSession& session, const StoreTable& table, const RowVisitor& visitor);
/// As ITableTransfer::RemoveRows.
void RemoveRows(SqliteSession& session, const StoreTable& table);
/// As ITableTransfer::AddRows.
void AddRows(
    SqliteSession& session, const StoreTable& table,
    const std::function<void(const RowVisitor& add)>& source);

} // namespace Orvane
