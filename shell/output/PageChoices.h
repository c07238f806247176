// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/PageSettings.h"

namespace Orvane {

/// What the user last chose for a page, of any map.
struct PageChoices {
    QString paper = QStringLiteral("A4"); ///< one of Papers; empty for a custom size
    bool upright = false; ///< of a paper
    QSizeF ownSize{1600, 900}; ///< in pixels or millimetres
    bool ownInPixels = true;
    int resolution = 300; ///< dots per inch
    bool keepScale = false; ///< the window's scale or a number; else the page shows all that the window shows
    bool title = true;
    bool legend = true;
    bool scaleBar = true;

    /// As stored last; the values above where nothing, or an unknown value, is stored.
    static PageChoices Stored();
    void Store() const;

    /// The page's size in millimetres, with its orientation.
    QSizeF Millimetres() const;
    /// The same in dots at the resolution.
    QSizeF Pixels() const;

    bool operator==(const PageChoices&) const = default;
};

} // namespace Orvane
