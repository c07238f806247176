// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/LegendBlock.h"
#include "mapkit/output/PageSettings.h"

#include <QRectF>

namespace Orvane {

/// The positions of the parts of a page, in page pixels from its upper left corner.
struct PageLayout {
    QSizeF page;
    QRectF title; ///< empty for none
    QRectF map; ///< in whole pixels, at least one pixel
    QRectF legend; ///< empty for none
};

/// The title is at the top and the map below it. The legend is beside the map on a wide page and below it on
/// a tall one. It uses at most a third of the room.
PageLayout LayOutPage(const PageSettings& settings, const std::vector<LegendRow>& legend);

/// The place of the legend on a page with these settings.
LegendBlock::Place LegendPlace(const PageSettings& settings);

} // namespace Orvane
