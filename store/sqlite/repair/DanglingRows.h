// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <vector>

namespace Orvane {

class SqliteLayerDatabase;

/// Rows of one table that refer to missing rows of another. They are left by programs that do not enforce
/// references.
struct DanglingRows {
    QString table;
    QString column; ///< holds the key of the missing row
    QString parent; ///< the table that the row is missing from
    QString parentColumn;
    qint32 count = 0; ///< at least 1
};

/// A reference that a table does not declare.
struct UndeclaredReference {
    const char* table;
    const char* column;
    const char* parent;
    const char* parentColumn;
};

/// All dangling rows of a file, found by the references that its tables declare and by others that the caller
/// knows. References between missing tables are ignored. Raises database errors.
std::vector<DanglingRows>
FindDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared);

/// Removes the dangling rows, and those that dangle after that. Call it in a transaction.
void RemoveDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared);

} // namespace Orvane
