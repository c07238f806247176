// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/Legend.h"

class QPainter;
class QRect;

namespace Orvane {

/// Paints a sample of a layer, like the lists of the layer control: areas with the fill list's sample inside
/// the layer's outline, lines with the line list's drawing commands, points as on the map. Widths are as on
/// the map. area: in page pixels, on white paper.
void PaintLegendSample(QPainter& painter, const QRect& area, const LegendRow& row);

} // namespace Orvane
