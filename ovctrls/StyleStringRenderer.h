// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

class QPainter;

namespace Orvane {

/// The look of the list in which an item is painted.
struct StyleStringLook {
    QFont font; ///< of text, until the item sets another
    QColor textColour; ///< of text, until the item sets another; also what colour 0 of a drawing means until
                       ///< then
    int tabColumn = 0; ///< where the part after a tab starts, in pixels from the item's left edge
};

/// Paints items of owner-drawn lists from their drawing commands: swatches, sample lines, captions.
///
///     const StyleStringRenderer renderer(prefix);
///     renderer.Paint(painter, itemRectangle, item, {font(), palette().color(QPalette::Text), 0});
///
/// The commands are those of StyleStringParser.h. A font whose face is not installed is replaced by the
/// list's font, including its size. Lengths are pixels from the item's upper left corner, or from its tab
/// column. A swatch that would be invisible on the list's background gets a faint outline. Nothing here
/// fails: a broken item is painted as far as it can be read, and never outside its rectangle.
class StyleStringRenderer
{
public:
    /// prefix: the text before each command.
    explicit StyleStringRenderer(const QString& prefix = {}) : m_prefix(prefix) { }

    /// The text before each command.
    const QString& Prefix() const { return m_prefix; }

    /// True when the item is painted by other code ("UD.").
    bool IsUserDrawn(const QString& item) const;

    /// The words of the item without commands: what a screen reader reads out and a search finds.
    QString PlainText(const QString& item) const;

    /// The width of the text before the first tab, in pixels; 0 without a tab.
    int LabelWidth(const QString& item, const QFont& font) const;

    /// Paints the item; the painter keeps its state.
    void
    Paint(QPainter& painter, const QRect& rectangle, const QString& item, const StyleStringLook& look) const;

private:
    QString m_prefix;
};

} // namespace Orvane
