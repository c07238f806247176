// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/LegendBlock.h"
#include "mapkit/output/PageSettings.h"

#include <QRectF>

namespace Orvane {

/// Where things stand on a page, in page pixels from its upper left corner.
struct PageLayout {
    QSizeF page;
    QRectF title; ///< empty for none
    QRectF map; ///< on whole pixels, at least one of them
    QRectF legend; ///< empty for none
};

/// Title above, map below it, legend beside the map on a wide page and under it on a tall one. The legend
/// takes a third of the room at most.
PageLayout LayOutPage(const PageSettings& settings, const std::vector<LegendRow>& legend);

/// Where the legend stands on such a page.
LegendBlock::Place LegendPlace(const PageSettings& settings);

} // namespace Orvane
