// SPDX-License-Identifier: MIT
#pragma once

#include "hostkit/StandardShellServices.h"
#include "qgis/plugin/QgisClient.h"
#include "qgis/project/LayerOwnValues.h"
#include "qgis/project/ProjectMirror.h"
#include "qgis/project/ProjectSchemes.h"
#include "qgis/project/ProjectWatcher.h"

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>
#include <utility>

class QDomDocument;
class QgsProject;

namespace Orvane {

class ILayerStore;

/// A QGIS project with all that the layer control needs of it: a layer store that is kept equal to it, and
/// the application object. No error leaves a slot of it: Failed says so.
class ProjectSession : public QObject
{
    Q_OBJECT

public:
    /// Reads the project, without its schemes. Not owned; outlives this object. Raises errors of the store.
    explicit ProjectSession(QgsProject& project);
    ~ProjectSession() override;

    /// Reads the schemes of the project, or those of the startup file if it has none; call it when Failed is
    /// connected, before the first editor.
    void ReadSchemes();

    /// The file of the schemes for projects that have none; it may be missing. path: absolute.
    void SetStartupFile(const QString& path);

    /// What runs first when QGIS saves the project. file: as QgsProject::writeProject passes it.
    using BeforeSaving = std::function<void(QDomDocument& file)>;
    void SetBeforeSaving(BeforeSaving act) { m_beforeSaving = std::move(act); }

    /// The parts of the session, which owns all but the project.
    QgsProject& Project() { return m_project; }
    QgisClient& Client() { return m_client; }
    ProjectMirror& Mirror() { return m_mirror; }
    ProjectWatcher& Watcher() { return m_watcher; }
    ILayerStore& Store() { return *m_store; }

    /// Undoes or redoes the last step, with what has changed in QGIS up to now. A step that is
    /// no longer possible after them is dropped, and Failed says so.
    void Undo();
    void Redo();

    /// True while a function of this object, or of the client, is running.
    bool IsBusy() const { return m_running > 0 || m_client.IsBusy(); }
    /// From now on it reads nothing, and emits nothing.
    void Stop();

    /// Runs act; Failed says what it raises. Returns false then.
    bool Guard(const std::function<void()>& act) noexcept;

Q_SIGNALS:
    /// Something went wrong. message: for the user.
    void Failed(const QString& message);
    /// Something was done that the user should know. message: for the user.
    void Done(const QString& message);
    /// The styles of QgisClient::RendererStyles have changed.
    void RendererStylesChanged();

private:
    void ListenToProject();
    void ListenToClient();
    void Show(const MirrorChanges& changes);
    void TellDropped(const QStringList& removed);
    void ReadChanges(const QSet<QString>& layers, bool isTree);
    void WriteLayers(const QSet<qint32>& layerIDs);
    void ReadProject();
    void ReadOtherProject();
    void ReadStartupSchemes();
    void ApplySchemeAtOpening();
    void Save(QDomDocument& file);
    void SaveOwnValues();
    void TellStyles();

    QgsProject& m_project;
    std::unique_ptr<ILayerStore> m_store;
    StandardShellServices m_services;
    ProjectMirror m_mirror;
    ProjectSchemes m_schemes;
    QgisClient m_client;
    ProjectWatcher m_watcher;
    QStringList m_offeredStyles;
    LayerOwnValues::CarriedStyles m_carriedStyles;
    QString m_startupFile;
    BeforeSaving m_beforeSaving;
    bool m_areStylesOld = false; // a layer has other ones than those that were offered
    bool m_isBehind = false; // a change could not be read
    int m_running = 0;
};

} // namespace Orvane
