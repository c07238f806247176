// SPDX-License-Identifier: MIT
#include "hostkit/undo/StepGroup.h"

#include <exception>
#include <numeric>

namespace Orvane {

namespace {

/// Runs act; if it raises, runs back and passes on what act has raised.
template <typename Action, typename Back> void AllOrNothing(Action&& act, Back&& back)
{
    try {
        act();
    } catch (...) {
        try {
            back();
        } catch (...) { // the first error is the one to report
        }
        throw;
    }
}

} // namespace

StepGroup::StepGroup(const std::vector<std::shared_ptr<IUndoStep>>& steps, const QString& text)
    : m_steps(steps), m_text(text)
{
    for (size_t before = m_steps.size() + 1; m_steps.size() < before;) {
        before = m_steps.size();
        JoinNeighbours();
    }
    m_done = m_steps.size();
}

// In pairs, round by round: joining a long row to each single step would read it as often.
void StepGroup::JoinNeighbours()
{
    std::vector<std::shared_ptr<IUndoStep>> joined;
    joined.reserve(m_steps.size());
    for (size_t position = 0; position < m_steps.size(); ++position) {
        std::shared_ptr<IUndoStep> step = m_steps[position];
        std::shared_ptr<IUndoStep> pair
            = position + 1 < m_steps.size() ? step->JoinedWith(*m_steps[position + 1], m_text) : nullptr;
        if (pair)
            ++position;
        joined.push_back(pair ? std::move(pair) : std::move(step));
    }
    m_steps = std::move(joined);
}

void StepGroup::Undo()
{
    AllOrNothing([this] { UndoAll(); }, [this] { RedoAll(); });
}

void StepGroup::Redo()
{
    AllOrNothing([this] { RedoAll(); }, [this] { UndoAll(); });
}

void StepGroup::UndoAll()
{
    for (; m_done > 0; --m_done)
        m_steps[m_done - 1]->Undo();
}

void StepGroup::RedoAll()
{
    for (; m_done < m_steps.size(); ++m_done)
        m_steps[m_done]->Redo();
}

qsizetype StepGroup::KeptBytes() const
{
    return std::accumulate(m_steps.begin(), m_steps.end(), qsizetype(0), [](qsizetype sum, const auto& step) {
        return sum + step->KeptBytes();
    });
}

} // namespace Orvane
