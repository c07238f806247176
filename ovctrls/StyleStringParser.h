// SPDX-License-Identifier: MIT
#pragma once

#include <QPolygonF>
#include <QString>

#include <variant>
#include <vector>

namespace Orvane {

/// Text between commands; painted where the previous text ended.
struct TextRun {
    QString text;
};

/// A tab: what follows starts in the next column.
struct TabStop {
};

/// "FG=c": the colour of the text that follows. Colours are BGR integers (red in the low byte).
struct ForeColour {
    qint32 colour = 0;
};

/// "FCface,size,": the font of the text that follows.
struct FontChange {
    QString face;
    double points = 0;
};

/// One figure of a drawing, in pixels from its origin.
struct Figure {
    bool isFilled = false; ///< ":F", a closed polygon; else ":D", a line
    QPolygonF points; ///< starting with the point before the figure
};

/// "DRB=" and "DRP=" with their sub-commands.
struct Drawing {
    qint32 brushColour = 0;
    qint32 penColour = 0;
    int penStyle = 0; ///< 0 solid, 1 to 4 dashes and dots, 15 none
    double penWidth = 0; ///< pixels; 0 is the thinnest line
    std::vector<Figure> figures;
};

/// "UD": the item is painted by other code.
struct UserDrawn {
};

using StyleElement = std::variant<TextRun, TabStop, ForeColour, FontChange, Drawing, UserDrawn>;

/// Parses an item of an owner-drawn list. Each command starts with the prefix and ends in "."; the text of an
/// item is everything outside commands. With an empty prefix, commands are recognised by their keywords, at
/// the start of the item and after a tab or another command.
///
/// Never fails: an unknown command is skipped, and a broken one is kept up to the damage. Coordinates beyond
/// 32767 pixels are clamped to that.
std::vector<StyleElement> ParseStyleString(const QString& item, const QString& prefix);
/// The same without the drawings, whose coordinates take long to read.
std::vector<StyleElement> ParseStyleTexts(const QString& item, const QString& prefix);

} // namespace Orvane
