// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <QColor>
#include <QImage>
#include <QPoint>

#include <atomic>
#include <map>
#include <vector>

class QPainter;

namespace Orvane {

/// The opacity of backdrop layers; 1 is opaque.
inline constexpr double BackdropOpacity = 0.3;

/// Neighbouring layers that share one image. If there are few layers, each has its own sheet.
struct Sheet {
    std::vector<MapLayer> layers; ///< bottom first; at least one
    bool backdrop = false; ///< drawn pale
    bool labels = false; ///< shows the layers' labels, not their features
    QColor background = Qt::white; ///< under the map; for the halos of labels

    /// Whether one of the layers is a raster.
    bool HasRaster() const;

    /// A marker for labels, followed by the layers' IDs in order; identifies the sheet's image.
    std::vector<qint32> Key() const;
};

/// The image of a sheet, limited to the area that its layers can cover.
struct SheetImage {
    QImage image; ///< null if nothing is in view
    QPoint topLeft; ///< logical pixels of the view
    std::map<qint32, QString> failures = {}; ///< why a raster could not be drawn, by layer ID
};

/// The sheets of a map, bottom first: rasters of the lowest priority, then backdrop layers, then normal ones;
/// among them by priority, then rasters below features, then by layer ID.
/// Layers that are invisible, hidden, out of scale, out of view or not read are left out. There are at most
/// about maxSheets sheets for any number of layers, which limits the memory that they use. Labels are on
/// separate sheets above all layers; those of backdrop layers are directly above the backdrop.
std::vector<Sheet> PlanSheets(
    const std::vector<MapLayer>& layers, const MapView& view, double scaleDenominator, size_t maxSheets = 64);

/// Draws a sheet, on any thread. Stops soon after cancelled becomes true, with part of it drawn. A raster
/// with damaged data is left out.
SheetImage DrawSheet(
    const Sheet& sheet, const MapView& view, double devicePixelRatio, const std::atomic<bool>& cancelled);

/// Paints a sheet's layers, on any thread. painter: in logical pixels of the view. Stops soon after cancelled
/// becomes true. Raises for a raster with damaged data.
void PaintSheet(
    QPainter& painter, const Sheet& sheet, const MapView& view, const std::atomic<bool>& cancelled);

/// The opacity of a sheet: 0 to 1, which is opaque.
double SheetOpacity(const Sheet& sheet);

/// Paints a sheet's image with the sheet's opacity.
void PlaceSheet(QPainter& painter, const Sheet& sheet, const SheetImage& image);

} // namespace Orvane
