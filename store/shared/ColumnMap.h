// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Orvane {

/// Finds the columns of rows by name; names are compared case-insensitively.
///
/// Rows are read in loops that use the same columns in the same order, or in two: rows are read and written.
/// Each name that was looked up stores the two names that were looked up after it last, so nearly every
/// look-up is one or two short comparisons.
class ColumnMap
{
public:
    /// Forgets all columns.
    void Clear();
    /// Adds a column behind the others.
    void Add(std::string_view name);

    int Count() const { return int(m_columns.size()); }
    /// The column's position, from 0; -1 if there is none. If two columns have the same name, the first one
    /// is returned.
    int Find(std::string_view name);
    const std::string& Name(int position) const { return m_columns[size_t(position)].name; }
    /// True for the columns that hold a colour as 32 bits, which may be stored as an unsigned number.
    bool IsColour(int position) const { return m_columns[size_t(position)].isColour; }

private:
    struct Column {
        std::string name;
        bool isColour = false;
    };
    struct Followers {
        size_t latest = 0;
        size_t earlier = 0;
    };
    struct Spelling {
        std::string name;
        int position = -1;
        Followers followers;
    };

    int Follow(size_t spelling);
    size_t FindSpelling(std::string_view name);
    int FindColumn(std::string_view name) const;

    std::vector<Column> m_columns;
    std::vector<Spelling> m_spellings; // as callers spell them, with their case
    size_t m_last = 0;
};

/// True when two ASCII names are equal, ignoring case.
bool SameName(std::string_view left, std::string_view right);

} // namespace Orvane
