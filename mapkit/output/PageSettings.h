// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

namespace Orvane {

inline constexpr double MillimetresPerInch = 25.4;

/// A pixel on paper: what a line of that many "pixels" or a symbol measures there, as on a plain screen.
inline constexpr double PagePixelsPerInch = 96;
inline constexpr double PagePixelsPerMillimetre = PagePixelsPerInch / MillimetresPerInch;

/// How large a page is, and what stands on it beside the map.
struct PageSettings {
    QSizeF size{297, 210}; ///< millimetres, as the page lies
    double margin = 10; ///< millimetres on each side; 0 where the map fills the page
    int resolution = 300; ///< dots an inch; of vector formats, of what they can only hold as a picture
    QString title; ///< empty for none
    bool legend = true;
    bool scaleBar = true;
    double scaleDenominator = 0; ///< n of 1:n; 0: as large as the whole area can be shown

    bool operator==(const PageSettings&) const = default;
};

} // namespace Orvane
