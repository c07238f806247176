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

/// A reference that a table does not declare.
struct UndeclaredReference {
    const char* table;
    const char* column;
    const char* parent;
    const char* parentColumn;
};

/// All dangling rows of a file, by the references that its tables declare and by others that the caller
/// knows; one between tables that are missing counts for nothing. Raises database errors.
std::vector<DanglingRows>
FindDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared);

/// Removes them, and those that dangle once they are gone. To be called in a transaction.
void RemoveDanglingRows(SqliteLayerDatabase& database, const std::vector<UndeclaredReference>& undeclared);

} // namespace Orvane
