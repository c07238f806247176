// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/drawing/MapView.h"

#include <QImage>
#include <QPolygonF>
#include <QString>

#include <vector>

namespace Orvane::Benchmarks {

/// The cost of the jobs with GDAL and QPainter alone: outer rings of areas, one pen, one brush.
namespace BareMap {

/// The areas of one layer, in map units.
using Areas = std::vector<QPolygonF>;

/// Reads all layers of a file.
std::vector<Areas> Read(const QString& file);

/// Where all areas lie.
Box BoundsOf(const std::vector<Areas>& layers);

/// Paints one layer after the other over the picture, as smooth as the map's painter does.
/// dotsPerPixel: how many dots of the picture are one pixel of the view.
void Draw(QImage& picture, const std::vector<Areas>& layers, const MapView& view, double dotsPerPixel = 1);

/// The number of areas under a pixel, by bounding box and then by their edges.
int CountAt(const std::vector<Areas>& layers, const MapView& view, QPointF pixel);

} // namespace BareMap

} // namespace Orvane::Benchmarks
