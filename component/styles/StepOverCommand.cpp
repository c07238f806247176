// SPDX-License-Identifier: MIT
#include "component/styles/StepOverCommand.h"

#include "ovctrls/OvCombo.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace Orvane {

namespace {

struct Move {
    int target = -1; ///< the index that the event would select, -1 for none
    int step = 0; ///< 1 down, -1 up
};

Move MoveOf(const QKeyEvent& key, const OvCombo& combo)
{
    if (key.modifiers() & (Qt::AltModifier | Qt::ControlModifier))
        return {};
    switch (key.key()) {
    case Qt::Key_Down:
    case Qt::Key_PageDown:
        return {combo.ListIndex() + 1, 1};
    case Qt::Key_Up:
    case Qt::Key_PageUp:
        return {combo.ListIndex() - 1, -1};
    case Qt::Key_End:
        return {combo.ListCount() - 1, -1};
    default:
        return {};
    }
}

Move MoveOf(const QWheelEvent& wheel, const OvCombo& combo)
{
    const int turn = wheel.angleDelta().y();
    if (turn == 0)
        return {};
    const int step = turn < 0 ? 1 : -1;
    return {combo.ListIndex() + step, step};
}

} // namespace

StepOverCommand::StepOverCommand(OvCombo& combo, std::function<int()> commandIndex)
    : m_combo(combo), m_commandIndex(std::move(commandIndex))
{
    combo.installEventFilter(this);
}

bool StepOverCommand::eventFilter(QObject*, QEvent* event)
{
    Move move;
    if (event->type() == QEvent::KeyPress)
        move = MoveOf(static_cast<const QKeyEvent&>(*event), m_combo);
    else if (event->type() == QEvent::Wheel)
        move = MoveOf(static_cast<const QWheelEvent&>(*event), m_combo);
    return move.step != 0 && move.target == m_commandIndex() && StepBeyond(move.target, move.step);
}

bool StepOverCommand::StepBeyond(int target, int step)
{
    const int next = target + step;
    if (next < 0 || next >= m_combo.ListCount() || next == m_combo.ListIndex())
        return true;
    m_combo.SetListIndex(next);
    emit m_combo.activated(next);
    return true;
}

} // namespace Orvane
