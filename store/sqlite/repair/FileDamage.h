// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// Something wrong inside a file, in SQLite's words.
struct FileDamage {
    QString message;
    bool isRepairable = false; ///< RepairDamage can mend it
};

/// What SQLite finds wrong, the first 20 places. Raises database errors.
std::vector<FileDamage> FindDamage(SqliteLayerDatabase& database);

/// Mends indexes that do not match their tables. Raises database errors.
void RepairDamage(SqliteLayerDatabase& database);

} // namespace Orvane
