// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/MonochromeBitmap.h>

#include <QtGlobal>

class QPainter;
class QRect;

namespace Orvane {

/// The colours that a layer is drawn with, BGR; a set bit in the top byte means transparent.
struct FillColours {
    qint32 line = 0; ///< of outlines and lines
    qint32 fore = 0; ///< of the pattern, and of a solid fill
    qint32 back = 0; ///< behind the pattern
};

/// One item of the fill style list.
struct FillSample {
    qint32 style = 0; ///< 0 solid, 15 hollow, others patterned
    MonochromeBitmap picture; ///< of a patterned style; one without pixels is painted hollow
    FillColours colours; ///< of the layer
    qint32 listBack = 0xFFFFFF; ///< background of the list, BGR
};

/// The fore and back colour that a sample is painted with. If both are transparent, the line colour is used
/// on the list's background; otherwise the list's background replaces the transparent one.
FillColours ShownColours(const FillColours& colours, qint32 listBack);

/// Paints an item: the list's background and on it, inset by 2 pixels, the sample in its colours. The left
/// part, up to left + right / 2 of the sample, shows a pattern in black on white, whatever its colours. An
/// item of 4 pixels or less in either direction shows only the background.
void PaintFillItem(QPainter& painter, const QRect& item, const FillSample& sample);

/// Paints only the sample, in its colours, over the whole area, as in a legend. The pattern starts at the
/// area's upper left corner.
void PaintFillSample(QPainter& painter, const QRect& area, const FillSample& sample);

} // namespace Orvane
