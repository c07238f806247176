// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <QImage>
#include <QPoint>

#include <atomic>
#include <vector>

class QPainter;

namespace Orvane {

/// How strongly backdrop layers are laid down; 1 is opaque.
inline constexpr double BackdropOpacity = 0.3;

/// Neighbouring layers that share one image; a sheet of one layer as long as there are few layers.
struct Sheet {
    std::vector<MapLayer> layers; ///< bottom first; at least one
    bool backdrop = false; ///< laid down pale
    bool labels = false; ///< shows the layers' labels, not their features

    /// The layers' IDs in order, behind a mark for labels: names the sheet's image.
    std::vector<qint32> Key() const;
};

/// What a sheet shows, cut to what its layers can cover.
struct SheetImage {
    QImage image; ///< null when nothing is in view
    QPoint topLeft; ///< logical pixels of the view
};

/// The sheets of a map, bottom first: backdrop layers below normal ones, then by priority, then by layer ID;
/// without layers that are invisible, hidden, out of scale, out of view or not read. There are about
/// maxSheets of them at most, however many layers there are, which bounds the memory they take. Labels follow
/// on sheets of their own, above everything; those of backdrop layers above the backdrop.
std::vector<Sheet> PlanSheets(
    const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator, size_t maxSheets = 64);

/// Draws a sheet; for any thread. Stops soon after cancelled becomes true, with part of it drawn.
SheetImage DrawSheet(
    const Sheet& sheet, const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled);

/// Paints a sheet's layers, for any thread. The painter stands on the view's logical pixels. Stops soon after
/// cancelled becomes true.
void PaintSheet(
    QPainter& painter, const Sheet& sheet, const MapView& view, const std::atomic<bool>& cancelled);

/// How strongly a sheet is laid down: 0 to 1, which is opaque.
double SheetOpacity(const Sheet& sheet);

/// Lays a sheet's image over what the painter holds.
void PlaceSheet(QPainter& painter, const Sheet& sheet, const SheetImage& image);

} // namespace Orvane
