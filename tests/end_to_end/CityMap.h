// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QString>

namespace Orvane::Testing {

/// A map of 5,000 layers in 100 groups, with a feature for each: the groups "District 1" and so on have 50
/// layers of plots, but the first 37 have a water pipe in place of the last plot. One plot is a backdrop,
/// some are hidden.
struct CityMap {
    static constexpr int Districts = 100;
    static constexpr int LayersInDistrict = 50;
    static constexpr int Layers = Districts * LayersInDistrict;
    static constexpr int Pipes = 37;
    static constexpr QRgb PlotColour = 0xffe0ecd0; ///< of the fill

    /// Makes the map file, with its data beside it.
    static void Make(const QString& mapPath);
};

} // namespace Orvane::Testing
