// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/LayerSchemes.h"
#include "hostkit/SchemeDifferences.h"
#include "hostkit/SchemeExchange.h"

#include <QCoreApplication>
#include <QObject>
#include <QString>

namespace Orvane {

class HostNotifications;
class LayerSteps;
class SqliteLayerDatabase;

/// What a person does with the schemes of a map: each deed is one step of the history, and is told by the
/// signals of HostNotifications. Errors are those of LayerSchemes and of the database.
class SchemeSteps
{
    Q_DECLARE_TR_FUNCTIONS(SchemeSteps)

public:
    /// None is owned; all outlive this object.
    SchemeSteps(SqliteLayerDatabase& database, LayerSteps& steps, HostNotifications& notifications);
    Q_DISABLE_COPY_MOVE(SchemeSteps)

    QStringList Names() { return m_schemes.Names(); }
    QString Current() { return m_schemes.Current(); }
    /// How many layers differ from the current scheme, or are not known to it.
    qsizetype UnsavedChanges() { return m_differences.Count(); }
    /// Which layers differ is found anew at the next question.
    void ForgetDifferences() { m_differences.Forget(); }

    void Load(const QString& name);
    void Create(const QString& name);
    void Save(const QString& name);
    /// Right after the scheme was left, before the event loop runs again, both are one step.
    void Delete(const QString& name);

    /// Stores the scheme into the map, as SchemeExchange::Import does.
    SchemeImport Import(const SchemeDocument& scheme);
    /// Gives the map the schemes of that file, as StartupSchemes::Load does.
    void LoadFromStartup(const QString& startupFile);

private:
    void ListenToChanges();
    void Leave(const QString& name);
    void Tell();

    SqliteLayerDatabase& m_database;
    LayerSteps& m_steps;
    HostNotifications& m_notifications;
    LayerSchemes m_schemes;
    SchemeDifferences m_differences{m_schemes};
    QObject m_context; // ends what is queued, and the connections, with this object
    QString m_justLeft; // the scheme that the last step left; empty once the event loop runs again
};

} // namespace Orvane
