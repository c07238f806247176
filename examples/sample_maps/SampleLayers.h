// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

#include <functional>
#include <span>

namespace Orvane {

class MapDocument;

/// One row of a sample map's table of layers. Colours are RGB; 0 as a fill colour is "none".
struct SampleLayer {
    const char* group;
    const char* name;
    const char* file; ///< data file, without its folder
    const char* ogrLayer;
    QRgb line = 0xff000000;
    QRgb fill = 0;
    int priority = 128;
    int thickness = 0; ///< as in DrawingValues
    int outlineStyle = 0;
    int fillStyle = 0;
    double maxDenominator = 0; ///< 0: no limit
    bool visible = true;
    const char* filter = "";
};

/// Adds the layers and their groups, in the table's order. pathOf: gives the path of a data file; a layer for
/// which it gives an empty text is left out. Errors are those of the database.
void AddSampleLayers(
    MapDocument& document, std::span<const SampleLayer> layers,
    const std::function<QString(const QString& file)>& pathOf);

} // namespace Orvane
