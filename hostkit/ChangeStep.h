// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/IUndoStep.h"
#include "store/Changeset.h"

#include <functional>

namespace Orvane {

class SqliteLayerDatabase;

/// A step that changed rows of the layer database.
class ChangeStep final : public IUndoStep
{
public:
    /// Whether the step is one with the step before it.
    enum class Joins { No, StepBefore };

    /// Where steps run; all outlive them.
    struct Surroundings {
        SqliteLayerDatabase& database;
        std::function<void()> begin; ///< called before rows change; what it raises stops the step
        std::function<void(const Changeset& changed)> end; ///< called after rows changed; raises nothing
    };

    /// changes: what the step did.
    ChangeStep(const Surroundings& surroundings, const QString& text, Changeset changes, Joins joins);

    QString Text() const override { return m_text; }
    void Undo() override { Run(); }
    void Redo() override { Run(); }
    bool Absorb(const IUndoStep& next) override;

private:
    void Run();

    const Surroundings& m_surroundings;
    QString m_text;
    Changeset m_changes; // the last that were made, by the step or by taking it back
    Joins m_joins;
};

} // namespace Orvane
