// SPDX-License-Identifier: MIT
#pragma once

#include "mapkit/coordinates/PositionText.h"

#include <QObject>

class QLabel;
class QStatusBar;

namespace Orvane {

class MapCanvas;
class ScaleBox;

/// How long the status bar shows a message that needs no answer, in milliseconds.
inline constexpr int ShortMessageTime = 8000;

/// What the status bar shows about the map: the scale, which can be changed there, the pointer's position,
/// and that a long drawing is running.
class MapStatus : public QObject
{
    Q_OBJECT

public:
    /// Adds its labels to the bar, which owns them and this object. canvas: not owned; outlives it.
    MapStatus(QStatusBar& bar, MapCanvas& canvas);

    /// The coordinate system that positions are shown in; empty for none.
    void SetSystem(const QString& system);

private:
    QLabel* AddLabel(const QString& name);
    void MarkDrawing();
    QStatusBar& m_bar;
    MapCanvas& m_canvas;
    PositionText m_positionText{QString()};
    QLabel* m_drawing;
    QLabel* m_position;
    ScaleBox* m_scale;
};

} // namespace Orvane
