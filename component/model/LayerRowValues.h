// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/IRecordset.h>
#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <array>

namespace Orvane {

/// The columns of Layers that the dialog shows and applies, in the order in which they are read; the name is
/// not among them.
enum class RowColumn : quint8 {
    Code,
    Visible,
    Selectable,
    Locked,
    Hitable,
    SnapRequired,
    Enquirable,
    Color,
    FillForeColor,
    FillBackColor,
    OutlineStyle,
    FillStyle,
    LineThickness,
    MinVisScale,
    MaxVisScale,
    Priority,
    Style,
    OverrideMode,
};

/// The column's name in the database.
const char* NameOf(RowColumn column);

/// What a row of Layers holds in these columns, as it is stored.
class LayerRowValues
{
public:
    /// Reads the current row. Raises what Field raises.
    explicit LayerRowValues(const IRecordset& row);

    const Value& operator[](RowColumn column) const { return m_values[std::size_t(column)]; }

    /// A number that differs, except by a rare accident, for rows that differ in one of the columns.
    quint64 Fingerprint() const;

private:
    static constexpr std::size_t Count = std::size_t(RowColumn::OverrideMode) + 1;

    std::array<Value, Count> m_values;
};

} // namespace Orvane
