// SPDX-License-Identifier: MIT
#include "mapkit/drawing/Sheets.h"

#include "mapkit/drawing/Labels.h"
#include "mapkit/drawing/LayerPainter.h"
#include "mapkit/drawing/PixelGeometry.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QPainter>

#include <algorithm>
#include <limits>
#include <span>

namespace Orvane {

namespace {

constexpr qint32 LabelMark = std::numeric_limits<qint32>::min();

bool IsDrawn(const MapLayer& layer, const Box& extent, double scaleDenominator)
{
    return layer.IsShownAt(scaleDenominator) && layer.Bounds().Intersects(extent);
}

// The pixels that the sheet's layers can touch.
QRect CoveredArea(const Sheet& sheet, const MapView& view)
{
    const QRectF window({0, 0}, QSizeF(view.Size()));
    if (sheet.labels)
        return window.toRect();
    QRectF covered;
    for (const MapLayer& layer : sheet.layers) {
        const double margin = layer.raster ? 0 : layer.look.Reach();
        covered |= ToPixels(layer.Bounds(), view).adjusted(-margin, -margin, margin, margin);
    }
    return (covered & window).toAlignedRect();
}

void DrawLayer(
    SheetImage& result, QPainter& painter, const MapLayer& layer, const MapView& view,
    const std::atomic<bool>& cancelled)
{
    try {
        PaintLayer(painter, layer, view, cancelled);
    } catch (const RunTimeError& error) {
        result.failures[layer.layerID] = error.Description();
    }
}

// Appends sheets for the layers, bottom first, and above them for their labels.
void AppendSheets(
    std::vector<Sheet>& sheets, std::span<const MapLayer> layers, bool backdrop, size_t perSheet)
{
    for (size_t i = 0; i < layers.size(); ++i) {
        if (i % perSheet == 0)
            sheets.push_back({{}, backdrop, false});
        sheets.back().layers.push_back(layers[i]);
    }
    Sheet labels{{}, backdrop, true};
    std::copy_if(layers.begin(), layers.end(), std::back_inserter(labels.layers), [](const MapLayer& layer) {
        return layer.labels && !layer.labels->texts.empty();
    });
    if (!labels.layers.empty())
        sheets.push_back(std::move(labels));
}

} // namespace

bool Sheet::HasRaster() const
{
    return std::any_of(
        layers.begin(), layers.end(), [](const MapLayer& layer) { return layer.raster != nullptr; });
}

std::vector<qint32> Sheet::Key() const
{
    std::vector<qint32> key;
    if (labels)
        key.push_back(LabelMark);
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

    const auto aboveGround
        = std::find_if(drawn.begin(), drawn.end(), [](const MapLayer& layer) { return !layer.IsGround(); });
    const auto firstNormal = std::find_if(
        aboveGround, drawn.end(), [](const MapLayer& layer) { return layer.mode != DrawMode::Backdrop; });
    const size_t perSheet = (drawn.size() + maxSheets - 1) / maxSheets;
    std::vector<Sheet> sheets;
    AppendSheets(sheets, {drawn.begin(), aboveGround}, false, perSheet);
    AppendSheets(sheets, {aboveGround, firstNormal}, true, perSheet);
    AppendSheets(sheets, {firstNormal, drawn.end()}, false, perSheet);
    return sheets;
}

SheetImage DrawSheet(
    const Sheet& sheet, const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled)
{
    const QRect area = CoveredArea(sheet, view);
    if (area.isEmpty())
        return {};
    const QSizeF pixels = QSizeF(area.size()) * devicePixelRatio;
    SheetImage result{QImage(pixels.toSize(), QImage::Format_ARGB32_Premultiplied), area.topLeft(), {}};
    result.image.setDevicePixelRatio(devicePixelRatio);
    result.image.fill(Qt::transparent);
    QPainter painter(&result.image);
    painter.translate(-area.topLeft());
    if (sheet.labels)
        PaintSheet(painter, sheet, view, cancelled);
    else
        for (const MapLayer& layer : sheet.layers)
            DrawLayer(result, painter, layer, view, cancelled);
    return result;
}

void PaintSheet(
    QPainter& painter, const Sheet& sheet, const MapView& view, const std::atomic<bool>& cancelled)
{
    if (sheet.labels)
        return PaintLabels(painter, PlaceLabels(sheet.layers, view, cancelled), sheet.background);
    for (const MapLayer& layer : sheet.layers)
        PaintLayer(painter, layer, view, cancelled);
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
