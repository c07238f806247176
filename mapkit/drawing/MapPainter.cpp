// SPDX-License-Identifier: MIT
#include "mapkit/drawing/MapPainter.h"

#include "mapkit/drawing/Sheets.h"

#include <QPainter>

namespace Orvane {

namespace {

void PaintSheets(
    QPainter& painter, const std::vector<Sheet>& sheets, const MapView& view,
    const std::atomic<bool>& cancelled)
{
    painter.save();
    painter.setClipRect(QRectF({0, 0}, QSizeF(view.Size())), Qt::IntersectClip);
    for (const Sheet& sheet : sheets) {
        painter.setOpacity(SheetOpacity(sheet));
        PaintSheet(painter, sheet, view, cancelled);
    }
    painter.restore();
}

} // namespace

bool PaintMap(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled)
{
    PaintSheets(painter, PlanSheets(layers, view, scaleDenominator), view, cancelled);
    return !cancelled;
}

void PaintMapLabels(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled)
{
    std::vector<Sheet> sheets = PlanSheets(layers, view, scaleDenominator);
    std::erase_if(sheets, [](const Sheet& sheet) { return !sheet.labels; });
    PaintSheets(painter, sheets, view, cancelled);
}

} // namespace Orvane
