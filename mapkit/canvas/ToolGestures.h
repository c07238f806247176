// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;

namespace Orvane {

class MapTool;

/// Turns the mouse events of a canvas into the gestures of the tool in hand: a click when the pointer stayed,
/// a drag when it went farther than the desktop's drag distance. Without a tool nothing is taken.
///
/// Passes on what the tool raises.
class ToolGestures
{
public:
    enum class Outcome { Nothing, Taken, PanFromPress };

    /// Gives up the gesture that is going on. tool: not owned; nullptr for none.
    void SetTool(MapTool* tool);
    MapTool* Tool() const;

    /// True when the event is the tool's.
    bool Press(const QMouseEvent& event);
    /// PanFromPress when a drag began that the tool has no use for.
    Outcome Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    /// True when the event is the tool's.
    bool DoubleClick(const QMouseEvent& event);
    /// True when the event is the tool's.
    bool Key(const QKeyEvent& event);

    /// Where the left button went down last.
    QPointF PressedAt() const { return m_pressedAt; }

private:
    enum class State { Idle, Pressed, Dragging };

    Outcome BeginDrag(const QMouseEvent& event);

    QPointer<MapTool> m_tool;
    State m_state = State::Idle;
    QPointF m_pressedAt;
    Qt::KeyboardModifiers m_modifiers; // at the press
};

} // namespace Orvane
