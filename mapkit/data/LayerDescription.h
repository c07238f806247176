// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"

class OGRLayer;

namespace Orvane {

/// What is known about a layer of a source, without its extent. Its name, and that of partsOf, are those in
/// its own file. format: GDAL's name, which tells what its empty layers mean. May read some of its features.
SourceLayer DescribeLayer(OGRLayer& layer, const QString& format);

/// The same for a table with these coordinate columns, with its extent and without its name. Reads many rows.
SourceLayer DescribeTable(OGRLayer& table, const CoordinateColumns& columns);

} // namespace Orvane
