// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/LabelSpots.h"
#include "mapkit/drawing/MapLayer.h"
#include "mapkit/drawing/MapView.h"

#include <QColor>
#include <QFont>
#include <QString>

#include <atomic>
#include <span>
#include <vector>

class QPainter;

namespace Orvane {

/// A label in its place.
struct Label {
    QString text; ///< one line
    LabelSpot spot;
    QColor colour;
};

/// The font of labels: that of the program, at its size on a screen of 96 dots an inch.
QFont LabelFont();

/// Finds places for the labels of the layers, which hold texts: none overlaps another or leaves the view, and
/// what finds no place is left out. The topmost layer's come first, within a layer those of the largest
/// features. layers: bottom first. For any thread; stops soon after cancelled becomes true.
std::vector<Label>
PlaceLabels(std::span<const MapLayer> layers, const MapView& view, const std::atomic<bool>& cancelled);

/// Paints the labels, each with a halo that parts it from the map. The painter stands on the view's logical
/// pixels.
void PaintLabels(QPainter& painter, std::span<const Label> labels);

} // namespace Orvane
