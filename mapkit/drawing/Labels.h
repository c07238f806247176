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

/// The font of labels: the font of the program, with its size on a screen of 96 dots per inch.
QFont LabelFont();

/// Finds places for the labels of the layers. No label overlaps another or extends beyond the view; labels
/// without a place are left out. The labels of the topmost layer are placed first, and within a layer those
/// of the largest features. layers: bottom first, with their labels read. May be called on any thread; stops
/// soon after cancelled becomes true.
std::vector<Label>
PlaceLabels(std::span<const MapLayer> layers, const MapView& view, const std::atomic<bool>& cancelled);

/// Paints the labels, each with a halo that separates it from the map: in the colour under the map if that is
/// light or dark, else in white. Letters that are hardly darker or lighter are made so. painter: in logical
/// pixels of the view.
void PaintLabels(QPainter& painter, std::span<const Label> labels, const QColor& background = Qt::white);

} // namespace Orvane
