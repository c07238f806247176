// SPDX-License-Identifier: MIT
#pragma once

#include "store/Changeset.h"

#include <string>
#include <vector>

namespace Orvane::Testing {

/// "table kind key" of each row, in the order of the changeset.
inline std::vector<std::string> RowsOf(const Changeset& changes)
{
    std::vector<std::string> rows;
    changes.ForEachRow([&](const RowChange& row) {
        const char* kind = row.kind == ChangeKind::Inserted ? " inserted "
            : row.kind == ChangeKind::Deleted               ? " deleted "
                                                            : " updated ";
        rows.push_back(std::string(row.table) + kind + std::to_string(row.key));
    });
    return rows;
}

/// The changed columns of the one row that was updated.
inline std::vector<std::string> ColumnsOf(const Changeset& changes)
{
    std::vector<std::string> columns;
    changes.ForEachRow([&](const RowChange& row) { columns.assign(row.columns.begin(), row.columns.end()); });
    return columns;
}

} // namespace Orvane::Testing
