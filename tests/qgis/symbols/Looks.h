// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/symbols/SymbolLook.h"

#include <gtest/gtest.h>
#include <ostream>

namespace Orvane {

inline void PrintTo(const SymbolLook& look, std::ostream* out)
{
    for (std::size_t i = 0; i < look.values.size(); ++i) {
        if (look.values[i])
            *out << LookColumnNames[i] << '=' << *look.values[i] << ' ';
    }
}

inline void PrintTo(const std::optional<qint32>& number, std::ostream* out)
{
    if (number)
        *out << *number;
    else
        *out << "nothing";
}

namespace Testing {

/// A look with one column.
inline SymbolLook Only(LookColumn column, qint32 value)
{
    SymbolLook look;
    look[column] = value;
    return look;
}

/// True if the column was taken.
inline bool Has(const TakenColumns& columns, LookColumn column)
{
    return columns.taken[std::size_t(column)];
}

} // namespace Testing

} // namespace Orvane
