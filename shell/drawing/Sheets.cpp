// SPDX-License-Identifier: MIT
#include "shell/drawing/Sheets.h"

#include "shell/drawing/FeaturePainter.h"

#include <QPainter>

#include <cmath>

namespace Orvane {

namespace {

constexpr double BackdropOpacity = 0.3;

double MarginPixels(const LayerLook& look)
{
    return std::ceil(look.outline.widthF() + 2 * look.symbolRadius) + 2;
}

bool IsDrawn(const MapLayer& layer, const Box& extent, double scaleDenominator)
{
    return layer.IsShownAt(scaleDenominator) && layer.features->Bounds().Intersects(extent);
}

// The pixels that the sheet's layers can touch.
QRect CoveredArea(const Sheet& sheet, const MapView& view)
{
    QRectF covered;
    for (const MapLayer& layer : sheet.layers) {
        const Box& bounds = layer.features->Bounds();
        const double margin = MarginPixels(layer.look);
        const QRectF pixels(
            view.ToPixel({bounds.minX, bounds.maxY}), view.ToPixel({bounds.maxX, bounds.minY}));
        covered |= pixels.adjusted(-margin, -margin, margin, margin);
    }
    return (covered & QRectF({0, 0}, QSizeF(view.Size()))).toAlignedRect();
}

} // namespace

std::vector<qint32> Sheet::Key() const
{
    std::vector<qint32> key;
    for (const MapLayer& layer : layers)
        key.push_back(layer.layerID);
    return key;
}

std::vector<Sheet> PlanSheets(
    const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator, size_t maxSheets)
{
    std::vector<MapLayer> drawn;
    const Box extent = view.Extent();
    for (const MapLayer& layer : layers) {
        if (IsDrawn(layer, extent, scaleDenominator))
            drawn.push_back(layer);
    }
    std::sort(drawn.begin(), drawn.end(), [](const MapLayer& a, const MapLayer& b) {
        return a.Height() < b.Height();
    });

    const size_t perSheet = (drawn.size() + maxSheets - 1) / maxSheets;
    std::vector<Sheet> sheets;
    for (MapLayer& layer : drawn) {
        const bool backdrop = layer.mode == DrawMode::Backdrop;
        const bool full = sheets.empty() || sheets.back().layers.size() >= perSheet;
        if (full || sheets.back().backdrop != backdrop)
            sheets.push_back({{}, backdrop});
        sheets.back().layers.push_back(std::move(layer));
    }
    return sheets;
}

SheetImage DrawSheet(
    const Sheet& sheet, const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled)
{
    const QRect area = CoveredArea(sheet, view);
    if (area.isEmpty())
        return {};
    const QSizeF pixels = QSizeF(area.size()) * devicePixelRatio;
    SheetImage result{QImage(pixels.toSize(), QImage::Format_ARGB32_Premultiplied), area.topLeft()};
    result.image.setDevicePixelRatio(devicePixelRatio);
    result.image.fill(Qt::transparent);
    QPainter painter(&result.image);
    painter.translate(-area.topLeft());
    PaintSheet(painter, sheet, view, cancelled);
    return result;
}

void PaintSheet(
    QPainter& painter, const Sheet& sheet, const MapView& view, const std::atomic<bool>& cancelled)
{
    for (const MapLayer& layer : sheet.layers)
        FeaturePainter(painter, view, layer.look).Paint(*layer.features, cancelled);
}

double SheetOpacity(const Sheet& sheet)
{
    return sheet.backdrop ? BackdropOpacity : 1;
}

void PlaceSheet(QPainter& painter, const Sheet& sheet, const SheetImage& image)
{
    painter.setOpacity(SheetOpacity(sheet));
    if (!image.image.isNull())
        painter.drawImage(image.topLeft, image.image);
}

} // namespace Orvane
