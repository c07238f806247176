// SPDX-License-Identifier: MIT
#include "qgis/plugin/ProjectSession.h"

#include "hostkit/common/HostNotifications.h"
#include "hostkit/undo/UndoHistory.h"
#include "messages/NameInText.h"
#include "qgis/plugin/RefusalText.h"
#include "store/ILayerStore.h"
#include "store/opening/LayerStores.h"

#include <OrvaneShellLib/Cancellation.h>

#include <QFileInfo>
#include <QScopedValueRollback>
#include <qgsexception.h>
#include <qgsproject.h>

#include <utility>

namespace Orvane {

ProjectSession::ProjectSession(QgsProject& project)
    : m_project(project), m_store(LayerStores::CreateInMemory()), m_mirror(project, *m_store),
      m_schemes(project, *m_store), m_client(*m_store, m_services, project, m_mirror), m_watcher(project)
{
    m_mirror.SetAround([this](size_t, const std::function<void()>& write) {
        const ProjectWatcher::Silence own(m_watcher);
        write();
    });
    m_mirror.SetRefused(
        [this](const std::vector<RefusedColumns>& layers) { emit Failed(RefusalText::Of(layers)); });
    m_mirror.SetTeller([this](const QString& message) { emit Failed(message); });
    ListenToProject();
    ListenToClient();
    ReadProject();
    TellStyles();
}

ProjectSession::~ProjectSession() = default;

void ProjectSession::ReadProject()
{
    m_mirror.ReadAll();
    m_client.Notes().Read();
}

void ProjectSession::SetStartupFile(const QString& path)
{
    m_startupFile = path;
    m_client.SetStartupFile(path);
}

void ProjectSession::ReadSchemes()
{
    Guard([this] {
        m_schemes.Read();
        if (!m_schemes.AreKept() && QFileInfo::exists(m_startupFile))
            ReadStartupSchemes();
    });
}

// No change that the user has made.
void ProjectSession::ReadStartupSchemes()
{
    const QgsProjectDirtyBlocker unchanged(&m_project);
    m_client.LoadSchemesFromStartup();
    m_client.History().Clear();
}

void ProjectSession::Undo()
{
    Guard([this] {
        m_watcher.TellNow();
        m_client.History().Undo();
    });
}

void ProjectSession::Redo()
{
    Guard([this] {
        m_watcher.TellNow();
        m_client.History().Redo();
    });
}

void ProjectSession::Stop()
{
    m_watcher.disconnect(this);
    m_project.disconnect(this);
    disconnect();
}

bool ProjectSession::Guard(const std::function<void()>& act) noexcept
{
    const QScopedValueRollback<int> running(m_running, m_running + 1);
    try {
        act();
        return true;
    } catch (const QgsException& error) {
        emit Failed(error.what());
    } catch (const std::exception& error) {
        if (!IsCancellation(error))
            emit Failed(QString::fromUtf8(error.what()));
    } catch (...) {
        emit Failed(tr("An unknown error has occurred."));
    }
    return false;
}

void ProjectSession::ListenToProject()
{
    connect(&m_watcher, &ProjectWatcher::Changed, this, [this](const QSet<QString>& layers, bool isTree) {
        Guard([&] { ReadChanges(layers, isTree); });
    });
    connect(&m_watcher, &ProjectWatcher::ProjectReplaced, this, [this] {
        Guard([this] { ReadOtherProject(); });
    });
    connect(&m_watcher, &ProjectWatcher::StyleRenamed, this, [this](const QString& from, const QString& to) {
        Guard([&] { m_mirror.Styles().Rename(from, to); });
    });
    connect(&m_watcher, &ProjectWatcher::StylesChanged, this, [this] { m_areStylesOld = true; });
    connect(&m_project, &QgsProject::cleared, this, [this] {
        Guard([this] { m_client.DropPendingEdits(); }); // another project may use the same numbers
    });
    connect(&m_project, &QgsProject::writeProject, this, [this](QDomDocument& file) { Save(file); });
}

void ProjectSession::ListenToClient()
{
    const HostNotifications& told = m_client.Notifications();
    connect(&told, &HostNotifications::LayersChanged, this, [this](const QSet<qint32>& layerIDs) {
        Guard([&] {
            if (!m_client.IsApplying())
                WriteLayers(layerIDs);
        });
    });
    connect(&told, &HostNotifications::LayerRenamed, this, [this](qint32 layerID, const QString& name) {
        if (!m_client.IsWriting()) // it does so itself
            Guard([&] { m_mirror.WriteName(layerID, name); });
    });
    connect(&told, &HostNotifications::GroupRenamed, this, [this](qint32 groupID, const QString& name) {
        if (!m_client.IsWriting())
            Guard([&] { m_mirror.WriteGroupName(groupID, name); });
    });
    connect(
        &told, &HostNotifications::SchemesChanged, this, [this] { Guard([this] { m_schemes.Write(); }); });
    connect(&told, &HostNotifications::StepNotRecorded, this, &ProjectSession::Failed);
}

void ProjectSession::WriteLayers(const QSet<qint32>& layerIDs)
{
    MirrorChanges changes;
    m_client.Notes().WriteAfter([&] { changes = m_mirror.Write(layerIDs, ProjectMirror::Meant::WholeRows); });
    Show(changes);
}

void ProjectSession::ReadChanges(const QSet<QString>& layers, bool isTree)
{
    const bool readsAll = std::exchange(m_isBehind, true);
    MirrorChanges changes = readsAll ? m_mirror.ReadAll() : m_mirror.ReadLayers(layers);
    changes.isList |= readsAll; // what was read before the error was not shown
    if (isTree && !readsAll)
        changes.Add(m_mirror.ReadTree());
    m_isBehind = false;
    if (m_areStylesOld || changes.isList)
        TellStyles(); // which asks every layer
    Show(changes);
}

// An editor drops the edits of what is gone.
void ProjectSession::Show(const MirrorChanges& changes)
{
    const bool hadEdits = m_client.HasPendingEdits();
    if (changes.isList)
        m_client.RefreshEditors();
    else
        m_client.RefreshEditors(changes.layers);
    if (hadEdits && !m_client.HasPendingEdits())
        TellDropped(changes.removed);
}

void ProjectSession::TellDropped(const QStringList& removed)
{
    const QString dropped = tr("Changes in the layer control that were not applied have been dropped.");
    emit Failed(
        removed.isEmpty()
            ? dropped
            : tr("The layer \"%1\" was removed.").arg(removed.first()) + QLatin1Char(' ') + dropped);
}

void ProjectSession::ReadOtherProject()
{
    m_client.DropPendingEdits();
    m_client.History().Clear();
    m_mirror.Forget();
    m_carriedStyles.clear();
    ReadProject();
    ReadSchemes();
    TellStyles();
    m_client.RefreshEditors();
    ApplySchemeAtOpening();
}

// The project counts as changed only if the scheme changes it.
void ProjectSession::ApplySchemeAtOpening()
{
    Guard([this] {
        if (const std::optional<QString> scheme = m_client.ApplySchemeAtOpening())
            emit Done(
                tr("The scheme \"%1\" was applied when the project was opened.").arg(NameInText(*scheme)));
    });
}

void ProjectSession::Save(QDomDocument& file)
{
    Guard([&] {
        if (m_beforeSaving)
            m_beforeSaving(file);
    });
    Guard([this] { SaveOwnValues(); });
}

// The styles that are not current go into the file as they are kept.
void ProjectSession::SaveOwnValues()
{
    const ProjectWatcher::Silence own(m_watcher);
    for (QgsMapLayer* layer : m_project.mapLayers())
        LayerOwnValues::CarryToStyles(*layer, m_carriedStyles);
    m_schemes.Write();
    m_client.Notes().Write();
}

void ProjectSession::TellStyles()
{
    m_areStylesOld = false;
    QStringList names;
    for (const RendererStyle& style : m_mirror.Styles().Offered())
        names << style.name;
    if (std::exchange(m_offeredStyles, names) != names)
        emit RendererStylesChanged();
}

} // namespace Orvane
