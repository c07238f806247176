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
    m_state = State::Idle;
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

bool ToolGestures::Press(const QMouseEvent& event)
{
    if (!m_tool)
        return false;
    if (event.button() == Qt::RightButton)
        m_tool->RightClick(event.position());
    if (event.button() != Qt::LeftButton)
        return event.button() == Qt::RightButton;
    m_state = State::Pressed;
    m_pressedAt = event.position();
    m_modifiers = event.modifiers();
    return true;
}

ToolGestures::Outcome ToolGestures::Move(const QMouseEvent& event)
{
    if (!m_tool)
        return Outcome::Nothing;
    if (m_state == State::Dragging)
        m_tool->DragTo(event.position());
    else if (m_state == State::Pressed)
        return BeginDrag(event);
    else
        m_tool->Hover(event.position());
    return Outcome::Taken;
}

ToolGestures::Outcome ToolGestures::BeginDrag(const QMouseEvent& event)
{
    const double way = (event.position() - m_pressedAt).manhattanLength();
    if (way < QApplication::startDragDistance())
        return Outcome::Nothing;
    m_state = State::Idle;
    if (!m_tool->DragBegin(m_pressedAt, m_modifiers))
        return Outcome::PanFromPress;
    m_state = State::Dragging;
    m_tool->DragTo(event.position());
    return Outcome::Taken;
}

void ToolGestures::Release(const QMouseEvent& event)
{
    if (!m_tool || event.button() != Qt::LeftButton)
        return;
    const State state = std::exchange(m_state, State::Idle);
    if (state == State::Dragging)
        m_tool->DragEnd(event.position());
    else if (state == State::Pressed)
        m_tool->Click(m_pressedAt, m_modifiers);
}

bool ToolGestures::DoubleClick(const QMouseEvent& event)
{
    return m_tool && event.button() == Qt::LeftButton && m_tool->DoubleClick(event.position());
}

bool ToolGestures::Key(const QKeyEvent& event)
{
    return m_tool && m_tool->Key(event);
}

} // namespace Orvane
