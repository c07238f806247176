// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

namespace Orvane {

/// An operation of the user that can be undone and redone. Create it after the operation is done, and add it
/// to an UndoHistory:
///
///     class MoveFeature final : public IUndoStep { ... };
///     client.History().Add(std::make_unique<MoveFeature>(layerID, feature, from, to));
class IUndoStep
{
public:
    virtual ~IUndoStep() = default;
    IUndoStep(const IUndoStep&) = delete;
    IUndoStep& operator=(const IUndoStep&) = delete;

    /// A translated description of the operation, worded to follow "Undo" in a menu, for example "Change
    /// Roads".
    virtual QString Text() const = 0;

    /// Undoes the operation, all or nothing. Raises HostError::StepOutdated if that is no longer possible
    /// because something else has changed its result; the history then removes the step. After any other
    /// error the step stays, so that the user can try again.
    virtual void Undo() = 0;

    /// Redoes the operation; raises the same errors as Undo.
    virtual void Redo() = 0;

    /// Merges the step done directly after this one into this step, if they are one operation to the user.
    /// Returns true if next is no longer needed. By default steps are not merged.
    virtual bool Absorb([[maybe_unused]] const IUndoStep& next) { return false; }

    /// How much the step keeps of what it must remember, in memory or in files, in bytes: the history drops
    /// old steps when all together keep too much. By default 0.
    virtual qsizetype KeptBytes() const { return 0; }

    /// One step that does this step and then the next one, which is done directly after it, in a single
    /// piece: all or nothing, with one progress and one Cancel. Both steps stay as they are. Used when
    /// several steps are undone at once. text: of the new step. By default nothing is returned; the steps are
    /// then undone one after the other.
    virtual std::unique_ptr<IUndoStep>
    JoinedWith([[maybe_unused]] const IUndoStep& next, [[maybe_unused]] const QString& text) const
    {
        return nullptr;
    }

protected:
    IUndoStep() = default;
};

} // namespace Orvane
