// SPDX-License-Identifier: MIT
#include "hostkit/undo/UndoHistory.h"

#include "hostkit/common/HostErrors.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QScopedValueRollback>

#include <algorithm>

namespace Orvane {

void UndoHistory::Add(std::unique_ptr<IUndoStep> step)
{
    if (m_running)
        return;
    m_steps.resize(m_done);
    if (m_steps.empty() || !m_steps.back()->Absorb(*step))
        m_steps.push_back(std::move(step));
    DropOldest();
    m_done = m_steps.size();
    emit Changed();
}

void UndoHistory::DropOldest()
{
    const size_t most = std::min(m_steps.size(), size_t(MaxSteps));
    size_t kept = 1;
    for (qsizetype bytes = m_steps.back()->KeptBytes(); kept < most; ++kept) {
        bytes += m_steps[m_steps.size() - kept - 1]->KeptBytes();
        if (bytes > MaxBytes)
            break;
    }
    m_steps.erase(m_steps.begin(), m_steps.end() - std::ptrdiff_t(kept));
}

QString UndoHistory::UndoText() const
{
    return CanUndo() ? tr("Undo %1").arg(m_steps[m_done - 1]->Text()) : tr("Undo");
}

QString UndoHistory::RedoText() const
{
    return CanRedo() ? tr("Redo %1").arg(m_steps[m_done]->Text()) : tr("Redo");
}

void UndoHistory::Clear()
{
    if (m_running || m_steps.empty())
        return;
    m_steps.clear();
    m_done = 0;
    emit Changed();
}

void UndoHistory::ForgetUndone()
{
    if (m_running || !CanRedo())
        return;
    m_steps.resize(m_done);
    emit Changed();
}

void UndoHistory::Run(Direction direction)
{
    if (m_running)
        return;
    if (m_beforeStep)
        m_beforeStep();
    const bool undoes = direction == Direction::Undo;
    if (!(undoes ? CanUndo() : CanRedo()))
        return;
    const QScopedValueRollback running(m_running, true);
    RunStep(direction, undoes ? m_done - 1 : m_done);
    m_done = undoes ? m_done - 1 : m_done + 1;
    emit Changed();
    if (m_afterStep)
        m_afterStep();
}

void UndoHistory::RunStep(Direction direction, size_t position)
{
    try {
        direction == Direction::Undo ? m_steps[position]->Undo() : m_steps[position]->Redo();
    } catch (const RunTimeError& error) {
        if (error.Number() != int(HostError::StepOutdated))
            throw;
        m_steps.erase(m_steps.begin() + std::ptrdiff_t(position));
        m_done = position;
        emit Changed();
        throw;
    }
}

} // namespace Orvane
