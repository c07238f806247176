// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/output/PageSettings.h"

namespace Orvane {

/// What a person chose for a page last time, whatever the map.
struct PageChoices {
    QString paper = QStringLiteral("A4"); ///< one of Papers; empty for an own size
    bool upright = false; ///< of a paper
    QSizeF ownSize{1600, 900}; ///< in pixels or millimetres
    bool ownInPixels = true;
    int resolution = 300; ///< dots an inch
    bool keepScale = false; ///< of the window, or a number; else all that the window shows
    bool title = true;
    bool legend = true;
    bool scaleBar = true;

    /// As stored last; the values above where nothing, or something foreign, is stored.
    static PageChoices Stored();
    void Store() const;

    /// The page's size in millimetres, as it lies.
    QSizeF Millimetres() const;
    /// The same in dots at the resolution.
    QSizeF Pixels() const;

    bool operator==(const PageChoices&) const = default;
};

} // namespace Orvane
