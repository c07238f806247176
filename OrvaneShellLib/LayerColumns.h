// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/Value.h>

#include <QString>

#include <array>
#include <cstddef>
#include <string_view>

/// The columns of the table Layers.
namespace Orvane {

/// What a column holds. A property may be NULL, which means that it is not known.
enum class ColumnKind {
    Key, ///< a whole number of 32 bits, never NULL
    Text, ///< sorted case-insensitively
    Flag, ///< written as a boolean, read as a boolean or as a number that is not 0 or is
    Whole, ///< a whole number of 32 bits
    Real,
};

/// Whether a layer scheme keeps a column's values.
enum class InSchemes { No, Yes };

/// One column of the table Layers.
struct LayerColumn {
    const char* name; ///< as queries write it
    ColumnKind kind; ///< what it holds
    double defaultValue; ///< used when a row gets no other value; texts are empty
    InSchemes inSchemes; ///< whether schemes keep it
    int since; ///< the first layer database version that has it
};

/// All columns in the order of the table. Add a new column at the end, with the next version. Stores then add
/// it to older tables, and schemes, scheme files and new layers have it too.
inline constexpr std::array LayerColumns{
    LayerColumn{"LayerID", ColumnKind::Key, 0, InSchemes::No, 1},
    LayerColumn{"Name", ColumnKind::Text, 0, InSchemes::No, 1},
    LayerColumn{"Code", ColumnKind::Whole, 0, InSchemes::No, 1},
    LayerColumn{"Visible", ColumnKind::Flag, 1, InSchemes::Yes, 1},
    LayerColumn{"Selectable", ColumnKind::Flag, 1, InSchemes::Yes, 1},
    LayerColumn{"locked", ColumnKind::Flag, 0, InSchemes::Yes, 1},
    LayerColumn{"Hitable", ColumnKind::Flag, 1, InSchemes::Yes, 1},
    LayerColumn{"SnapRequired", ColumnKind::Flag, 0, InSchemes::Yes, 1},
    LayerColumn{"Enquirable", ColumnKind::Flag, 1, InSchemes::Yes, 1},
    LayerColumn{"Color", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"FillForeColor", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"FillBackColor", ColumnKind::Whole, 0xFFFFFF, InSchemes::Yes, 1},
    LayerColumn{"OutlineStyle", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"FillStyle", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"LineThickness", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"MinVisScale", ColumnKind::Real, 0, InSchemes::Yes, 1},
    LayerColumn{"MaxVisScale", ColumnKind::Real, 0, InSchemes::Yes, 1},
    LayerColumn{"Priority", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"Style", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"OverrideMode", ColumnKind::Whole, 0, InSchemes::Yes, 1},
    LayerColumn{"SystemLayer", ColumnKind::Flag, 0, InSchemes::No, 1},
    LayerColumn{"Pseudo", ColumnKind::Flag, 0, InSchemes::No, 1},
};

/// The position of a column in LayerColumns; LayerColumns.size() if there is none. Names are compared
/// case-sensitively.
constexpr std::size_t FindLayerColumn(std::string_view name)
{
    std::size_t position = 0;
    while (position < LayerColumns.size() && LayerColumns[position].name != name)
        ++position;
    return position;
}

/// What a new row has in a column that gets no other value.
inline Value DefaultValue(const LayerColumn& column)
{
    switch (column.kind) {
    case ColumnKind::Text:
        return QStringLiteral("");
    case ColumnKind::Flag:
        return column.defaultValue != 0;
    case ColumnKind::Real:
        return column.defaultValue;
    default:
        return qint32(column.defaultValue);
    }
}

/// The version of the newest column.
constexpr int NewestLayerColumn()
{
    int newest = 0;
    for (const LayerColumn& column : LayerColumns)
        newest = column.since > newest ? column.since : newest;
    return newest;
}

} // namespace Orvane
