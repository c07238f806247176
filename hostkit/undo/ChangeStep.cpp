// SPDX-License-Identifier: MIT
#include "hostkit/undo/ChangeStep.h"

#include "hostkit/common/HostErrors.h"
#include "hostkit/schemes/SchemeTables.h"
#include "hostkit/windows/LongWork.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/RunTimeError.h>
#include <OrvaneShellLib/Transaction.h>

#include <QCoreApplication>

namespace Orvane {

ChangeStep::ChangeStep(const Surroundings& surroundings, const QString& text, Changeset changes, Joins joins)
    : m_surroundings(surroundings), m_text(text), m_changes(std::move(changes)), m_joins(joins)
{
}

bool ChangeStep::Absorb(const IUndoStep& next)
{
    const auto* step = dynamic_cast<const ChangeStep*>(&next);
    if (!step || step->m_joins != Joins::StepBefore)
        return false;
    m_changes = m_changes.Then(step->m_changes);
    m_text = step->m_text;
    return true;
}

std::unique_ptr<IUndoStep> ChangeStep::JoinedWith(const IUndoStep& next, const QString& text) const
{
    const auto* step = dynamic_cast<const ChangeStep*>(&next);
    if (!step)
        return nullptr;
    m_surroundings.database.AskWatcher();
    return std::make_unique<ChangeStep>(m_surroundings, text, m_changes.Then(step->m_changes), m_joins);
}

void ChangeStep::Undo()
{
    Run(QCoreApplication::translate("UndoHistory", "Undo %1").arg(m_text));
}

void ChangeStep::Redo()
{
    Run(QCoreApplication::translate("UndoHistory", "Redo %1").arg(m_text));
}

std::optional<Changeset> ChangeStep::Applied(const Changeset& changes, const QString& what)
{
    const LongWork work(m_surroundings.database, what, m_surroundings.window());
    Transaction transaction(m_surroundings.database);
    std::optional<Changeset> changed = m_surroundings.database.Apply(changes);
    if (changed) {
        SchemeTables(m_surroundings.database).RefreshVersion(); // other steps changed schemes too
        transaction.Commit();
    }
    return changed;
}

// Each run stores what it actually changed, so that the next run undoes exactly that.
void ChangeStep::Run(const QString& what)
{
    m_surroundings.begin();
    const std::optional<Changeset> changed = Applied(m_changes.Inverted(), what);
    if (!changed) {
        throw RunTimeError(
            int(HostError::StepOutdated),
            QCoreApplication::translate(
                "ChangeStep",
                "This step is no longer possible, because layers that it changed were changed since by "
                "another program. Nothing was changed: %1")
                .arg(m_text),
            QStringLiteral("UndoHistory"));
    }
    m_changes = *changed;
    m_surroundings.end(m_changes);
}

} // namespace Orvane
