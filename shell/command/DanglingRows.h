// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// Rows of one table that name rows of another which are not there: left behind by a program that does not
/// keep references.
struct DanglingRows {
    QString table;
    QString column; ///< holds the key of the missing row
    QString parent; ///< table that the row is missing from
    QString parentColumn;
    qint32 count = 0; ///< at least 1
};

/// All dangling rows of a map file, of tables that name their references and of the schemes' values. Errors
/// are those of the database.
std::vector<DanglingRows> FindDanglingRows(SqliteLayerDatabase& database);

/// Removes them, and those that dangle once they are gone. To be called in a transaction.
void RemoveDanglingRows(SqliteLayerDatabase& database);

} // namespace Orvane
