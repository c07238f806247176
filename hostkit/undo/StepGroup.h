// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/IUndoStep.h"

#include <memory>
#include <vector>

namespace Orvane {

/// Several steps that are undone and redone as one. If one of them fails, those before it are taken back; if
/// that fails too, the next Undo or Redo goes on from there.
class StepGroup final : public IUndoStep
{
public:
    /// steps: done, oldest first. Steps of one kind that follow each other become one, as far as they can.
    StepGroup(const std::vector<std::shared_ptr<IUndoStep>>& steps, const QString& text);

    QString Text() const override { return m_text; }
    void Undo() override;
    void Redo() override;
    qsizetype KeptBytes() const override;

    /// True if some of the steps are done and some undone.
    bool IsBetween() const { return m_done > 0 && m_done < m_steps.size(); }

private:
    void JoinNeighbours();
    void UndoAll();
    void RedoAll();

    std::vector<std::shared_ptr<IUndoStep>> m_steps; // oldest first
    size_t m_done;
    QString m_text;
};

} // namespace Orvane
