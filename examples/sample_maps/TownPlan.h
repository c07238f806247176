// SPDX-License-Identifier: MIT
#pragma once

#include "examples/sample_maps/GeoPackageWriter.h"
#include "mapkit/data/FeatureSet.h"

#include <map>
#include <string>

namespace Orvane {

/// A made-up town in metres: the same streets, parcels and trees each time.
struct TownPlan {
    std::map<std::string, FeatureSet> layers; ///< by layer name: "streets", "parcels", "houses" ...
    HeightGrid heights; ///< metres above the sea
};

TownPlan PlanTown();

} // namespace Orvane
