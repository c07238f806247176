// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/tables/ColumnGuess.h"
#include "mapkit/tables/CoordinateColumns.h"

#include <memory>

class OGRFeature;
class OGRFeatureDefn;
class OGRGeometry;
class OGRLayer;

namespace Orvane {

/// Makes geometries of the rows of a table, as its coordinate columns say.
///
///     RowGeometry rows(*layer.GetLayerDefn(), columns);
///     if (const OGRGeometry* geometry = rows.Of(*feature))
class RowGeometry
{
public:
    /// Without columns, geometries are those that the features have.
    RowGeometry(const OGRFeatureDefn& table, const CoordinateColumns& columns);
    ~RowGeometry();

    /// Whether the table lacks one of the columns.
    bool IsLacking() const { return m_isLacking; }

    /// nullptr for a feature or a row without one. Valid until the next call, and as long as the feature.
    const OGRGeometry* Of(OGRFeature& feature);

private:
    std::unique_ptr<OGRGeometry> PointOf(OGRFeature& row) const;
    std::unique_ptr<OGRGeometry> TextOf(OGRFeature& row) const;

    bool m_isTable;
    bool m_isLacking = false;
    int m_x = -1; // indexes of fields
    int m_y = -1;
    int m_wkt = -1;
    std::unique_ptr<OGRGeometry> m_made;
};

/// The first rows of a table, at most that many.
TableRows FirstRows(OGRLayer& table, int most);

} // namespace Orvane
