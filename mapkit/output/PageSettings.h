// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

namespace Orvane {

inline constexpr double MillimetresPerInch = 25.4;

/// The size of a pixel on paper: lines and symbols with sizes in pixels are as large as on a usual screen.
inline constexpr double PagePixelsPerInch = 96;
inline constexpr double PagePixelsPerMillimetre = PagePixelsPerInch / MillimetresPerInch;

/// The size of a page, and what it shows besides the map.
struct PageSettings {
    QSizeF size{297, 210}; ///< millimetres, in the orientation of the page
    double margin = 10; ///< millimetres on each side; 0 if the map fills the page
    int resolution = 300; ///< dots per inch; in vector formats, only for parts that are stored as pictures
    QString title; ///< empty for none
    bool legend = true;
    bool scaleBar = true;
    double scaleDenominator = 0; ///< n of 1:n; 0: the largest scale that shows the whole area

    bool operator==(const PageSettings&) const = default;
};

} // namespace Orvane
