// SPDX-License-Identifier: MIT
#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

namespace Orvane {

/// A page size as a user writes it.
struct PaperSize {
    QSizeF size; ///< millimetres, or pixels
    bool inPixels = false;

    /// In millimetres; resolution: dots per inch.
    QSizeF Millimetres(int resolution) const;
};

/// Reads "A4", "letter" (wide unless portrait), "200x150mm", "200x150" (millimetres) or "1600x900px", in
/// upper or lower case. Nothing for other texts, and for sides below 10 mm or 10 pixels and above 10 m or
/// 30,000 pixels.
std::optional<PaperSize> ReadPaperSize(const QString& text, bool portrait);

} // namespace Orvane
