// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"
#include "mapkit/data/RasterSource.h"

#include <vector>

namespace Orvane {

/// The values of a raster as attributes for the user: "Band 2 (Height)" with "1234.5 m". Null, with a text
/// that says so, where there are no data.
std::vector<FeatureAttribute> ValuesAsAttributes(const std::vector<RasterValue>& values);

} // namespace Orvane
