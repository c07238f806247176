// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/Value.h>

#include <QtGlobal>

#include <array>

namespace Orvane {

/// The slots of a LayerStyle.
namespace Slot {
enum : qint16 {
    Name = 0,
    Code = 1,
    Visible = 2,
    Selectable = 3,
    Locked = 4,
    Hitable = 5,
    SnapRequired = 6,
    Enquirable = 7,
    LineColour = 8, ///< BGR, top byte 0
    FillForeColour = 9,
    FillBackColour = 10,
    UseForSymbols = 11,
    OutlineStyle = 12,
    FillStyle = 13,
    LineThickness = 14,
    MinVisScale = 15, ///< scale index
    MaxVisScale = 16, ///< scale index
    RendererStyle = 17,
    DrawPriority = 18,
};
} // namespace Slot

/// A slot that holds the unchanged value of a column with the same meaning.
struct SlotColumn {
    qint16 slot;
    const char* column;
};

/// The flags that have their own column, in the order in which they are read and written.
inline constexpr std::array FlagColumns{
    SlotColumn{Slot::Visible, "Visible"},
    SlotColumn{Slot::Selectable, "Selectable"},
    SlotColumn{Slot::Locked, "locked"},
    SlotColumn{Slot::Hitable, "Hitable"},
    SlotColumn{Slot::SnapRequired, "SnapRequired"},
    SlotColumn{Slot::Enquirable, "Enquirable"},
};

/// The name of the column of Layers that a slot is stored in.
const char* ColumnOf(qint16 slot);

/// The editable properties of one layer, or what several layers have in common. A Null slot means "not known"
/// in a new record and "various" in a combined one.
class LayerStyle
{
public:
    static constexpr qint16 SlotCount = 19;

    /// All slots Null.
    LayerStyle();

    /// A copy of the slot's value. Raises 9 (subscript out of range) for an index outside 0 to 18, as all
    /// members here do; the record is then unchanged.
    Value lsGet(qint16 index) const;
    bool lsIsNull(qint16 index) const;
    /// True if both are Null, or if both are known and equal; numbers are compared across their types.
    bool Compare(qint16 index, const Value& value) const;
    /// Stores a copy of any value, Null included.
    void lsSet(qint16 index, const Value& value);
    /// Sets to Null each slot in which the other record holds a different value. A Null in the other record
    /// never erases a known value. True if a known value was erased.
    bool Intersect(const LayerStyle& other);

private:
    std::array<Value, SlotCount> m_values;
};

} // namespace Orvane
