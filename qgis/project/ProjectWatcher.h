// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

class QgsMapLayer;
class QgsProject;

namespace Orvane {

/// What has changed in a project, gathered until the event loop runs again: a thousand layers that are added
/// at once are one change.
class ProjectWatcher : public QObject
{
    Q_OBJECT

public:
    /// Changes that are made while an object of this class exists are not told, unless layers come or go:
    /// that is done by somebody who is notified of a change.
    class Silence
    {
    public:
        /// watcher: outlives this object.
        explicit Silence(ProjectWatcher& watcher) : m_watcher(watcher) { ++m_watcher.m_silences; }
        ~Silence() { --m_watcher.m_silences; }
        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;

    private:
        ProjectWatcher& m_watcher;
    };

    /// project: not owned; outlives this object.
    explicit ProjectWatcher(QgsProject& project);

    /// Emits now what is gathered, for a caller that needs the present state.
    void TellNow();

Q_SIGNALS:
    /// Another project was opened, or a new one begun: nothing of the former is left.
    void ProjectReplaced();
    /// These layers were added, removed or changed, by their IDs in QGIS. isTree: nodes of the tree, the
    /// order of drawing or the snapping may have changed as well.
    void Changed(const QSet<QString>& layerIDs, bool isTree);
    /// A named style of a layer got another name; emitted at once, whoever renamed it.
    void StyleRenamed(const QString& from, const QString& to);
    /// A layer has got, lost or renamed a named style; emitted at once, whoever did it.
    void StylesChanged();

private:
    void ListenToProject();
    void ListenToTree();
    void ListenToLayer(QgsMapLayer& layer);
    void ListenToStyles(QgsMapLayer& layer);
    void NoteLayer(const QString& layerID);
    void NoteTree();
    void NoteLayers();
    void NoteProject();

    QgsProject& m_project;
    QTimer m_soon;
    QSet<QString> m_layers;
    bool m_isTree = false;
    bool m_isReplaced = false;
    int m_silences = 0;
};

} // namespace Orvane
