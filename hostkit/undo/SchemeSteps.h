// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/schemes/LayerSchemes.h"
#include "hostkit/schemes/SchemeDifferences.h"
#include "hostkit/schemes/SchemeExchange.h"
#include "hostkit/undo/LayerSteps.h"

#include <QCoreApplication>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace Orvane {

class HostNotifications;
class ILayerStore;

/// The user's operations on the schemes of a map. Each operation is one step of the history and emits the
/// signals of HostNotifications. Errors are those of LayerSchemes and of the database.
class SchemeSteps
{
    Q_DECLARE_TR_FUNCTIONS(SchemeSteps)

public:
    /// None of these is owned; all must outlive this object.
    SchemeSteps(ILayerStore& database, LayerSteps& steps, HostNotifications& notifications);
    Q_DISABLE_COPY_MOVE(SchemeSteps)

    QStringList Names() { return m_schemes.Names(); }
    std::vector<SchemeDetails> All() { return m_schemes.All(); }
    QString Current() { return m_schemes.Current(); }
    /// How many layers differ from the current scheme, or are not in it.
    qsizetype UnsavedChanges() { return m_differences.Count(); }
    /// Makes the next call of UnsavedChanges compare these layers again.
    void NoteDifferences(const QSet<qint32>& layerIDs) { m_differences.Note(layerIDs); }
    /// Makes the next call of UnsavedChanges compare all layers again.
    void ForgetDifferences() { m_differences.Forget(); }

    void Load(const QString& name);
    void Create(const QString& name);
    void Save(const QString& name);
    /// If the scheme stopped being current just before, and the event loop has not run since, both operations
    /// are one step.
    void Delete(const QString& name);
    /// Removes the schemes as one step; the layers stay as they are.
    void DeleteSeveral(const QStringList& names);
    void Rename(const QString& name, const QString& newName);
    void Duplicate(const QString& name, const QString& newName);
    /// Creates a scheme that holds only these properties; the current scheme stays.
    void Add(const QString& name, SchemeParts holds);
    /// As LayerSchemes::SetHolds.
    void SetHolds(const QString& name, SchemeParts holds);
    /// As LayerSchemes::SetOrder; an empty list is the natural order.
    void SetOrder(const QStringList& names);
    /// As LayerSchemes::SetAtOpening; empty for none.
    void SetAtOpening(const QString& name);
    /// The scheme that is to be loaded now that the map was opened; nothing if there is none, if it is
    /// current and the layers are as it says, or if the map cannot be changed.
    std::optional<QString> MissingAtOpening();
    /// How many layers differ from that scheme, or are not in it; compares all.
    qsizetype CountThatDiffer(const QString& name) { return m_schemes.CountThatDiffer(name); }

    /// As StandardClient::ExportScheme.
    void Export(const QString& name, const QString& path);
    /// As StandardClient::ImportSchemeFile.
    std::optional<SchemeImport>
    ImportFile(const QString& path, const std::function<bool(const QString& name)>& mayImport);
    /// Stores the scheme in the map, as SchemeExchange::Import does.
    SchemeImport Import(const SchemeDocument& scheme);
    SchemeImport Import(SchemeFile::Reader& file);
    /// Gives the map the schemes of that file, as StartupSchemes::Load does.
    void LoadFromStartup(const QString& startupFile);

private:
    void ListenToChanges();
    SchemeImport Import(const QString& name, const std::function<SchemeImport()>& act);
    // Runs act as one step of that name, which the user can cancel while it runs.
    void
    Run(const QString& text, const std::function<void()>& act,
        ChangeStep::Joins joins = ChangeStep::Joins::No);
    void Leave(const QString& name);
    enum class Values { Changed, Kept };
    void Tell(Values values = Values::Changed);

    ILayerStore& m_database;
    LayerSteps& m_steps;
    HostNotifications& m_notifications;
    LayerSchemes m_schemes;
    SchemeDifferences m_differences{m_schemes};
    QObject m_context; // cancels queued calls and connections when this object is destroyed
    QString m_justLeft; // was current before the last step; empty once the event loop runs again
};

} // namespace Orvane
