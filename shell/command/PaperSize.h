// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

namespace Orvane {

/// A page's size as a person writes it.
struct PaperSize {
    QSizeF size; ///< millimetres, or pixels
    bool inPixels = false;

    /// In millimetres; resolution: dots an inch.
    QSizeF Millimetres(int resolution) const;
};

/// Reads "A4", "letter" (wide unless portrait), "200x150mm", "200x150" (millimetres) or "1600x900px"; in any
/// case. Nothing for other texts, for sides below 10 mm or pixels and above 10 m or 30,000 pixels.
std::optional<PaperSize> ReadPaperSize(const QString& text, bool portrait);

} // namespace Orvane
