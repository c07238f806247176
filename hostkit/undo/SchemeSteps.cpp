// SPDX-License-Identifier: MIT
#include "hostkit/undo/SchemeSteps.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/schemes/StartupSchemes.h"
#include "hostkit/undo/LayerSteps.h"
#include "messages/NameInText.h"
#include "store/ILayerStore.h"

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
        &m_notifications, &HostNotifications::SchemesChanged, &m_context, [this] { m_differences.Forget(); });
}

void SchemeSteps::Load(const QString& name)
{
    const QString left = m_schemes.Current();
    QSet<qint32> changed;
    m_steps.Record([&] {
        changed = m_schemes.Load(name);
        return tr("Load Scheme \"%1\"").arg(NameInStep(name));
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
    m_schemes.Current(); // creates the first scheme, which is not a step
    m_steps.Record([&] {
        m_schemes.Create(name);
        return tr("Create Scheme \"%1\"").arg(NameInStep(name));
    });
    Tell();
}

void SchemeSteps::Save(const QString& name)
{
    m_schemes.Current();
    m_steps.Record([&] {
        m_schemes.Save(name);
        return tr("Save Scheme \"%1\"").arg(NameInStep(name));
    });
    Tell();
}

void SchemeSteps::Delete(const QString& name)
{
    m_schemes.Current();
    const auto remove = [&] {
        m_schemes.Delete(name);
        return tr("Delete Scheme \"%1\"").arg(NameInStep(name));
    };
    const QString left = std::exchange(m_justLeft, {});
    const bool isOneDeed = !left.isEmpty() && left == name; // the user pressed one button
    m_steps.Record(remove, isOneDeed ? ChangeStep::Joins::StepBefore : ChangeStep::Joins::No);
    Tell();
}

SchemeImport SchemeSteps::Import(const SchemeDocument& scheme)
{
    m_schemes.Current();
    SchemeImport report;
    m_steps.Record([&] {
        report = SchemeExchange::Import(m_database, scheme);
        return tr("Import Scheme \"%1\"").arg(NameInStep(scheme.name));
    });
    Tell();
    return report;
}

void SchemeSteps::LoadFromStartup(const QString& startupFile)
{
    m_schemes.Current();
    m_steps.Record([&] {
        StartupSchemes::Load(m_database, startupFile);
        return tr("Load Startup Schemes");
    });
    Tell();
}

void SchemeSteps::Leave(const QString& name)
{
    m_justLeft = name;
    QMetaObject::invokeMethod(
        &m_context, [this] { m_justLeft.clear(); }, Qt::QueuedConnection);
}

void SchemeSteps::Tell()
{
    emit m_notifications.SchemesChanged(m_schemes.Current());
}

} // namespace Orvane
