// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/Legend.h"

class QPainter;
class QRect;

namespace Orvane {

/// Paints how a layer looks, as the lists of the layer control show it: areas by the fill list's sample
/// within the layer's outline, lines by the line list's drawing commands, points as the map draws them.
/// Widths are those of the map. area: page pixels, on white paper.
void PaintLegendSample(QPainter& painter, const QRect& area, const LegendRow& row);

} // namespace Orvane
