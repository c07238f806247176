// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/OrvaneShellLib/LayerValues.h>
#include <orvane/samples/ComboGeometry.h>

#include <QString>
#include <QtGlobal>

#include <array>

namespace Orvane {

/// The line style that draws no line.
constexpr qint16 NoLineStyle = 15;

/// A line style and its thickness: pixels below 0, the thinnest line at 0, millimetres above.
struct LineItem {
    qint16 style = 0; ///< the number of a line pattern, or NoLineStyle
    qint16 thickness = 0; ///< pixels below 0, millimetres above
};

/// The items of the line list, in order; "Custom Line Style..." follows.
inline constexpr std::array StandardLineItems{
    LineItem{NoLineStyle, 0}, LineItem{0, 0},  LineItem{1, 0},  LineItem{2, 0},  LineItem{3, 0},
    LineItem{4, 0},           LineItem{0, -2}, LineItem{0, -3}, LineItem{0, -4}, LineItem{0, -5},
};

/// The words that items show, in the user's language.
struct StyleWords {
    QString transparent; ///< "Transparent"
    QString noLine; ///< "<none>"
    QString millimetres; ///< "mm"
    QString pixels; ///< "pixels"
    QString customLineStyle; ///< "Custom Line Style..."
};

/// Writes the items of owner-drawn pickers as drawing commands in the renderer's style-string language.
///
///     const StyleStrings strings(client.StyleCommandPrefix(), TranslatedStyleWords());
///     strings.ColourItem(255, {138, 14});  // P "FG=255." P "DRB=255:P=255:M0,1:F0,1,138,1,138,14,0,14,0,1."
///
/// Every command starts with the host's prefix, whatever it contains, and ends in ".". Numbers are plain
/// decimal integers; only the extents of swatches keep a fraction, with the decimal separator of the user's
/// locale. Nothing here raises.
class StyleStrings
{
public:
    /// prefix: what the host puts before each command. words: copied.
    StyleStrings(const QString& prefix, const StyleWords& words) : m_prefix(prefix), m_words(words) { }

    /// A swatch of the colour, one pixel below the top; for TransparentColour, the word for it. colour: BGR.
    QString ColourItem(qint32 colour, const SwatchExtent& extent) const;

    /// A sample of the line; for NoLineStyle, the word for it. A sample is never thicker than the item less
    /// two pixels, and a millimetre is shown as a pixel.
    QString LineItemText(const LineItem& line, const LineExtent& extent) const;

    /// An item that the dialog paints itself.
    QString FillItem() const;

    /// The "Custom Line Style..." entry in the font of the list.
    QString CustomLineCaption() const;

private:
    QString Command(const QString& body) const;
    QString PatternedLine(qint16 style, const LineExtent& extent) const;
    QString SolidLine(qint16 thickness, const LineExtent& extent) const;
    QString LeadIn(qint16 thickness) const;

    QString m_prefix;
    StyleWords m_words;
};

} // namespace Orvane
