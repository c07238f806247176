// SPDX-License-Identifier: MIT
#include "mapkit/drawing/MapPainter.h"

#include "mapkit/drawing/PainterState.h"
#include "mapkit/drawing/Sheets.h"

namespace Orvane {

namespace {

void PaintSheets(
    QPainter& painter, std::vector<Sheet> sheets, const MapView& view, const std::atomic<bool>& cancelled,
    const QColor& background)
{
    const PainterState before(painter);
    painter.setClipRect(QRectF({0, 0}, QSizeF(view.Size())), Qt::IntersectClip);
    for (Sheet& sheet : sheets) {
        sheet.background = background;
        painter.setOpacity(SheetOpacity(sheet));
        PaintSheet(painter, sheet, view, cancelled);
    }
}

} // namespace

bool PaintMap(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled, const QColor& background)
{
    PaintSheets(painter, PlanSheets(layers, view, scaleDenominator), view, cancelled, background);
    return !cancelled;
}

void PaintMapLabels(
    QPainter& painter, const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator,
    const std::atomic<bool>& cancelled, const QColor& background)
{
    std::vector<Sheet> sheets = PlanSheets(layers, view, scaleDenominator);
    std::erase_if(sheets, [](const Sheet& sheet) { return !sheet.labels; });
    PaintSheets(painter, std::move(sheets), view, cancelled, background);
}

} // namespace Orvane
