// SPDX-License-Identifier: MIT
#include "mapkit/canvas/ToolGestures.h"

#include "mapkit/canvas/MapTool.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

namespace Orvane {

void ToolGestures::SetTool(MapTool* tool)
{
    CancelDrag();
    const QPointer<MapTool> before = std::exchange(m_tool, tool);
    if (before)
        before->End();
    if (m_tool)
        m_tool->Begin();
}

MapTool* ToolGestures::Tool() const
{
    return m_tool;
}

void ToolGestures::SetShiftDragTool(MapTool* tool)
{
    m_shiftDragTool = tool;
}

MapTool* ToolGestures::ShiftDragTool() const
{
    return m_shiftDragTool;
}

bool ToolGestures::IsShiftDrag() const
{
    return m_shiftDragTool && m_modifiers.testFlag(Qt::ShiftModifier);
}

// The current tool cancels its own drag when it ends.
void ToolGestures::CancelDrag()
{
    const State state = std::exchange(m_state, State::Idle);
    if (state == State::Dragging && m_dragTool && m_dragTool != m_tool)
        m_dragTool->End();
}

bool ToolGestures::Press(const QMouseEvent& event)
{
    if (event.button() == Qt::RightButton)
        return m_tool && m_tool->RightClick(event.position());
    if (event.button() != Qt::LeftButton)
        return false;
    m_pressedAt = event.position();
    m_modifiers = event.modifiers();
    if (!m_tool && !IsShiftDrag())
        return false;
    m_state = State::Pressed;
    return true;
}

ToolGestures::Outcome ToolGestures::Move(const QMouseEvent& event)
{
    if (m_state == State::Pressed)
        return BeginDrag(event);
    MapTool* tool = m_state == State::Dragging ? m_dragTool : m_tool;
    if (!tool)
        return Outcome::Nothing;
    if (m_state == State::Dragging)
        tool->DragTo(event.position());
    else
        tool->Hover(event.position());
    return Outcome::Taken;
}

ToolGestures::Outcome ToolGestures::BeginDrag(const QMouseEvent& event)
{
    const double way = (event.position() - m_pressedAt).manhattanLength();
    if (way < QApplication::startDragDistance())
        return Outcome::Nothing;
    m_state = State::Idle;
    m_dragTool = IsShiftDrag() ? m_shiftDragTool : m_tool;
    if (!m_dragTool || !m_dragTool->DragBegin(m_pressedAt, m_modifiers))
        return Outcome::PanFromPress;
    m_state = State::Dragging;
    m_dragTool->DragTo(event.position());
    return Outcome::Taken;
}

void ToolGestures::Release(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton)
        return;
    const State state = std::exchange(m_state, State::Idle);
    if (state == State::Dragging && m_dragTool)
        m_dragTool->DragEnd(event.position());
    else if (state == State::Pressed && m_tool)
        m_tool->Click(m_pressedAt, m_modifiers);
}

bool ToolGestures::DoubleClick(const QMouseEvent& event)
{
    return m_tool && event.button() == Qt::LeftButton && m_tool->DoubleClick(event.position());
}

bool ToolGestures::Key(const QKeyEvent& event)
{
    MapTool* tool = m_state == State::Dragging ? m_dragTool : m_tool;
    return tool && tool->Key(event);
}

} // namespace Orvane
