// SPDX-License-Identifier: MIT
#pragma once

#include <OrvaneShellLib/LayerColumns.h>
#include <OrvaneShellLib/Value.h>
#include <OrvaneShellLib/ValueConversions.h>

#include <array>
#include <string_view>
#include <utility>

namespace Orvane {

/// The values of one row of the table Layers, in the order of LayerColumns. Null: not known, various, or of
/// no use to the layer.
using LayerValues = std::array<Value, LayerColumns.size()>;

/// Null in every column.
inline LayerValues UnknownLayerValues()
{
    LayerValues values;
    values.fill(Value::Null());
    return values;
}

/// The value of a column, which must be one of LayerColumns.
inline const Value& ValueOf(const LayerValues& values, std::string_view column)
{
    return values.at(FindLayerColumn(column));
}

/// Sets the value of a column, which must be one of LayerColumns.
inline void SetValue(LayerValues& values, std::string_view column, Value value)
{
    values.at(FindLayerColumn(column)) = std::move(value);
}

/// True when the column has different values in the two rows. Kinds do not count: true equals 1.
inline bool Differs(const LayerValues& one, const LayerValues& other, std::string_view column)
{
    const Value& left = ValueOf(one, column);
    const Value& right = ValueOf(other, column);
    const bool numbers = (left.IsNumber() || left.IsBoolean()) && (right.IsNumber() || right.IsBoolean());
    return numbers ? ToDouble(left) != ToDouble(right) : !left.IsIdenticalTo(right);
}

} // namespace Orvane
