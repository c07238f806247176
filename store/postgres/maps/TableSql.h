// SPDX-License-Identifier: MIT
#pragma once

#include "store/StoreTable.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

namespace Orvane {

/// Statements that make the tables of a map in a PostgreSQL server. They are run in their order, in a
/// transaction whose search path begins with the map's schema.
///
/// Names are in lower case there, as those in statements without quotes. How a table and its columns are
/// spelled is kept in orvane_names.
namespace TableSql {

/// How the texts of a table are sorted.
enum class TextOrder {
    AsBytes, ///< as in an SQLite file
    WithoutCase, ///< as users expect the names of layers
};

/// The name that the server has for a name in a statement without quotes.
QString ServerName(const QString& name);
/// A text as a statement writes it. Not for values, which are passed as parameters.
QByteArray QuotedText(const QString& text);

/// The same table with an index for each column that refers to another table and is not found by the primary
/// key, so that rows are removed quickly with the row that they refer to.
StoreTable WithReferencesIndexed(StoreTable table);

/// Makes a table with its indexes and triggers. A single key column of whole numbers gets its numbers
/// automatically.
QByteArrayList Making(const StoreTable& table, TextOrder order = TextOrder::AsBytes);
/// Adds a column to a table.
QByteArrayList Adding(const QString& table, const StoreColumn& column, TextOrder order = TextOrder::AsBytes);
/// Keeps how a table and its columns are spelled.
QByteArrayList Spellings(const StoreTable& table);

} // namespace TableSql

} // namespace Orvane
