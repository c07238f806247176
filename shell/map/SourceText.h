// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/SourceReader.h"

#include <QString>

#include <optional>

namespace Orvane {

/// Where the data are, for the user: "/maps/town.gpkg (roads)"; the layer's name alone if the source is no
/// file, because the name of a connection may hold a password. Empty for no source.
QString SourceText(const std::optional<LayerSource>& source);

} // namespace Orvane
