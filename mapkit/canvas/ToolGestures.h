// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPointer>

class QKeyEvent;
class QMouseEvent;

namespace Orvane {

class MapTool;

/// Converts the mouse events of a canvas into gestures of the current tool: a click if the pointer did not
/// move, a drag if it moved farther than the desktop's drag distance. Drags with Shift may belong to another
/// tool. Without a tool no event is handled.
///
/// Errors that the tool raises are passed on.
class ToolGestures
{
public:
    enum class Outcome { Nothing, Taken, PanFromPress };

    /// Sets the current tool, and cancels the gesture that is in progress. tool: not owned; nullptr for none.
    void SetTool(MapTool* tool);
    MapTool* Tool() const;

    /// Sets the tool that gets the drags with Shift, whatever the current tool is. Not owned; nullptr for
    /// none.
    void SetShiftDragTool(MapTool* tool);
    MapTool* ShiftDragTool() const;

    /// True when the event is a tool's.
    bool Press(const QMouseEvent& event);
    /// PanFromPress if a drag began that the tool does not handle.
    Outcome Move(const QMouseEvent& event);
    void Release(const QMouseEvent& event);
    /// True when the event is the tool's.
    bool DoubleClick(const QMouseEvent& event);
    /// True when the event is the tool's.
    bool Key(const QKeyEvent& event);

    /// Where the left button was last pressed.
    QPointF PressedAt() const { return m_pressedAt; }

private:
    enum class State { Idle, Pressed, Dragging };

    bool IsShiftDrag() const;
    void CancelDrag();
    Outcome BeginDrag(const QMouseEvent& event);

    QPointer<MapTool> m_tool;
    QPointer<MapTool> m_shiftDragTool;
    QPointer<MapTool> m_dragTool; // one of the two, while Dragging
    State m_state = State::Idle;
    QPointF m_pressedAt;
    Qt::KeyboardModifiers m_modifiers; // at the press
};

} // namespace Orvane
