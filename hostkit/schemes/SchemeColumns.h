// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerColumns.h>
#include <orvane/hostkit/schemes/SchemeParts.h>

#include <QString>

#include <array>

namespace Orvane {

/// The columns of Layers that a layer scheme keeps, in the order of LayerColumns, as they are and as
/// fragments of SQL. LayerSchemeValues has columns of the same names. parts: which of them.
namespace SchemeColumns {

/// How many there are.
inline constexpr std::size_t Count = [] {
    std::size_t count = 0;
    for (const LayerColumn& column : LayerColumns)
        count += column.inSchemes == InSchemes::Yes ? 1 : 0;
    return count;
}();

/// The columns themselves.
inline constexpr std::array<LayerColumn, Count> All = [] {
    std::array<LayerColumn, Count> kept{};
    std::size_t count = 0;
    for (const LayerColumn& column : LayerColumns) {
        if (column.inSchemes == InSchemes::Yes)
            kept.at(count++) = column;
    }
    return kept;
}();

/// "Visible, Selectable, ..."
QString List(SchemeParts parts = WholeScheme);
/// "LayerSchemeValues.Visible, LayerSchemeValues.Selectable, ..."
QString SavedList();
/// "Visible = LayerSchemeValues.Visible, Selectable = ..."
QString Assignments(SchemeParts parts = WholeScheme);
/// "Visible = Layers.Visible, Selectable = ...", for LayerSchemeValues.
QString Present(SchemeParts parts);
/// "Visible = NULL, Selectable = ..."
QString Unset(SchemeParts parts);
/// A condition that is true for a layer whose values differ from the scheme, or between any two tables with
/// these columns. NULL counts as a value, and both stored forms of "no maximum scale" count as equal. Without
/// parts, nothing differs.
QString Difference(
    SchemeParts parts = WholeScheme, const char* table = "Layers", const char* other = "LayerSchemeValues");
/// "?<first>, ?<first + 1>, ...", one for each column.
QString Parameters(int first);

} // namespace SchemeColumns

} // namespace Orvane
