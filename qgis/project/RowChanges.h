// SPDX-License-Identifier: MIT
#pragma once

#include "qgis/layers/LayerValues.h"

namespace Orvane::RowChanges {

/// The wanted row, but Null where the known one is: what is unknown cannot be written, because a colour for
/// all would flatten the classes of a layer.
inline LayerValues Writable(const LayerValues& known, LayerValues wanted)
{
    for (size_t column = 0; column < known.size(); ++column) {
        if (known.at(column).IsNull())
            wanted.at(column) = Value::Null();
    }
    return wanted;
}

/// The edited row in the columns in which it differs from what was there, and the present one in the others.
inline LayerValues OnlyChanges(const LayerValues& was, const LayerValues& edited, LayerValues present)
{
    for (size_t column = 0; column < was.size(); ++column) {
        if (Differs(was, edited, LayerColumns.at(column).name))
            present.at(column) = edited.at(column);
    }
    return present;
}

} // namespace Orvane::RowChanges
