// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace Orvane {

/// Something that a person did, that can be taken back and done again. Made after it was done, and given to
/// an UndoHistory:
///
///     class MoveFeature final : public IUndoStep { ... };
///     client.History().Add(std::make_unique<MoveFeature>(layerID, feature, from, to));
class IUndoStep
{
public:
    virtual ~IUndoStep() = default;
    IUndoStep(const IUndoStep&) = delete;
    IUndoStep& operator=(const IUndoStep&) = delete;

    /// What was done, for a person and translated, in words that can follow "Undo" in a menu: "Change of
    /// Roads".
    virtual QString Text() const = 0;

    /// Takes it back, all or nothing. Raises HostError::StepOutdated when that is no longer possible because
    /// what was done was changed by somebody else; the history then forgets the step. After any other error
    /// the step stays, so that the person can try again.
    virtual void Undo() = 0;

    /// Does it again; raises as Undo does.
    virtual void Redo() = 0;

    /// Takes the step that was done directly after this one into itself, if the two are one to the person;
    /// true when next is no longer needed. No step does, unless it says otherwise.
    virtual bool Absorb([[maybe_unused]] const IUndoStep& next) { return false; }

protected:
    IUndoStep() = default;
};

} // namespace Orvane
