// SPDX-License-Identifier: MIT
#include "shell/drawing/MapPainter.h"

#include "shell/drawing/Sheets.h"

#include <QPainter>

namespace Orvane {

bool PaintMap(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled)
{
    painter.save();
    painter.setClipRect(QRectF({0, 0}, QSizeF(view.Size())), Qt::IntersectClip);
    for (const Sheet& sheet : PlanSheets(layers, view, scaleDenominator)) {
        painter.setOpacity(SheetOpacity(sheet));
        PaintSheet(painter, sheet, view, cancelled);
    }
    painter.restore();
    return !cancelled;
}

} // namespace Orvane
