// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// A table whose rows changed.
struct ChangedTable {
    std::string name; ///< as the store names it
    std::vector<std::string> columns; ///< in the table's order
    std::vector<int> keys; ///< positions in columns of the primary key, in its order; never empty
};

/// What happened to a row.
enum class ChangeKind { Inserted, Deleted, Updated };

/// One change of one row. Values are coded, see ChangeCoding, and point into the bytes that they were read
/// from.
struct ChangedRow {
    /// One column of a changed row.
    struct Column {
        int position = 0; ///< in the table, from 0
        std::string_view before; ///< empty for an inserted row
        std::string_view after; ///< empty for a deleted row
    };

    size_t table = 0; ///< position in the list of tables
    ChangeKind kind = ChangeKind::Updated; ///< inserted, deleted or updated
    std::string_view key; ///< the values of the primary key one after another; an update keeps them
    std::vector<Column> columns; ///< all columns, or those that an update changed
};

} // namespace Orvane
