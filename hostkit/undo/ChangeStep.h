// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/undo/IUndoStep.h"
#include "store/Changeset.h"

#include <functional>
#include <optional>

class QWidget;

namespace Orvane {

class ILayerStore;

/// A step that changed rows of the layer database.
class ChangeStep final : public IUndoStep
{
public:
    /// Whether the step is merged with the step before it.
    enum class Joins { No, StepBefore };

    /// What steps work with; everything here must outlive them.
    struct Surroundings {
        ILayerStore& database;
        std::function<QWidget*()> window; ///< in front of which progress is shown; may return nullptr
        std::function<void()> begin; ///< called before rows change; if it raises, the step is not run
        std::function<void(const Changeset& changed)> end; ///< called after rows changed; raises nothing
    };

    /// changes: what the step did.
    ChangeStep(const Surroundings& surroundings, const QString& text, Changeset changes, Joins joins);

    QString Text() const override { return m_text; }
    void Undo() override;
    void Redo() override;
    bool Absorb(const IUndoStep& next) override;
    std::unique_ptr<IUndoStep> JoinedWith(const IUndoStep& next, const QString& text) const override;
    qsizetype KeptBytes() const override { return m_changes.KeptSize(); }

private:
    void Run(const QString& what);
    std::optional<Changeset> Applied(const Changeset& changes, const QString& what);

    const Surroundings& m_surroundings;
    QString m_text;
    Changeset m_changes; // the changes made last, by the step or by undoing it
    Joins m_joins;
};

} // namespace Orvane
