// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class QWidget;

namespace Orvane {

/// What a StandardClient tells its host, as signals. Each is emitted once an operation, after everything is
/// stored.
class HostNotifications : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

signals:
    /// The drawing properties of these layers were stored: redraw them. Emitted by RedrawMap with all layers
    /// that LayerChanged named, and after a scheme was loaded.
    void LayersChanged(const QSet<qint32>& layerIDs);
    /// The layer was created, with its row stored.
    void LayerCreated(qint32 layerID);
    /// The layer's rows are gone.
    void LayerDeleted(qint32 layerID);
    void LayerRenamed(qint32 layerID, const QString& name);
    void GroupRenamed(qint32 groupID, const QString& name);
    /// Another scheme is current, or the set of schemes changed.
    void SchemesChanged(const QString& currentScheme);
    /// The scheme's saved values are those of the layers now; follows SchemesChanged and LayersChanged.
    void SchemeLoaded(const QString& scheme);
    /// The form is shown as a window.
    void EditorShown(QWidget* form);
    /// The form is about to be hidden or destroyed.
    void EditorClosed(QWidget* form);
};

} // namespace Orvane
