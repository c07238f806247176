// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/RawDatabase.h"
#include "mapkit/data/EmptyLayer.h"

#include <QString>

namespace Orvane::Testing {

/// Writes a GeoPackage with a layer "broken" that names neither a system nor its extent, and whose rows
/// cannot be read. Returns its path.
inline QString WriteUnmeasurable(const QString& path)
{
    CreateEmptyLayer(path, "empty", FeatureKind::Point, "EPSG:4326");
    RawDatabase file(path);
    file.Run("CREATE VIEW broken AS SELECT 1 AS fid, NULL AS geom, abs(-9223372036854775807 - 1) AS name");
    file.Run("DELETE FROM gpkg_geometry_columns");
    file.Run("DELETE FROM gpkg_contents");
    file.Run("INSERT INTO gpkg_contents (table_name, data_type, identifier, srs_id)"
             " VALUES ('broken', 'features', 'broken', -1)");
    file.Run("INSERT INTO gpkg_geometry_columns VALUES ('broken', 'geom', 'POINT', -1, 0, 0)");
    return path;
}

} // namespace Orvane::Testing
