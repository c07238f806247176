// SPDX-License-Identifier: MIT
#pragma once

#include "samples/FillSample.h"

#include <OrvaneShellLib/MonochromeBitmap.h>

#include <QtGlobal>

#include <optional>

class QPainter;
class QRect;

namespace Orvane {

class LayerStyle;

/// A layer's line and fill, as far as a small sample shows them.
struct LayerSample {
    FillColours colours;
    qint32 fillStyle = 0; ///< 0 solid, 15 hollow, others patterned
    MonochromeBitmap picture; ///< of a patterned fill
    qint32 lineStyle = 0; ///< the number of a line pattern; 15 draws no line
    double thickness = 0; ///< pixels below 0, the thinnest line at 0, millimetres above
};

/// The sample of these properties, without its picture; nothing if one of them is not known. Raises 6
/// (overflow) for a number that does not fit.
std::optional<LayerSample> SampleOf(const LayerStyle& style);

/// Paints the fill as the pickers do, in a frame of the layer's line. A millimetre is shown as a pixel, and
/// no line is thicker than a quarter of the height. A sample that could not be seen gets a faint frame.
/// listBack: the background of the list, BGR.
void PaintLayerSample(QPainter& painter, const QRect& area, const LayerSample& sample, qint32 listBack);

} // namespace Orvane
