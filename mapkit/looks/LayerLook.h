// SPDX-License-Identifier: MIT
#pragma once

#include <QBrush>
#include <QColor>
#include <QPen>
#include <QtGlobal>

#include <optional>
#include <vector>

namespace Orvane {

class IShellServices;
struct LayerRendering;

/// The columns of a Layers row that say how the layer is drawn, as stored.
struct DrawingValues {
    qint32 color = 0; ///< BGR; if the top byte is not 0, symbols keep their own colour
    qint32 fillForeColor = 0; ///< BGR; a top byte other than 0: transparent
    qint32 fillBackColor = 0; ///< BGR; a top byte other than 0: transparent
    int outlineStyle = 0; ///< as in LinePatterns.h: 0 solid, 1 to 14 dashes and dots, 15 none
    int fillStyle = 0; ///< 0 solid, 15 hollow, otherwise the number of a fill pattern
    int lineThickness = 0; ///< negative: pixels; 0: thinnest; positive: millimetres
    qint32 style = 0; ///< as in RendererStyles.h

    bool operator==(const DrawingValues&) const = default;
};

/// Values with which lines and areas show nothing: for layers whose data are neither.
DrawingValues ValuesWithoutInk();

/// The pens of a line with edges.
struct CasedLine {
    QPen casing; ///< drawn first, under all cores
    QPen core;
};

/// How the features of one class differ from their layer.
struct ClassLook {
    QBrush fill;
    QColor colour; ///< of lines, points, and the outlines of hollow areas
};

/// Pens and brushes for one layer. Safe to use in any thread.
struct LayerLook {
    QPen outline; ///< of areas, and of lines that are not cased
    QBrush fill;
    QColor symbol; ///< colour of points
    double symbolRadius = 3; ///< logical pixels
    QColor text; ///< of labels, whose letters are made darker or lighter than their halo
    std::optional<CasedLine> cased; ///< for renderer styles with cased lines

    /// The largest distance from a feature's geometry at which anything is painted, in logical pixels.
    double Reach() const;
};

/// The colour of a BGR integer; nothing if its top byte marks it as transparent.
std::optional<QColor> ColourFromBgr(qint32 bgr);

/// The looks of that number of classes, the lowest first, in the colours of the rendering's ramp. Without a
/// ramp, the colours go from the fill's back colour to its fore colour; if one of them is transparent, from
/// a pale to a strong tone of the other. Errors of the services are passed on.
std::vector<ClassLook> ClassLooksOf(
    const DrawingValues& values, const LayerRendering& rendering, const IShellServices& services, int count);
/// The look of features that are in no class: grey.
ClassLook UnclassedLook(const DrawingValues& values);

/// The look for the values. pixelsPerMillimetre: of the screen or the paper, in logical pixels. Errors of the
/// services are passed on.
LayerLook LookOf(const DrawingValues& values, const IShellServices& services, double pixelsPerMillimetre);

} // namespace Orvane
