// SPDX-License-Identifier: MIT
#pragma once

#include <QFontMetrics>
#include <QIcon>
#include <QPalette>

#include <map>
#include <utility>

class QPainter;
class QRectF;

namespace Orvane {

/// Paints the image of a node: one sheet for a layer, two for a group. The shape alone shows the mode: filled
/// for normal (1), dashed for backdrop (2), crossed out for hidden (4), half filled for various (0 and any
/// other). Drawn with lines, so that it is sharp at any size and resolution.
void PaintNodeImage(
    QPainter& painter, const QRectF& area, bool isGroup, qint16 quickMode, const QColor& colour);

/// The icons of nodes in the colours of a palette. They use its text colours, so that they suit dark palettes
/// and selected rows. Created once for each image and palette.
class NodeImages
{
public:
    /// The side of the square in which a row shows an image. iconHeight: of the view's icons. font: of the
    /// row.
    static int SideOf(int iconHeight, const QFontMetrics& font) { return qMax(iconHeight, font.height()); }

    QIcon Icon(bool isGroup, qint16 quickMode, const QPalette& palette, QPalette::ColorGroup colours) const;

private:
    using ImageOf = std::pair<QPalette::ColorGroup, std::pair<bool, qint16>>;

    mutable qint64 m_palette = 0; ///< key of the palette that the icons were made for
    mutable std::map<ImageOf, QIcon> m_icons;
};

} // namespace Orvane
