// SPDX-License-Identifier: MIT
#include "hostkit/undo/SchemeSteps.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/schemes/StartupSchemes.h"
#include "hostkit/windows/LongWork.h"
#include "messages/NameInText.h"
#include "store/ILayerStore.h"

#include <OrvaneShellLib/Transaction.h>

#include <QLocale>

#include <utility>

namespace Orvane {

SchemeSteps::SchemeSteps(ILayerStore& database, LayerSteps& steps, HostNotifications& notifications)
    : m_database(database), m_steps(steps), m_notifications(notifications), m_schemes(database)
{
    ListenToChanges();
}

// All changes to layers are reported by these signals. Connects before other listeners, so that they can ask
// for the result.
void SchemeSteps::ListenToChanges()
{
    const auto note = [this](qint32 layerID) { m_differences.Note({layerID}); };
    QObject::connect(
        &m_notifications, &HostNotifications::LayersChanged, &m_context,
        [this](const QSet<qint32>& layerIDs) { m_differences.Note(layerIDs); });
    QObject::connect(&m_notifications, &HostNotifications::LayerCreated, &m_context, note);
    QObject::connect(&m_notifications, &HostNotifications::LayerDeleted, &m_context, note);
    QObject::connect(
        &m_notifications, &HostNotifications::SchemesChanged, &m_context,
        [this](const QString&, bool areValuesKept) {
            if (!areValuesKept)
                m_differences.Forget();
        });
}

void SchemeSteps::Load(const QString& name)
{
    QString left;
    QSet<qint32> changed;
    Run(tr("Load Scheme \"%1\"").arg(NameInStep(name)), [&] {
        left = m_schemes.Current();
        changed = m_schemes.Load(name);
    });
    if (left != name)
        Leave(left);
    if (!changed.isEmpty()) // before anything that may raise: they are stored, and the map must show them
        emit m_notifications.LayersChanged(changed);
    Tell();
    emit m_notifications.SchemeLoaded(name);
}

void SchemeSteps::Create(const QString& name)
{
    Run(tr("Create Scheme \"%1\"").arg(NameInStep(name)), [&] { m_schemes.Create(name); });
    Tell();
}

void SchemeSteps::Save(const QString& name)
{
    Run(tr("Save Scheme \"%1\"").arg(NameInStep(name)), [&] { m_schemes.Save(name); });
    Tell();
}

void SchemeSteps::Delete(const QString& name)
{
    const QString left = std::exchange(m_justLeft, {});
    const bool isOneDeed = !left.isEmpty() && left == name; // the user pressed one button
    Run(
        tr("Delete Scheme \"%1\"").arg(NameInStep(name)), [&] { m_schemes.Delete(name); },
        isOneDeed ? ChangeStep::Joins::StepBefore : ChangeStep::Joins::No);
    Tell();
}

void SchemeSteps::DeleteSeveral(const QStringList& names)
{
    if (names.size() == 1)
        return Delete(names.constFirst());
    const auto act = [&] {
        Transaction transaction(m_database);
        for (const QString& name : names)
            m_schemes.Delete(name);
        transaction.Commit();
    };
    Run(tr("Delete %1 Schemes").arg(QLocale().toString(names.size())), act);
    Tell();
}

void SchemeSteps::Rename(const QString& name, const QString& newName)
{
    Run(tr("Rename Scheme \"%1\"").arg(NameInStep(newName)), [&] { m_schemes.Rename(name, newName); });
    Tell(Values::Kept);
}

void SchemeSteps::Duplicate(const QString& name, const QString& newName)
{
    Run(tr("Duplicate Scheme \"%1\"").arg(NameInStep(name)), [&] { m_schemes.Duplicate(name, newName); });
    Tell();
}

void SchemeSteps::Add(const QString& name, SchemeParts holds)
{
    Run(tr("Create Scheme \"%1\"").arg(NameInStep(name)), [&] { m_schemes.Add(name, holds); });
    Tell();
}

void SchemeSteps::SetHolds(const QString& name, SchemeParts holds)
{
    Run(tr("Change What Scheme \"%1\" Holds").arg(NameInStep(name)),
        [&] { m_schemes.SetHolds(name, holds); });
    Tell();
}

void SchemeSteps::SetOrder(const QStringList& names)
{
    Run(names.isEmpty() ? tr("Sort Schemes by Name") : tr("Reorder Schemes"),
        [&] { m_schemes.SetOrder(names); });
    Tell(Values::Kept);
}

void SchemeSteps::SetAtOpening(const QString& name)
{
    const QString text = name.isEmpty() ? tr("Apply No Scheme at Opening")
                                        : tr("Apply Scheme \"%1\" at Opening").arg(NameInStep(name));
    Run(text, [&] { m_schemes.SetAtOpening(name); });
    Tell(Values::Kept);
}

std::optional<QString> SchemeSteps::MissingAtOpening()
{
    const QString name = m_database.IsReadOnly() ? QString() : m_schemes.AtOpening();
    if (name.isEmpty() || (name == m_schemes.CurrentName() && !m_schemes.WouldChange(name)))
        return std::nullopt;
    return name;
}

void SchemeSteps::Export(const QString& name, const QString& path)
{
    m_steps.EndEdits(); // before the work, which may be cancelled
    const LongWork work(m_database, tr("Export Scheme \"%1\"").arg(NameInStep(name)), m_steps.Window());
    const Transaction oneState(m_database);
    SchemeFile::Make(path, [&](QIODevice& text) { SchemeExchange::ExportTo(text, m_database, name); });
}

std::optional<SchemeImport>
SchemeSteps::ImportFile(const QString& path, const std::function<bool(const QString& name)>& mayImport)
{
    SchemeFile::Reader file(path);
    if (!mayImport(file.Name()))
        return std::nullopt;
    return Import(file);
}

SchemeImport SchemeSteps::Import(const SchemeDocument& scheme)
{
    return Import(scheme.name, [&] { return SchemeExchange::Import(m_database, scheme); });
}

SchemeImport SchemeSteps::Import(SchemeFile::Reader& file)
{
    return Import(file.Name(), [&] { return SchemeExchange::Import(m_database, file); });
}

SchemeImport SchemeSteps::Import(const QString& name, const std::function<SchemeImport()>& act)
{
    SchemeImport report;
    Run(tr("Import Scheme \"%1\"").arg(NameInStep(name)), [&] { report = act(); });
    Tell();
    return report;
}

void SchemeSteps::LoadFromStartup(const QString& startupFile)
{
    Run(tr("Load Startup Schemes"), [&] { StartupSchemes::Load(m_database, startupFile); });
    Tell();
}

void SchemeSteps::Run(const QString& text, const std::function<void()>& act, ChangeStep::Joins joins)
{
    m_steps.EndEdits(); // before the work, which may be cancelled
    const LongWork work(m_database, text, m_steps.Window());
    m_schemes.Current(); // creates the first scheme, which is not a step
    const auto actAndTell = [&] {
        act();
        return text;
    };
    m_steps.Record(actAndTell, joins);
}

void SchemeSteps::Leave(const QString& name)
{
    m_justLeft = name;
    QMetaObject::invokeMethod(
        &m_context, [this] { m_justLeft.clear(); }, Qt::QueuedConnection);
}

void SchemeSteps::Tell(Values values)
{
    emit m_notifications.SchemesChanged(m_schemes.Current(), values == Values::Kept);
}

} // namespace Orvane
