// SPDX-License-Identifier: MIT
#pragma once

#include <orvane/hostkit/undo/IUndoStep.h>

#include <QObject>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace Orvane {

class StepGroup;

/// The user's latest operations in order, which can be undone, the last one first, and redone.
///
/// StandardClient adds its own steps; a host adds its steps to the same history. All calls are made on the
/// user-interface thread.
class UndoHistory : public QObject
{
    Q_OBJECT

public:
    /// The number of steps that are kept; adding one more drops the oldest.
    static constexpr int MaxSteps = 100;
    /// The memory that all steps together may use, in bytes; adding one drops the oldest until it suffices.
    /// The latest step is kept, however large it is.
    static constexpr qsizetype MaxBytes = qsizetype(256) * 1024 * 1024;

    using QObject::QObject;

    /// Adds a step that was just done; steps that were undone before can then no longer be redone. While Undo
    /// or Redo is running, nothing is added, because all changes belong to the running step.
    void Add(std::unique_ptr<IUndoStep> step);

    /// True if there is a step to undo, or to redo.
    bool CanUndo() const { return m_done > 0; }
    bool CanRedo() const { return m_done < m_steps.size(); }
    /// The text for a menu: "Undo Change Roads", or just "Undo" if there is nothing to undo.
    QString UndoText() const;
    /// As UndoText, for Redo.
    QString RedoText() const;

    /// Undoes the last step, if there is one. Raises what the step raises: after HostError::StepOutdated the
    /// step is removed from the history; after any other error everything is as before.
    void Undo() { Run(Direction::Undo); }
    /// Redoes the step that was undone last, if there is one; raises the same errors as Undo.
    void Redo() { Run(Direction::Redo); }

    /// Remembers this point of the history; StandardClient does so when a first editor is opened. Steps that
    /// are added from now on are not merged with those before.
    void SetMark();
    /// How many steps were done since the mark and can be undone; 0 without a mark.
    int StepsSinceMark() const;
    /// True if more steps were done since the mark than the history keeps: then they cannot all be undone.
    bool HasLostStepsSinceMark() const { return m_lostSinceMark; }
    /// Undoes all of them as one step, which one Redo brings back; from then on they are one step. If one of
    /// them cannot be undone, or the user cancels, all stay done: raises what the step raises.
    void UndoSinceMark();

    /// Forgets all steps.
    void Clear();
    /// Forgets the steps that were undone: something that is no step has changed what they would redo.
    void ForgetUndone();

    /// The action is called at the beginning of each Undo and Redo, before the step is chosen; if it raises,
    /// nothing is undone or redone. An empty function removes the action.
    void SetBeforeStep(std::function<void()> action) { m_beforeStep = std::move(action); }
    /// The action is called at the end of each Undo and Redo that did something, when the history is already
    /// up to date; errors that it raises are passed on. An empty function removes the action.
    void SetAfterStep(std::function<void()> action) { m_afterStep = std::move(action); }
    /// The function runs what takes long before steps are undone as one, with progress and Cancel; what: as
    /// for LongWork. It passes on what act raises; nothing is undone then. An empty function: act runs as it
    /// is.
    void SetLongWork(std::function<void(const QString& what, const std::function<void()>& act)> run)
    {
        m_longWork = std::move(run);
    }

Q_SIGNALS:
    /// What can be undone or redone has changed.
    void Changed();

private:
    enum class Direction { Undo, Redo };

    void DropOldest();
    bool MayAbsorb() const;
    void UndoSeveralSinceMark();
    std::shared_ptr<StepGroup> GroupSinceMark();
    void ReplaceSinceMark(std::shared_ptr<IUndoStep> step);
    void Tell();
    void Run(Direction direction);
    void RunStep(Direction direction, size_t position);

    std::vector<std::shared_ptr<IUndoStep>> m_steps; // oldest first
    size_t m_done = 0; // the number of steps that are done; those after them are undone
    std::optional<size_t> m_mark; // the number of steps before it
    bool m_lostSinceMark = false;
    bool m_running = false;
    std::function<void()> m_beforeStep;
    std::function<void()> m_afterStep;
    std::function<void(const QString&, const std::function<void()>&)> m_longWork;
};

} // namespace Orvane
