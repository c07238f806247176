// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/data/RasterSource.h"

#include <QPoint>

#include <optional>

class GDALRasterBand;

namespace Orvane {

/// What a band has at one of its pixels; without a number where its mask leaves it out, or if it is none.
/// Nothing if it cannot be read.
std::optional<RasterValue> ValueAt(GDALRasterBand& band, QPoint pixel);

} // namespace Orvane
