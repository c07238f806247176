// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <vector>

namespace Orvane {

/// What a column of a host's table keeps.
enum class StoreType {
    Whole, ///< a whole number of 32 bits
    Real,
    Flag, ///< true or false
    Text,
};

/// A column of a host's table.
struct StoreColumn {
    enum class Nulls { Allowed, Refused };

    QString name;
    StoreType type = StoreType::Text;
    Nulls nulls = Nulls::Allowed;
    QString defaultValue = {}; ///< as in SQL: 5, 'text'; empty for none
    QString refersTo = {}; ///< the table that it refers to; a row goes with the one it refers to
    QString refersToColumn = {};
};

/// A table that a host keeps in its layer store, beside the store's own.
struct StoreTable {
    QString name;
    std::vector<StoreColumn> columns; ///< those added later at the end; they allow nulls or have a default
    std::vector<QString> key; ///< the primary key; a single Whole column numbers its rows by itself
    std::vector<QString> unique = {}; ///< columns whose values are all different
    std::vector<QString> indexed = {}; ///< columns that rows are looked up by
};

} // namespace Orvane
