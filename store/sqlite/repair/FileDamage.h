// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// One damaged place in a file, with SQLite's description.
struct FileDamage {
    QString message;
    bool isRepairable = false; ///< RepairDamage can repair it
};

/// The damage that SQLite finds, at most 20 places. Raises database errors.
std::vector<FileDamage> FindDamage(SqliteLayerDatabase& database);

/// Repairs indexes that do not match their tables. Raises database errors.
void RepairDamage(SqliteLayerDatabase& database);

} // namespace Orvane
