// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>
#include <optional>

namespace Orvane {

/// The columns of a layer that its symbols show, in the order of LookColumnNames.
enum class LookColumn : std::size_t {
    Color,
    FillForeColor,
    FillBackColor,
    OutlineStyle,
    FillStyle,
    LineThickness,
};

/// Their names in the table Layers.
inline constexpr std::array LookColumnNames{"Color",        "FillForeColor", "FillBackColor",
                                            "OutlineStyle", "FillStyle",     "LineThickness"};

/// What symbols look like, in the numbers of the columns. Nothing: not known, various, or of no use to the
/// symbol.
struct SymbolLook {
    std::array<std::optional<qint32>, LookColumnNames.size()> values; ///< in the order of LookColumn

    /// The value of that column.
    std::optional<qint32>& operator[](LookColumn column) { return values[std::size_t(column)]; }
    const std::optional<qint32>& operator[](LookColumn column) const { return values[std::size_t(column)]; }
    /// Equal in all columns; what is not known is equal only to that.
    bool operator==(const SymbolLook&) const = default;
};

/// The columns that a change could be applied to.
struct TakenColumns {
    std::array<bool, LookColumnNames.size()> taken{}; ///< in the order of LookColumn

    /// Counts that column as taken.
    void Add(LookColumn column) { taken[std::size_t(column)] = true; }
    /// Counts those as taken that either of the two has.
    void Add(const TakenColumns& other)
    {
        for (std::size_t i = 0; i < taken.size(); ++i)
            taken[i] = taken[i] || other.taken[i];
    }
};

/// The look with the columns that are set in the changes.
inline SymbolLook Merged(const SymbolLook& look, const SymbolLook& changes)
{
    SymbolLook merged = look;
    for (std::size_t i = 0; i < merged.values.size(); ++i) {
        if (changes.values[i])
            merged.values[i] = changes.values[i];
    }
    return merged;
}

/// Forgets what differs in the other look.
inline void Intersect(SymbolLook& look, const SymbolLook& other)
{
    for (std::size_t i = 0; i < look.values.size(); ++i) {
        if (look.values[i] != other.values[i])
            look.values[i].reset();
    }
}

} // namespace Orvane
