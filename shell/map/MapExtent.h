// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/Box.h"
#include "mapkit/data/SourceReader.h"

#include <QString>

#include <vector>

namespace Orvane {

class Progress;

/// The extent in a map's system of the layers with these sources, each as the map reads it: with its system
/// and its columns; filters do not count. Reads only the layers whose extent their source does not know;
/// those that cannot be read are left out. For any thread. Raises Cancelled.
Box ExtentOfMap(const std::vector<LayerSource>& sources, const QString& system, Progress& progress);

} // namespace Orvane
