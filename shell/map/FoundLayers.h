// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/DataSource.h"

#include <QString>

#include <vector>

namespace Orvane {

/// What becomes of the layers of a source in a map. Without those that are empty, if their format makes empty
/// layers, and without those whose features another layer shows whole, such as the points of tracks. A layer
/// of several kinds of geometry becomes one for each kind, so that each is drawn in its place; all its
/// features are in one of them.
std::vector<SourceLayer> LayersToShow(const std::vector<SourceLayer>& layers);

/// The name of such a layer of a file in the map: "plan", or "plan (lines)" for a part of one. A layer
/// without a name of its own is named after the file.
QString LayerTitle(const QString& path, const SourceLayer& layer);

/// The name of a file in the map, without its suffix: "towns" for "towns.geojson.gz".
QString SourceTitle(const QString& path);

} // namespace Orvane
