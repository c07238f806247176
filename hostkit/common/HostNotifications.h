// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QWidget;

namespace Orvane {

/// The signals by which a StandardClient notifies its host. Each is emitted once per operation, after
/// everything is stored.
class HostNotifications : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

Q_SIGNALS:
    /// The drawing properties of these layers were stored: redraw them. Emitted by RedrawMap with all layers
    /// passed to LayerChanged, and after a scheme was loaded.
    void LayersChanged(const QSet<qint32>& layerIDs);
    /// The layer was created, with its row stored.
    void LayerCreated(qint32 layerID);
    /// The layer's rows were removed.
    void LayerDeleted(qint32 layerID);
    void LayerRenamed(qint32 layerID, const QString& name);
    void GroupRenamed(qint32 groupID, const QString& name);
    /// Undo or redo has created, deleted or reordered groups, or changed which layers they have.
    void GroupsChanged();
    /// The current scheme or the set of schemes has changed, or one of them. areValuesKept: nothing but their
    /// names, their order and which one is for the opening has changed.
    void SchemesChanged(const QString& currentScheme, bool areValuesKept = false);
    /// The layers now have the scheme's saved values. Emitted after SchemesChanged and LayersChanged.
    void SchemeLoaded(const QString& scheme);
    /// All schemes were written to the startup database.
    void SchemesSavedToStartup();
    /// A change was stored, but it cannot be undone; steps before it still can, as far as it does not
    /// conflict with them. reason: for the user.
    void StepNotRecorded(const QString& reason);
    /// The form is shown, as a window or in a widget of the host.
    void EditorShown(QWidget* form);
    /// The form is about to be hidden or destroyed.
    void EditorClosed(QWidget* form);
};

} // namespace Orvane
