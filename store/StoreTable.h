// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

/// What a column of a host's table holds.
enum class StoreType {
    Whole, ///< a whole number of 32 bits
    Real,
    Flag, ///< true or false
    Text,
};

/// A column of a host's table.
struct StoreColumn {
    /// Whether rows may lack a value.
    enum class Nulls { Allowed, Refused };

    QString name; ///< different for each column of a table
    StoreType type = StoreType::Text; ///< what it holds
    Nulls nulls = Nulls::Allowed; ///< whether a row may lack a value
    QString defaultValue = {}; ///< as in SQL, such as 5 or 'text'; empty for none
    QString refersTo = {}; ///< the referenced table; a row is removed with the row that it refers to
    QString refersToColumn = {}; ///< the referenced column
};

/// A table that a host keeps in its layer store, besides the store's own tables.
struct StoreTable {
    QString name; ///< other than those of the store's own tables
    std::vector<StoreColumn> columns; ///< later additions come last, and allow nulls or have a default
    std::vector<QString> key; ///< the primary key; a single Whole column gets its numbers automatically
    std::vector<QString> unique = {}; ///< columns whose values are all different
    std::vector<QString> indexed = {}; ///< columns that rows are looked up by
};

} // namespace Orvane
