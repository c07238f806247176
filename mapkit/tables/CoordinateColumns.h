// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// The columns of a table that hold the places of its rows: two with numbers, or one with a geometry as text.
struct CoordinateColumns {
    QString x; ///< east, or longitude
    QString y; ///< north, or latitude
    QString wkt; ///< geometries as well-known text; x and y are then empty

    bool IsEmpty() const { return wkt.isEmpty() && (x.isEmpty() || y.isEmpty()); }
    bool operator==(const CoordinateColumns&) const = default;
};

} // namespace Orvane
