// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/IUndoStep.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

namespace Orvane {

/// The last things that a person did, in their order, to be undone from the last one back and redone.
///
/// StandardClient adds its steps by itself; a host adds those of its own to the same history. All calls are
/// made on the user-interface thread.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    /// As many steps are kept; one more drops the oldest.
    static constexpr int MaxSteps = 100;

    using QObject::QObject;

    /// Takes a step that was done just now; what was undone before can then no longer be redone. While Undo
    /// or Redo runs, nothing is added: what happens then belongs to the step that runs.
    void Add(std::unique_ptr<IUndoStep> step);

    bool CanUndo() const { return m_done > 0; }
    bool CanRedo() const { return m_done < m_steps.size(); }
    /// A menu's text: "Undo Change of Roads", or only "Undo" when there is nothing to undo.
    QString UndoText() const;
    /// As UndoText, for Redo.
    QString RedoText() const;

    /// Undoes the last step, if there is one. Raises what the step raises: with HostError::StepOutdated it is
    /// gone from the history, else everything is as before.
    void Undo() { Run(Direction::Undo); }
    /// Does the step again that was undone last, if there is one; raises as Undo does.
    void Redo() { Run(Direction::Redo); }

    /// Forgets all steps.
    void Clear();

    /// The action is called at the beginning of each Undo and Redo, before the step is chosen; what it raises
    /// stops them. An empty function ends that.
    void SetBeforeStep(std::function<void()> action) { m_beforeStep = std::move(action); }
    /// The action is called at the end of each Undo and Redo that did something, when the history stands
    /// already where it belongs; what it raises is passed on. An empty function ends that.
    void SetAfterStep(std::function<void()> action) { m_afterStep = std::move(action); }

signals:
    /// What can be undone or redone is something else now.
    void Changed();

private:
    enum class Direction { Undo, Redo };

    void Run(Direction direction);
    void RunStep(Direction direction, size_t position);

    std::vector<std::unique_ptr<IUndoStep>> m_steps; // the oldest first
    size_t m_done = 0; // so many of them are done, those behind are undone
    bool m_running = false;
    std::function<void()> m_beforeStep;
    std::function<void()> m_afterStep;
};

} // namespace Orvane
