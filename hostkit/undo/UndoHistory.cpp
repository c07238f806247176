// SPDX-License-Identifier: MIT
#include "hostkit/undo/UndoHistory.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/undo/StepGroup.h"

#include <OrvaneShellLib/RunTimeError.h>

#include <QLocale>
#include <QScopedValueRollback>

#include <algorithm>

namespace Orvane {

namespace {

// The mark stays before the same step while steps before it go.
void MoveMark(std::optional<size_t>& mark, size_t goneBefore)
{
    if (mark)
        *mark -= std::min(*mark, goneBefore);
}

void LimitMark(std::optional<size_t>& mark, size_t steps)
{
    if (mark)
        *mark = std::min(*mark, steps);
}

} // namespace

void UndoHistory::Add(std::unique_ptr<IUndoStep> step)
{
    if (m_running)
        return;
    m_steps.resize(m_done);
    LimitMark(m_mark, m_done);
    if (!MayAbsorb() || !m_steps.back()->Absorb(*step))
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
    const size_t gone = m_steps.size() - kept;
    m_lostSinceMark = m_lostSinceMark || (m_mark && *m_mark < gone);
    MoveMark(m_mark, gone);
    m_steps.erase(m_steps.begin(), m_steps.end() - std::ptrdiff_t(kept));
}

bool UndoHistory::MayAbsorb() const
{
    return !m_steps.empty() && m_mark != m_done;
}

void UndoHistory::SetMark()
{
    if (m_running)
        return;
    m_mark = m_done;
    m_lostSinceMark = false;
    emit Changed();
}

int UndoHistory::StepsSinceMark() const
{
    return m_mark && *m_mark < m_done ? int(m_done - *m_mark) : 0;
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
    LimitMark(m_mark, 0);
    m_lostSinceMark = false;
    emit Changed();
}

void UndoHistory::ForgetUndone()
{
    if (m_running || !CanRedo())
        return;
    m_steps.resize(m_done);
    LimitMark(m_mark, m_done);
    emit Changed();
}

void UndoHistory::UndoSinceMark()
{
    if (m_running)
        return;
    if (m_beforeStep)
        m_beforeStep();
    if (StepsSinceMark() == 1)
        Undo();
    else if (StepsSinceMark() > 1)
        UndoSeveralSinceMark();
}

void UndoHistory::UndoSeveralSinceMark()
{
    const QScopedValueRollback running(m_running, true);
    const std::shared_ptr<StepGroup> group = GroupSinceMark();
    try {
        group->Undo();
    } catch (...) {
        if (group->IsBetween())
            ReplaceSinceMark(group);
        throw;
    }
    ReplaceSinceMark(group);
    --m_done;
    Tell();
}

std::shared_ptr<StepGroup> UndoHistory::GroupSinceMark()
{
    const auto first = m_steps.begin() + std::ptrdiff_t(*m_mark);
    const std::vector steps(first, m_steps.begin() + std::ptrdiff_t(m_done));
    const QString text = tr("%1 Steps").arg(QLocale().toString(qulonglong(steps.size())));
    std::shared_ptr<StepGroup> group;
    const auto join = [&] { group = std::make_shared<StepGroup>(steps, text); };
    if (m_longWork)
        m_longWork(tr("Undo %1").arg(text), join);
    else
        join();
    return group;
}

void UndoHistory::ReplaceSinceMark(std::shared_ptr<IUndoStep> step)
{
    const auto first = m_steps.begin() + std::ptrdiff_t(*m_mark);
    *first = std::move(step);
    m_steps.erase(first + 1, m_steps.begin() + std::ptrdiff_t(m_done));
    m_done = *m_mark + 1;
}

void UndoHistory::Tell()
{
    emit Changed();
    if (m_afterStep)
        m_afterStep();
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
    Tell();
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
        if (m_mark && position < *m_mark)
            MoveMark(m_mark, 1);
        emit Changed();
        throw;
    }
}

} // namespace Orvane
