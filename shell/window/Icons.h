// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QPalette;

namespace Orvane {

/// The shell's own pictures, painted in the palette's colours so that they suit light and dark themes.
enum class IconName {
    NewMap,
    OpenMap,
    OpenData,
    ZoomIn,
    ZoomOut,
    ZoomAll,
    ZoomLayer,
    ZoomSelection,
    ZoomRectangle,
    PreviousView,
    NextView,
    LayerControl,
    Pan,
    Identify,
    Select,
    MeasureLine,
    MeasureArea,
    MoveFeature,
    PointOut,
    Undo,
    Redo
};

QIcon ShellIcon(IconName name, const QPalette& palette);

/// The picture of the program itself.
QIcon ProgramIcon();

} // namespace Orvane
