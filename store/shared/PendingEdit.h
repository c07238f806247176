// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <vector>

namespace Orvane {

/// The columns that were set since an edit began, in the order in which they were first set.
class PendingEdit
{
public:
    struct SetColumn {
        int position; ///< of the column in its table, from 0
        Value value;
    };

    void Set(int position, const Value& value);
    /// The value that was set, or nullptr.
    const Value* Find(int position) const;
    void Clear() { m_columns.clear(); }
    bool IsEmpty() const { return m_columns.empty(); }
    const std::vector<SetColumn>& Columns() const { return m_columns; }

private:
    std::vector<SetColumn> m_columns;
};

} // namespace Orvane
